#include "PushButtonPeer.h"

#include "CATDlgPushButton.h"
#include "Icons.h"
#include "PeerTree.h"
#include "Texts.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

#include <QtWidgets/QPushButton>

namespace desktop {

PushButtonPeer::PushButtonPeer(PeerTree& ioTree, CATDlgPushButton& ioButton, QWidget* iParent)
    : Peer(ioTree, ioButton, new QPushButton(iParent)), _button(ioButton) {
    Button().setAutoDefault(false);
    Button().setFlat((host::Inspector::Style(ioButton) & CATDlgPusNoShadow) != 0);
    connect(&Button(), &QPushButton::clicked, this,
            [this] { Perform([this] { return host::DialogUser::Press(_button); }); });
}

QString PushButtonPeer::Caption() const {
    return Button().icon().isNull() ? ToQt(_button.GetTitle()) : QString();
}

void PushButtonPeer::ShowCaption(int iMnemonic) {
    Button().setText(WithMnemonic(Caption(), iMnemonic));
}

bool PushButtonPeer::IsOneLine() const {
    return Button().icon().isNull();
}

void PushButtonPeer::ShowState(unsigned int iKinds) {
    if ((iKinds & host::ChangeIcon) != 0)
        Button().setIcon(IconOf(Tree(), _button));
    const bool needsTitleAsHelp = !Button().icon().isNull() && Button().toolTip().isEmpty();
    if (needsTitleAsHelp)
        Button().setToolTip(AsPlainHelp(ToQt(_button.GetTitle())));
}

QPushButton& PushButtonPeer::Button() const {
    return static_cast<QPushButton&>(*Widget());
}

} // namespace desktop
