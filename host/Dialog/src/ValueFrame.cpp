#include "host/ValueFrame.h"

#include "LifeWatch.h"
#include "host/DialogObserver.h"

namespace host {

CATImplementClass(ValueFrame, Implementation, CATDlgFrame, CATNull);

ValueFrame::ValueFrame(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgFrame(iParent, iName, iStyle) {
    TakeNoChildren();
}

std::string ValueFrame::Text() const {
    return IsRefused() ? _refused : ShownValue();
}

void ValueFrame::NoteValue() {
    _refused.clear();
    _problem.clear();
    NoteChange(ChangeContent);
}

// Whoever hears of the new value may destroy the frame.
void ValueFrame::Enter(const std::string& iText) {
    if (iText == ShownValue()) {
        Restore(); // digits that are not shown stay
        return;
    }
    const LifeWatch watch(*this);
    const Outcome taken = Take(iText);
    if (!watch.IsAlive())
        return;
    if (taken)
        Restore();
    else
        Keep(iText, taken.reason);
}

void ValueFrame::Keep(const std::string& iText, const std::string& iProblem) {
    if (_refused == iText && _problem == iProblem)
        return;
    _refused = iText;
    _problem = iProblem;
    NoteChange(ChangeContent);
}

void ValueFrame::Restore() {
    if (IsRefused())
        NoteValue();
}

} // namespace host
