#ifndef OrvKvTypeSub_H
#define OrvKvTypeSub_H

#include "CATDlgFrame.h"
#include "CATListValCATString.h"

class CATDlgCombo;

// Shows the feature types of one group and reports the user's choice with OrvKvTypeSelectedNotification.
//
// The parent owns it. A copy shares the widgets of the original and must not outlive them.
class OrvKvTypeSub : public CATDlgFrame {
  public:
    explicit OrvKvTypeSub(CATDialog* iParent);
    OrvKvTypeSub(const OrvKvTypeSub& iOther);
    OrvKvTypeSub& operator=(const OrvKvTypeSub& iOther);
    ~OrvKvTypeSub() override;

    // Makes the combo. Called once; a second call makes nothing.
    void Build();

    // Lists the types of group iGroupNo (from 1) under their display names and selects number iTypeNo (from
    // 1) as if the user had chosen it; another number selects nothing. E_FAIL, without an error object and
    // with nothing changed, when iTypes is null or the combo is missing. An error that is raised while the
    // choice is reported becomes the failing result; the types are listed then.
    long SetTypes(int iGroupNo, int iTypeNo, const CATListValCATString* iTypes);

    // Lets the user choose a type or not: CATDlgEnable or CATDlgDisable.
    void DisableTypes(const unsigned long& iWhat);

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    void OnTypeComboSelNotification(CATCommand* iFrom, CATNotification* iNotification, void* iData);

    int _GroupNo;                  // group of the listed types, from 1
    CATDlgCombo* _pTypeCombo;      // child of this frame
    CATListValCATString _TypeKeys; // key i stands in combo line i - 1
};

#endif
