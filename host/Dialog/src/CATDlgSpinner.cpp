#include "CATDlgSpinner.h"

#include "WidgetEvents.h"
#include "host/DialogObserver.h"

#include <algorithm>
#include <cmath>

CATImplementClass(CATDlgSpinner, Implementation, CATDlgControl, CATNull);

CATDlgSpinner::CATDlgSpinner(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgControl(iParent, iName, iStyle) {}

void CATDlgSpinner::SetMinMaxStep(float iMinimum, float iMaximum, int iStepCount) {
    if (iStepCount <= 0)
        return;
    const double minimum = static_cast<double>(iMinimum);
    const double maximum = static_cast<double>(iMaximum);
    SetMinMaxStep(minimum, maximum, (maximum - minimum) / iStepCount, 0);
}

void CATDlgSpinner::SetMinMaxStep(double iMinimum, double iMaximum, double iStep, int iApply) {
    const bool isRange = std::isfinite(iMinimum) && std::isfinite(iMaximum) && iMinimum <= iMaximum;
    if (!isRange || !std::isfinite(iStep) || iStep <= 0.0)
        return;
    _minimum = iMinimum;
    _maximum = iMaximum;
    _step = iStep;
    _value = std::clamp(_value, _minimum, _maximum);
    if (iApply != 0)
        _value = std::clamp(_minimum + std::round((_value - _minimum) / _step) * _step, _minimum, _maximum);
    NoteChange(host::ChangeContent);
}

void CATDlgSpinner::SetPrecision(int iFixed, int) {
    Store(_precision, iFixed, host::ChangeContent);
}

void CATDlgSpinner::SetValue(double iValue, int iNotify) {
    if (!(iValue >= _minimum && iValue <= _maximum) || iValue == _value)
        return;
    _value = iValue;
    NoteChange(host::ChangeContent);
    if (iNotify == CATDlgWithNotification)
        SendEvent(GetSpinnerModifyNotification());
}

CATNotification* CATDlgSpinner::GetSpinnerModifyNotification() {
    return Event<CATDlgSpinnerModifyNotification>();
}
