#include "CATDlgProgress.h"

#include "host/DialogObserver.h"

#include <algorithm>

CATImplementClass(CATDlgProgress, Implementation, CATDlgControl, CATNull);

CATDlgProgress::CATDlgProgress(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgControl(iParent, iName, iStyle) {}

void CATDlgProgress::SetRange(int iMinimum, int iMaximum) {
    _minimum = iMinimum;
    _maximum = std::max(iMinimum, iMaximum);
    _position = _minimum;
    NoteChange(host::ChangeContent);
}

void CATDlgProgress::SetStep(int iStep) {
    _step = iStep;
}

void CATDlgProgress::StepIt() {
    const long long position = static_cast<long long>(_position) + _step;
    _position = static_cast<int>(
        std::clamp(position, static_cast<long long>(_minimum), static_cast<long long>(_maximum)));
    NoteChange(host::ChangeContent);
}
