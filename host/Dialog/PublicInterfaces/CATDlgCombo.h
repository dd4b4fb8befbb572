#ifndef CATDlgCombo_H
#define CATDlgCombo_H

#include "CATDlgControl.h"

#include <vector>

// Closed field with an arrow; style 0 shows its list all the time.
const CATDlgStyle CATDlgCmbDropDown = 0x40000;

// A choice from a list of lines, which count from 0. Adding lines selects nothing.
class CATDlgCombo : public CATDlgControl {
    CATDeclareClass;

  public:
    CATDlgCombo(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    // CATDlgDataAdd: appends for -1, inserts before line iLine otherwise. CATDlgDataModify: replaces line
    // iLine. A line beyond changes nothing.
    void SetLine(const CATUnicodeString& iText, int iLine = -1, CATULong iMode = CATDlgDataAdd);
    // The same for a text that was made for the line alone; saves its copy.
    void SetLine(CATUnicodeString&& ioText, int iLine = -1, CATULong iMode = CATDlgDataAdd);
    // Empty for a line that is not there.
    void GetLine(CATUnicodeString& oText, int iLine) const;
    int GetLineCount() const { return static_cast<int>(_lines.size()); }
    // Removes a line, or all of them for -1. The selection goes with its line.
    void ClearLine(int iLine = -1);

    // The selected line, or -1.
    int GetSelect() const { return _selected; }
    // Selects a line. A line or text that is not there changes nothing and sends nothing; the line that is
    // selected already is notified again when notification is asked for.
    void SetSelect(int iLine, int iNotify = CATDlgNoNotification);
    void SetSelect(const CATUnicodeString& iText, int iNotify = CATDlgNoNotification);

    void SetVisibleTextHeight(int iLines);
    void SetVisibleTextWidth(int iCharacters);

    // Sent when a line is selected, and when the list opens.
    CATNotification* GetComboSelectNotification();
    CATNotification* GetComboDropNotification();

  private:
    friend class host::Inspector;

    std::vector<CATUnicodeString> _lines;
    int _selected = -1;
    int _visibleHeight = 0;
    int _visibleWidth = 0;
};

#endif
