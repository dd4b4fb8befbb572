#ifndef CATDlgMultiList_H
#define CATDlgMultiList_H

#include "CATDlgControl.h"

namespace host {
class TextTable;
struct MultiListState;
} // namespace host

// Several lines can be selected.
const CATDlgStyle CATDlgLstMultisel = 0x40000;

// A list of lines with columns. Lines and columns count from 0.
class CATDlgMultiList : public CATDlgControl {
    CATDeclareClass;

  public:
    CATDlgMultiList(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);
    CATDlgMultiList(const CATDlgMultiList& iOther);
    CATDlgMultiList& operator=(const CATDlgMultiList& iOther);
    ~CATDlgMultiList() override;

    // Fixes the number of columns; done once in the life of a list, later calls change nothing. Without
    // titles a list has as many columns as were written, 256 at most.
    void SetColumnTitles(int iCount, const CATUnicodeString* iTitles);
    int GetColumnCount() const;
    // Empty for a column that is not there.
    void GetColumnTitle(int iColumn, CATUnicodeString& oTitle) const;
    void SetVisibleColumnCount(int iCount);
    void SetColumnTextWidth(int iColumn, int iCharacters);

    // CATDlgDataAdd: column 0 appends a line, another column writes into the last line, which is made when
    // there is none; iLine is not looked at. CATDlgDataModify: writes into line iLine; one that is not there
    // changes nothing. A column that cannot be there changes nothing.
    void SetColumnItem(int iColumn, const CATUnicodeString& iText, int iLine = -1,
                       CATULong iMode = CATDlgDataAdd);
    // Empty for a cell that was never written or is not there.
    void GetColumnItem(int iColumn, CATUnicodeString& oText, int iLine) const;
    // Removes a line, or all of them for -1.
    void ClearLine(int iLine = -1);
    int GetLineCount() const;

    int GetSelectCount() const;
    // The first iCount selected lines, in ascending order; the rest of oLines gets -1.
    void GetSelect(int* oLines, int iCount) const;
    // Replaces the selection; a count of 0 clears it. Lines that are not there are left out, and where none
    // is left nothing changes and nothing is sent; a list without multi-selection takes the first line alone.
    void SetSelect(int* iLines, int iCount, int iNotify = CATDlgNoNotification);
    void ClearSelect();
    // Column of the double click that was reported last, or -1.
    int GetActivatedColumn() const;

    void SetVisibleTextHeight(int iLines);
    void SetVisibleTextWidth(int iCharacters);

    // Sent when lines are selected, when a line is double-clicked and when a cell is double-clicked.
    CATNotification* GetListSelectNotification();
    CATNotification* GetListActivateNotification();
    CATNotification* GetListColumnActivateNotification();
    CATNotification* GetListCellModifyNotification();

  private:
    friend class host::DialogUser;
    friend class host::Inspector;

    host::MultiListState* _state; // owned
};

#endif
