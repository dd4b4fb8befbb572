#include "PushButtonPeer.h"

#include "CATDlgPushButton.h"
#include "Icons.h"
#include "PeerTree.h"
#include "Texts.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

#include <QtWidgets/QPushButton>

namespace desktop {

namespace {

QPushButton* NewButton(const CATDlgPushButton& iButton, QWidget* iParent) {
    auto* const button = new QPushButton(iParent);
    button->setAutoDefault(false);
    button->setFlat((host::Inspector::Style(iButton) & CATDlgPusNoShadow) != 0);
    return button;
}

} // namespace

PushButtonPeer::PushButtonPeer(PeerTree& ioTree, CATDlgPushButton& ioButton, QWidget* iParent)
    : ButtonPeer(ioTree, ioButton, NewButton(ioButton, iParent)), _button(ioButton) {
    connect(&Button(), &QAbstractButton::clicked, this,
            [this] { Perform([this] { return host::DialogUser::Press(_button); }); });
}

QString PushButtonPeer::Caption() const {
    return Button().icon().isNull() ? ButtonPeer::Caption() : QString();
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

} // namespace desktop
