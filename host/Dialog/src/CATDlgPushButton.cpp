#include "CATDlgPushButton.h"

#include "WidgetEvents.h"

CATImplementClass(CATDlgPushButton, Implementation, CATDlgControl, CATNull);

CATDlgPushButton::CATDlgPushButton(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgControl(iParent, iName, iStyle) {
    DrawTitle();
}

CATNotification* CATDlgPushButton::GetPushBActivateNotification() {
    return Event<CATDlgPushBActivateNotification>();
}
