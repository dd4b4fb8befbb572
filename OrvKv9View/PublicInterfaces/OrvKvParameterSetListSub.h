#ifndef OrvKvParameterSetListSub_H
#define OrvKvParameterSetListSub_H

#include "CATDlgFrame.h"
#include "CATListValCATBaseUnknown_var.h"
#include "CATListValCATString.h"
#include "CATListValCATUnicodeString.h"
#include "CATRawCollint.h"

class CATDlgMultiList;
class OrvKvNameIndex;
class OrvKvSetCells;

// Two tables: the parameter sets with the values and tolerances of their parameters, and below it the values
// of the set that is edited. A chosen set is reported with OrvKvParameterSetSelectedNotification, followed by
// an OrvKvModifiedParameterInMultiListNotification without name; a double click on a value or tolerance that
// may be edited with OrvKvParameterListDoubleClickedNotification.
//
// The parent owns it. A copy shares the widgets of the original and must not outlive them.
class OrvKvParameterSetListSub : public CATDlgFrame {
  public:
    explicit OrvKvParameterSetListSub(CATDialog* iParent);
    OrvKvParameterSetListSub(const OrvKvParameterSetListSub& iOther);
    OrvKvParameterSetListSub& operator=(const OrvKvParameterSetListSub& iOther);
    ~OrvKvParameterSetListSub() override;

    // Makes the two tables. Called once; a second call makes nothing. Where a table cannot be made, the panel
    // behaves as before Build.
    void Build();

    // Defines the columns and empties both tables. Entry i of each list describes parameter i: a flag above 0
    // shows its value or tolerance, or lets the user edit it. The tables hold 100 columns at most, that of
    // the set names included; what does not fit is not shown. iParameters is not looked at. Fails, and
    // changes nothing, when names and flags differ in length or before Build.
    long SetParameterNames(const CATListValCATBaseUnknown_var& iParameters, const CATListValCATString& iNames,
                           const CATRawCollint& iShowValue, const CATRawCollint& iValueEditable,
                           const CATRawCollint& iShowTolerance, const CATRawCollint& iToleranceEditable);
    // Adds a set to the upper table. Entry i of the lists belongs to parameter i of SetParameterNames; where
    // a list is too short the cells stay empty. An empty tolerance text shows the limits that the parameter
    // itself has. Fails, and changes nothing, when a shown parameter is none or lacks the tolerance that is
    // asked for.
    long SetParameterSet(const CATUnicodeString& iSetName, const CATListValCATString& iNames,
                         const CATListValCATBaseUnknown_var& iParameters,
                         const CATListValCATUnicodeString& iTolerances);
    // Shows the set that is edited, in the same way, and selects the first set of that name, if there is one,
    // without reporting it.
    long SetCurrentParameters(const CATUnicodeString& iSetName, const CATListValCATString& iNames,
                              const CATListValCATBaseUnknown_var& iParameters,
                              const CATListValCATUnicodeString& iTolerances);
    // Does nothing and succeeds: the selection follows SetCurrentParameters.
    long SetSelectedParameterSet(CATListValCATUnicodeString iNames, CATUnicodeString iSelected);
    // The name of the selected set; empty unless exactly one is selected.
    CATUnicodeString GetSelectedParameterSetName();

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    void OnParameterSetSelection(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void OnCurrentParameterEdit(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    // Gives the panel new tables, since the columns of a table are set once; the tables of Build are left as
    // they are the first time. Fails silently, and changes nothing, where a table cannot be made.
    long RefreshMultiLists();

    bool HasTables() const;
    // Make a table, or none, the one of the panel and listen to it; stop listening.
    void UseSetTable(CATDlgMultiList* iTable);
    void UseCurrentTable(CATDlgMultiList* iTable);
    void LeaveSetTable();
    void LeaveCurrentTable();
    // The texts that the tables show under the present flags.
    OrvKvSetCells Cells() const;
    void IndexNames();
    void ShowTitles();

    // Children of this frame and of the frames in it; null before Build.
    CATDlgFrame* _pParameterSetFrame;
    CATDlgMultiList* _pParameterSetMul;
    CATDlgFrame* _pCurrentParameterFrame;
    CATDlgMultiList* _pCurrentParameterMul;
    CATListValCATBaseUnknown_var _Parameters; // stays empty
    CATListValCATString _ParameterNames;      // in column order; the flags below belong to them
    CATRawCollint _ShowValue;
    CATRawCollint _ValueEditable;
    CATRawCollint _ShowTolerance;
    CATRawCollint _ToleranceEditable;
    int _FirstRefresh;           // 1 as long as the tables of Build are unused
    OrvKvNameIndex* _pSetLines;  // name of a set to its first line; owned
    OrvKvNameIndex* _pPositions; // name of a parameter to its first position; owned
};

#endif
