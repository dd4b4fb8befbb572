#include "RadioButtonPeer.h"

#include "CATDlgRadioButton.h"
#include "EnterKey.h"
#include "PeerTree.h"
#include "RadioButton.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

namespace desktop {

RadioButtonPeer::RadioButtonPeer(PeerTree& ioTree, CATDlgRadioButton& ioButton, QWidget* iParent)
    : ButtonPeer(ioTree, ioButton, new RadioButton(iParent)), _button(ioButton) {
    LeaveEnterToWindow(Button());
    connect(&Button(), &QAbstractButton::clicked, this, [this] { Check(); });
}

// Qt keeps one button of an exclusive group checked; the host may have none.
void RadioButtonPeer::ShowState(unsigned int) {
    Button().setAutoExclusive(false);
    Button().setChecked(_button.GetState() == CATDlgCheck);
    Button().setAutoExclusive(true);
}

// Qt has unchecked another button of the group already; a refusal has to check it again.
void RadioButtonPeer::Check() {
    if (Perform([this] { return host::DialogUser::Check(_button); }) || Dialog() == nullptr)
        return;
    for (const CATDialog* sibling : host::Inspector::Children(*host::Inspector::Parent(_button)))
        if (Peer* const peer = Tree().PeerOf(*sibling))
            peer->Refresh(host::ChangeState);
}

} // namespace desktop
