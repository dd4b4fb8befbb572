#include "CATDlgCheckButton.h"

#include "WidgetEvents.h"
#include "host/DialogObserver.h"

CATImplementClass(CATDlgCheckButton, Implementation, CATDlgControl, CATNull);

CATDlgCheckButton::CATDlgCheckButton(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgControl(iParent, iName, iStyle) {
    DrawTitle();
}

CATULong CATDlgCheckButton::GetState() const {
    return _isChecked ? CATDlgCheck : CATDlgUncheck;
}

void CATDlgCheckButton::SetState(CATULong iState, int iNotify) {
    if ((iState != CATDlgCheck && iState != CATDlgUncheck) || iState == GetState())
        return;
    _isChecked = iState == CATDlgCheck;
    NoteChange(host::ChangeState);
    if (iNotify == CATDlgWithNotification)
        SendEvent(GetChkBModifyNotification());
}

CATNotification* CATDlgCheckButton::GetChkBModifyNotification() {
    return Event<CATDlgChkBModifyNotification>();
}
