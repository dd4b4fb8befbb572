// The place of widgets in their container, as it is asked for.

#include "CATDialog.h"

#include "DialogExtras.h"
#include "host/DialogObserver.h"

#include <algorithm>
#include <cstdarg>

namespace {

// Runs iAction for each widget of a list that ends with a null pointer.
template<class Action>
void ForEach(CATDialog* iFirst, va_list ioOthers, const Action& iAction) {
    for (CATDialog* child = iFirst; child != nullptr; child = va_arg(ioOthers, CATDialog*))
        iAction(*child);
}

void SetFlag(std::vector<int>& ioNumbers, int iNumber, bool iIsSet) {
    const auto found = std::find(ioNumbers.begin(), ioNumbers.end(), iNumber);
    if (iIsSet && found == ioNumbers.end())
        ioNumbers.push_back(iNumber);
    if (!iIsSet && found != ioNumbers.end())
        ioNumbers.erase(found);
}

} // namespace

void CATDialog::SetDefaultOrientation(CATDlgOrientation iOrientation) {
    Store(_orientation, iOrientation, host::ChangeLayout);
}

void CATDialog::SetHorizontalAttachment(int iTab, CATDlgAttachment iMode, CATDialog* iFirst, ...) {
    va_list others;
    va_start(others, iFirst);
    ForEach(iFirst, others, [this, iTab, iMode](CATDialog& ioChild) {
        if (ioChild._parent == this)
            Attach(ioChild._rows, iTab, iMode);
    });
    va_end(others);
}

void CATDialog::SetVerticalAttachment(int iTab, CATDlgAttachment iMode, CATDialog* iFirst, ...) {
    va_list others;
    va_start(others, iFirst);
    ForEach(iFirst, others, [this, iTab, iMode](CATDialog& ioChild) {
        if (ioChild._parent == this)
            Attach(ioChild._columns, iTab, iMode);
    });
    va_end(others);
}

void CATDialog::Attach(TabPlace& ioPlace, int iTab, CATDlgAttachment iMode) {
    const bool isTrailing = iMode == CATDlgRightOrBottom || iMode == CATDlgRightOrBottomRelative;
    if (isTrailing) {
        ioPlace.trailing = iTab;
        ioPlace.hasTrailing = true;
        ioPlace.stretches = iMode == CATDlgRightOrBottomRelative;
    } else {
        ioPlace.leading = iTab;
        ioPlace.hasLeading = true;
        ioPlace.isCentred = iMode == CATDlgCenter;
    }
    NoteChange(host::ChangeLayout);
}

void CATDialog::ResetAttachment(CATDialog* iFirst, ...) {
    va_list others;
    va_start(others, iFirst);
    ForEach(iFirst, others, [this](CATDialog& ioChild) {
        if (ioChild._parent != this)
            return;
        ioChild._rows = TabPlace();
        ioChild._columns = TabPlace();
    });
    va_end(others);
    NoteChange(host::ChangeLayout);
}

void CATDialog::Attach4Sides(CATDialog* iChild) {
    if (iChild == nullptr || iChild->_parent != this)
        return;
    for (TabPlace* place : {&iChild->_columns, &iChild->_rows}) {
        Attach(*place, 0, CATDlgTopOrLeft);
        Attach(*place, 1, CATDlgRightOrBottomRelative);
    }
}

void CATDialog::SetGridConstraints(const CATDlgGridConstraints& iConstraints) {
    Extras().gridConstraints = iConstraints;
    if (_parent != nullptr)
        _parent->NoteChange(host::ChangeLayout);
}

void CATDialog::SetGridConstraints(int iRow, int iColumn, int iHorizontalSpan, int iVerticalSpan,
                                   unsigned int iJustification) {
    SetGridConstraints(CATDlgGridConstraints(static_cast<short>(iRow), static_cast<short>(iColumn),
                                             static_cast<short>(iHorizontalSpan),
                                             static_cast<short>(iVerticalSpan), iJustification));
}

void CATDialog::SetGridRowResizable(int iRow, int iFlag) {
    SetFlag(Extras().resizableRows, iRow, iFlag != 0);
    NoteChange(host::ChangeLayout);
}

void CATDialog::SetGridColumnResizable(int iColumn, int iFlag) {
    SetFlag(Extras().resizableColumns, iColumn, iFlag != 0);
    NoteChange(host::ChangeLayout);
}
