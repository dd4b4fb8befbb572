#include "CheckButtonPeer.h"

#include "CATDlgCheckButton.h"
#include "Texts.h"
#include "host/DialogUser.h"

#include <QtWidgets/QCheckBox>

namespace desktop {

CheckButtonPeer::CheckButtonPeer(PeerTree& ioTree, CATDlgCheckButton& ioButton, QWidget* iParent)
    : Peer(ioTree, ioButton, new QCheckBox(iParent)), _button(ioButton) {
    connect(&Button(), &QCheckBox::clicked, this, [this](bool iChecked) {
        Perform([this, iChecked] {
            return iChecked ? host::DialogUser::Check(_button) : host::DialogUser::Uncheck(_button);
        });
    });
}

QString CheckButtonPeer::Caption() const {
    return ToQt(_button.GetTitle());
}

void CheckButtonPeer::ShowCaption(int iMnemonic) {
    Button().setText(WithMnemonic(Caption(), iMnemonic));
}

void CheckButtonPeer::ShowState(unsigned int) {
    Button().setChecked(_button.GetState() == CATDlgCheck);
}

QCheckBox& CheckButtonPeer::Button() const {
    return static_cast<QCheckBox&>(*Widget());
}

} // namespace desktop
