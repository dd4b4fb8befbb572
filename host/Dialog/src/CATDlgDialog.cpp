#include "CATDlgDialog.h"

#include "PowerInput.h"
#include "WidgetEvents.h"
#include "host/DialogObserver.h"
#include "host/Inspector.h"

CATImplementClass(CATDlgDialog, Implementation, CATDlgWindow, CATNull);

CATDlgDialog::CATDlgDialog(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgWindow(iParent, iName, iStyle), _defaultButton(host::Inspector::FirstDefaultButton(iStyle)) {}

CATDlgDialog::~CATDlgDialog() {
    host::PowerInput::Release(*this);
}

void CATDlgDialog::SetDefaultButton(CATULong iButton) {
    Store(_defaultButton, iButton, host::ChangeState);
}

CATNotification* CATDlgDialog::GetDiaOKNotification() {
    return Event<CATDlgDiaOKNotification>();
}

CATNotification* CATDlgDialog::GetDiaCANCELNotification() {
    return Event<CATDlgDiaCANCELNotification>();
}

CATNotification* CATDlgDialog::GetDiaAPPLYNotification() {
    return Event<CATDlgDiaAPPLYNotification>();
}

CATNotification* CATDlgDialog::GetDiaCLOSENotification() {
    return Event<CATDlgDiaCLOSENotification>();
}

CATNotification* CATDlgDialog::GetDiaHELPNotification() {
    return Event<CATDlgDiaHELPNotification>();
}

void CATDlgDialog::SetPowerInputLink(int iLinked) {
    _powerInputLinked = iLinked;
}

void CATDlgDialog::UpdatePowerInput() {
    ++_powerInputUpdates;
}

void CATDlgDialog::TakePowerInputFocus() {
    host::PowerInput::Take(*this);
}

void CATDlgDialog::ReleasePowerInputFocus() {
    host::PowerInput::Release(*this);
}
