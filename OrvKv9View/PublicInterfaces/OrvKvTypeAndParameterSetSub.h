#ifndef OrvKvTypeAndParameterSetSub_H
#define OrvKvTypeAndParameterSetSub_H

#include "CATDlgFrame.h"
#include "CATListValCATString.h"
#include "CATListValCATUnicodeString.h"

class CATDlgCombo;
class OrvKvTypeSub;

// Shows the feature types of a group and, below, the names of the parameter sets, and reports a chosen set
// with OrvKvParameterSetSelectedNotification. The chosen type is reported by the type frame in it.
//
// The parent owns it. A copy shares the widgets of the original and must not outlive them.
class OrvKvTypeAndParameterSetSub : public CATDlgFrame {
  public:
    // iMode is the main panel's: in any mode but 0 the parameter set combo starts hidden.
    OrvKvTypeAndParameterSetSub(CATDialog* iParent, unsigned char iMode);
    OrvKvTypeAndParameterSetSub(const OrvKvTypeAndParameterSetSub& iOther);
    OrvKvTypeAndParameterSetSub& operator=(const OrvKvTypeAndParameterSetSub& iOther);
    ~OrvKvTypeAndParameterSetSub() override;

    // Makes the type frame and the combo. Called once; a second call makes nothing.
    void Build();

    // Lists the types of group iGroupNo (1 or more) and selects number iTypeNo (from 1) as if the user had
    // chosen it. Fails, and changes nothing, when the group number is below 1 or the panel is not built. A
    // null list changes nothing and is no failure; nor is an error that is raised while the choice is
    // reported.
    long SetFeatureTypes(int iGroupNo, int iTypeNo, const CATListValCATString* const iTypes);

    // Lists the names and selects line iSelected (from 0; the first one for a negative number) as if the user
    // had chosen it; a line that is not there selects nothing. Fails when the panel is not built. An error
    // that is raised while the choice is reported becomes the failing result; the names are listed then.
    long SetParameterSetNames(const CATListValCATUnicodeString& iNames, int iSelected);

    // Goes back to the first set without telling anybody. iFlag is not used.
    long UnselectParameterSet(unsigned char iFlag);

    // Lets the user choose a type or not: CATDlgEnable or CATDlgDisable.
    void DisableTypes(const unsigned long& iWhat);

    // The name of the selected set; empty when there is none.
    CATUnicodeString GetSelectedParameterSetName();

    void ShowParameterSetSelector();
    void HideParameterSetSelector();

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    void OnParmSetCmbSel(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    // As many visible lines as there are, up to a limit.
    void AdjustTextHeight(CATDlgCombo* iCombo, int iCount);
    // Selects a line and notifies; the first one for a negative line.
    void SelectCombo(CATDlgCombo* iCombo, int iIndex);

    unsigned char _Mode;
    OrvKvTypeSub* _pTypeSub;        // child of this frame
    CATDlgCombo* _pParameterSetCmb; // child of this frame
};

#endif
