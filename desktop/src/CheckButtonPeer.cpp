#include "CheckButtonPeer.h"

#include "CATDlgCheckButton.h"
#include "EnterKey.h"
#include "host/DialogUser.h"

#include <QtWidgets/QCheckBox>

namespace desktop {

CheckButtonPeer::CheckButtonPeer(PeerTree& ioTree, CATDlgCheckButton& ioButton, QWidget* iParent)
    : ButtonPeer(ioTree, ioButton, new QCheckBox(iParent)), _button(ioButton) {
    LeaveEnterToWindow(Button());
    connect(&Button(), &QAbstractButton::clicked, this, [this](bool iChecked) {
        Perform([this, iChecked] {
            return iChecked ? host::DialogUser::Check(_button) : host::DialogUser::Uncheck(_button);
        });
    });
}

void CheckButtonPeer::ShowState(unsigned int) {
    Button().setChecked(_button.GetState() == CATDlgCheck);
}

} // namespace desktop
