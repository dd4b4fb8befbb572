#ifndef CATDlgEditor_H
#define CATDlgEditor_H

#include "CATDlgControl.h"

#include <vector>

// A person cannot type; several lines.
const CATDlgStyle CATDlgEdtReadOnly = 0x4000000;
const CATDlgStyle CATDlgEdtMultiline = 0x80000;

// A field for text. Lines count from 0; an empty editor has none.
class CATDlgEditor : public CATDlgControl {
    CATDeclareClass;

  public:
    CATDlgEditor(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    // Replaces line iLine, or appends where iLine is the number of lines or the mode is CATDlgDataAdd. A line
    // beyond changes nothing.
    void SetLine(const CATUnicodeString& iText, int iLine = 0, CATULong iMode = CATDlgDataModify);
    // The whole text; each line break begins a line, and the empty text has no line.
    void SetText(const CATUnicodeString& iText);
    CATUnicodeString GetText() const;
    // Line iLine, or the whole text for -1; empty for a line that is not there.
    void GetLine(CATUnicodeString& oText, int iLine) const;
    // Removes a line; -1 the last one. A line that is not there changes nothing.
    void ClearLine(int iLine);
    int GetLineCount() const { return static_cast<int>(_lines.size()); }

    void SetVisibleTextHeight(int iLines);
    void SetVisibleTextWidth(int iCharacters);
    // Longest text that a person can type, in characters; 0 for any.
    void SetMaxTextWidth(int iCharacters);

    // Sent when a person has changed the text, and when the field is left.
    CATNotification* GetEditModifyNotification();
    CATNotification* GetEditFocusOutNotification();

  private:
    friend class host::Inspector;

    std::vector<CATUnicodeString> _lines;
    int _visibleHeight = 0;
    int _visibleWidth = 0;
    int _maximumWidth = 0;
};

#endif
