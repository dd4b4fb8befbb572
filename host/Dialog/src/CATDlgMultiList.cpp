#include "CATDlgMultiList.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"
#include "MultiListState.h"
#include "WidgetEvents.h"
#include "host/DialogObserver.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"

#include <algorithm>

CATImplementClass(CATDlgMultiList, Implementation, CATDlgControl, CATNull);

namespace {
constexpr int maximumColumns = 256; // of a list without titles
}

CATDlgMultiList::CATDlgMultiList(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgControl(iParent, iName, iStyle), _state(new host::MultiListState) {}

CATDlgMultiList::CATDlgMultiList(const CATDlgMultiList& iOther)
    : CATDlgControl(iOther), _state(new host::MultiListState(*iOther._state)) {}

CATDlgMultiList& CATDlgMultiList::operator=(const CATDlgMultiList& iOther) {
    CATDlgControl::operator=(iOther);
    const int clearings = _state->clearings + 1;
    *_state = *iOther._state;
    _state->clearings = clearings;
    NoteChange(host::ChangeContent | host::ChangeSelection);
    return *this;
}

CATDlgMultiList::~CATDlgMultiList() {
    delete _state;
}

void CATDlgMultiList::SetColumnTitles(int iCount, const CATUnicodeString* iTitles) {
    if (iCount <= 0 || iTitles == nullptr || !_state->titles.empty())
        return;
    _state->titles.assign(iTitles, iTitles + iCount);
    _state->cells.SetColumns(iCount);
    NoteChange(host::ChangeContent);
}

int CATDlgMultiList::GetColumnCount() const {
    return _state->titles.empty() ? _state->cells.Columns() : static_cast<int>(_state->titles.size());
}

void CATDlgMultiList::GetColumnTitle(int iColumn, CATUnicodeString& oTitle) const {
    const bool isThere = iColumn >= 0 && iColumn < static_cast<int>(_state->titles.size());
    oTitle = isThere ? _state->titles[static_cast<std::size_t>(iColumn)] : CATUnicodeString();
}

void CATDlgMultiList::SetVisibleColumnCount(int iCount) {
    Store(_state->visibleColumns, iCount, host::ChangeLayout);
}

void CATDlgMultiList::SetColumnTextWidth(int iColumn, int iCharacters) {
    if (iColumn < 0)
        return;
    const std::size_t column = static_cast<std::size_t>(iColumn);
    if (column >= _state->columnWidths.size())
        _state->columnWidths.resize(column + 1, 0);
    Store(_state->columnWidths[column], iCharacters, host::ChangeLayout);
}

void CATDlgMultiList::SetColumnItem(int iColumn, const CATUnicodeString& iText, int iLine, CATULong iMode) {
    if (host::FaultPoints::FailsByName("list cell"))
        CATThrow(new CATInternalError("ListCell", "CATDialog"));
    host::TextTable& cells = _state->cells;
    const bool isFixed = !_state->titles.empty();
    if (iColumn < 0 || iColumn >= (isFixed ? static_cast<int>(_state->titles.size()) : maximumColumns))
        return;
    int line = iLine;
    if (iMode == CATDlgDataAdd) {
        if (iColumn == 0 || cells.Rows() == 0)
            cells.AppendRow();
        line = cells.Rows() - 1;
    }
    if (line < 0 || line >= cells.Rows())
        return;
    cells.Set(line, iColumn, std::string_view(iText.ConvertToChar(), iText.GetLengthInByte()));
    NoteChange(host::ChangeContent);
}

void CATDlgMultiList::GetColumnItem(int iColumn, CATUnicodeString& oText, int iLine) const {
    const std::string_view text = _state->cells.Get(iLine, iColumn);
    oText.BuildFromUTF8(text.data() == nullptr ? "" : text.data(), text.size());
}

void CATDlgMultiList::ClearLine(int iLine) {
    std::vector<int>& selected = _state->selected;
    if (iLine == -1) {
        _state->cells.Clear();
        selected.clear();
        ++_state->clearings;
    } else if (iLine >= 0 && iLine < GetLineCount()) {
        _state->cells.RemoveRow(iLine);
        selected.erase(std::remove(selected.begin(), selected.end(), iLine), selected.end());
        for (int& line : selected)
            line -= line > iLine ? 1 : 0;
    } else {
        return;
    }
    NoteChange(host::ChangeContent | host::ChangeSelection);
}

int CATDlgMultiList::GetLineCount() const {
    return _state->cells.Rows();
}

int CATDlgMultiList::GetSelectCount() const {
    return static_cast<int>(_state->selected.size());
}

void CATDlgMultiList::GetSelect(int* oLines, int iCount) const {
    for (int number = 0; oLines != nullptr && number < iCount; ++number)
        oLines[number] = number < GetSelectCount() ? _state->selected[static_cast<std::size_t>(number)] : -1;
}

void CATDlgMultiList::SetSelect(int* iLines, int iCount, int iNotify) {
    std::vector<int> lines;
    for (int number = 0; iLines != nullptr && number < iCount; ++number)
        if (iLines[number] >= 0 && iLines[number] < GetLineCount())
            lines.push_back(iLines[number]);
    if (lines.empty() && iCount > 0)
        return;
    if (!host::Inspector::IsMultiSelection(*this) && lines.size() > 1)
        lines.erase(lines.begin() + 1, lines.end());
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    Store(_state->selected, lines, host::ChangeSelection);
    if (iNotify == CATDlgWithNotification)
        SendEvent(GetListSelectNotification());
}

void CATDlgMultiList::ClearSelect() {
    if (_state->selected.empty())
        return;
    _state->selected.clear();
    NoteChange(host::ChangeSelection);
}

int CATDlgMultiList::GetActivatedColumn() const {
    return _state->activatedColumn;
}

void CATDlgMultiList::SetVisibleTextHeight(int iLines) {
    Store(_state->visibleHeight, iLines, host::ChangeLayout);
}

void CATDlgMultiList::SetVisibleTextWidth(int iCharacters) {
    Store(_state->visibleWidth, iCharacters, host::ChangeLayout);
}

CATNotification* CATDlgMultiList::GetListSelectNotification() {
    return Event<CATDlgListSelectNotification>();
}

CATNotification* CATDlgMultiList::GetListActivateNotification() {
    return Event<CATDlgListActivateNotification>();
}

CATNotification* CATDlgMultiList::GetListColumnActivateNotification() {
    return Event<CATDlgListColumnActivateNotification>();
}

CATNotification* CATDlgMultiList::GetListCellModifyNotification() {
    return Event<CATDlgListCellModifyNotification>();
}
