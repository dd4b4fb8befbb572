#include "CATDlgEditor.h"

#include "WidgetEvents.h"
#include "host/DialogObserver.h"

#include <algorithm>
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
    const std::string text = iText.ConvertToChar();
    for (std::size_t begin = 0; !text.empty() && begin <= text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        _lines.emplace_back(text.substr(begin, end - begin).c_str());
        begin = end + 1;
    }
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
    Store(_visibleHeight, iLines, host::ChangeLayout);
}

void CATDlgEditor::SetVisibleTextWidth(int iCharacters) {
    Store(_visibleWidth, iCharacters, host::ChangeLayout);
}

void CATDlgEditor::SetMaxTextWidth(int iCharacters) {
    Store(_maximumWidth, iCharacters, host::ChangeLayout);
}

CATNotification* CATDlgEditor::GetEditModifyNotification() {
    return Event<CATDlgEditModifyNotification>();
}

CATNotification* CATDlgEditor::GetEditFocusOutNotification() {
    return Event<CATDlgEditFocusOutNotification>();
}
