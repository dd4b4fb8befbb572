#include "CATDlgCombo.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"
#include "WidgetEvents.h"
#include "host/DialogObserver.h"
#include "host/FaultPoints.h"

#include <algorithm>
#include <utility>

CATImplementClass(CATDlgCombo, Implementation, CATDlgControl, CATNull);

CATDlgCombo::CATDlgCombo(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgControl(iParent, iName, iStyle) {}

void CATDlgCombo::SetLine(const CATUnicodeString& iText, int iLine, CATULong iMode) {
    SetLine(CATUnicodeString(iText), iLine, iMode);
}

void CATDlgCombo::SetLine(CATUnicodeString&& ioText, int iLine, CATULong iMode) {
    const int count = GetLineCount();
    const bool isAdded = iMode == CATDlgDataAdd;
    if (isAdded && (iLine == -1 || iLine == count)) {
        _lines.push_back(std::move(ioText));
    } else if (iLine < 0 || iLine >= count) {
        return;
    } else if (isAdded) {
        _lines.insert(_lines.begin() + iLine, std::move(ioText));
        if (_selected >= iLine)
            ++_selected;
    } else {
        _lines[static_cast<std::size_t>(iLine)] = std::move(ioText);
    }
    NoteChange(host::ChangeContent);
}

void CATDlgCombo::GetLine(CATUnicodeString& oText, int iLine) const {
    if (iLine >= 0 && iLine < GetLineCount())
        oText = _lines[static_cast<std::size_t>(iLine)];
    else
        oText = CATUnicodeString();
}

void CATDlgCombo::ClearLine(int iLine) {
    if (iLine == -1) {
        _lines.clear();
        _selected = -1;
    } else if (iLine >= 0 && iLine < GetLineCount()) {
        _lines.erase(_lines.begin() + iLine);
        if (_selected == iLine)
            _selected = -1;
        else if (_selected > iLine)
            --_selected;
    } else {
        return;
    }
    NoteChange(host::ChangeContent | host::ChangeSelection);
}

void CATDlgCombo::SetSelect(int iLine, int iNotify) {
    if (host::FaultPoints::FailsByName("combo selection"))
        CATThrow(new CATInternalError("ComboSelection", "CATDialog"));
    if (iLine < 0 || iLine >= GetLineCount())
        return;
    Store(_selected, iLine, host::ChangeSelection);
    if (iNotify == CATDlgWithNotification)
        SendEvent(GetComboSelectNotification());
}

void CATDlgCombo::SetSelect(const CATUnicodeString& iText, int iNotify) {
    const auto found = std::find(_lines.begin(), _lines.end(), iText);
    if (found != _lines.end())
        SetSelect(static_cast<int>(found - _lines.begin()), iNotify);
}

void CATDlgCombo::SetVisibleTextHeight(int iLines) {
    Store(_visibleHeight, iLines, host::ChangeLayout);
}

void CATDlgCombo::SetVisibleTextWidth(int iCharacters) {
    Store(_visibleWidth, iCharacters, host::ChangeLayout);
}

CATNotification* CATDlgCombo::GetComboSelectNotification() {
    return Event<CATDlgComboSelectNotification>();
}

CATNotification* CATDlgCombo::GetComboDropNotification() {
    return Event<CATDlgComboDropNotification>();
}
