#include "CATDlgEditor.h"

#include "WidgetEvents.h"
#include "host/DialogObserver.h"

#include <sstream>
#include <string>

CATImplementClass(CATDlgEditor, Implementation, CATDlgControl, CATNull);

CATDlgEditor::CATDlgEditor(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgControl(iParent, iName, iStyle) {}

void CATDlgEditor::SetLine(const CATUnicodeString& iText, int iLine, CATULong iMode) {
    const int count = GetLineCount();
    if (iMode == CATDlgDataAdd || iLine == count)
        _lines.push_back(iText);
    else if (iLine >= 0 && iLine < count)
        _lines[static_cast<std::size_t>(iLine)] = iText;
    else
        return;
    NoteChange(host::ChangeContent);
}

void CATDlgEditor::SetText(const CATUnicodeString& iText) {
    _lines.clear();
    std::istringstream lines{std::string(iText.ConvertToChar())};
    for (std::string line; std::getline(lines, line);)
        _lines.emplace_back(line.c_str());
    NoteChange(host::ChangeContent);
}

CATUnicodeString CATDlgEditor::GetText() const {
    CATUnicodeString text;
    for (std::size_t line = 0; line < _lines.size(); ++line) {
        if (line > 0)
            text.Append("\n");
        text.Append(_lines[line]);
    }
    return text;
}

void CATDlgEditor::GetLine(CATUnicodeString& oText, int iLine) const {
    if (iLine == -1)
        oText = GetText();
    else if (iLine >= 0 && iLine < GetLineCount())
        oText = _lines[static_cast<std::size_t>(iLine)];
    else
        oText = CATUnicodeString();
}

void CATDlgEditor::ClearLine(int iLine) {
    const int line = iLine == -1 ? GetLineCount() - 1 : iLine;
    if (line < 0 || line >= GetLineCount())
        return;
    _lines.erase(_lines.begin() + line);
    NoteChange(host::ChangeContent);
}

void CATDlgEditor::SetVisibleTextHeight(int iLines) {
    _visibleHeight = iLines;
    NoteChange(host::ChangeLayout);
}

void CATDlgEditor::SetVisibleTextWidth(int iCharacters) {
    _visibleWidth = iCharacters;
    NoteChange(host::ChangeLayout);
}

void CATDlgEditor::SetMaxTextWidth(int iCharacters) {
    _maximumWidth = iCharacters;
    NoteChange(host::ChangeLayout);
}

CATNotification* CATDlgEditor::GetEditModifyNotification() {
    return Event<CATDlgEditModifyNotification>();
}

CATNotification* CATDlgEditor::GetEditFocusOutNotification() {
    return Event<CATDlgEditFocusOutNotification>();
}
