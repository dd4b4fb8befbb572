#include "CATDlgRadioButton.h"

#include "LifeWatch.h"
#include "WidgetEvents.h"
#include "host/DialogObserver.h"
#include "host/Inspector.h"

CATImplementClass(CATDlgRadioButton, Implementation, CATDlgControl, CATNull);

CATDlgRadioButton::CATDlgRadioButton(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgControl(iParent, iName, iStyle) {
    DrawTitle();
}

CATULong CATDlgRadioButton::GetState() const {
    return _isChecked ? CATDlgCheck : CATDlgUncheck;
}

void CATDlgRadioButton::SetState(CATULong iState, int iNotify) {
    if ((iState != CATDlgCheck && iState != CATDlgUncheck) || iState == GetState())
        return;
    CATDlgRadioButton* const previous = iState == CATDlgCheck ? CheckedOfGroup() : nullptr;
    Change(iState == CATDlgCheck);
    if (previous != nullptr)
        previous->Change(false);
    if (iNotify != CATDlgWithNotification)
        return;
    const host::LifeWatch watch(*this);
    if (previous != nullptr)
        previous->SendEvent(previous->GetRadBModifyNotification());
    if (watch.IsAlive())
        SendEvent(GetRadBModifyNotification());
}

CATNotification* CATDlgRadioButton::GetRadBModifyNotification() {
    return Event<CATDlgRadBModifyNotification>();
}

CATDlgRadioButton* CATDlgRadioButton::CheckedOfGroup() const {
    const CATDialog* const container = host::Inspector::Parent(*this);
    CATDialog* sibling = container == nullptr ? nullptr : host::Inspector::FirstChild(*container);
    for (; sibling != nullptr; sibling = host::Inspector::NextSibling(*sibling)) {
        auto* const button = dynamic_cast<CATDlgRadioButton*>(sibling);
        if (button != nullptr && button->_isChecked)
            return button;
    }
    return nullptr;
}

void CATDlgRadioButton::Change(bool iChecked) {
    _isChecked = iChecked;
    NoteChange(host::ChangeState);
}
