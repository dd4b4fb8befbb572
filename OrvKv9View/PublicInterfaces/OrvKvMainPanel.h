#ifndef OrvKvMainPanel_H
#define OrvKvMainPanel_H

#include "CATDlgDialog.h"
#include "CATICkeParm.h"
#include "CATListValCATBaseUnknown_var.h"
#include "CATListValCATString.h"
#include "CATListValCATUnicodeString.h"
#include "CATRawColldouble.h"
#include "CATRawCollint.h"

class CATDlgEditor;
class CATDlgFrame;
class CATDlgLabel;
class CATDlgPushButton;
class CATPixelImage;
class OrvKvGroupAndGeometrySub;
class OrvKvParameterListSub;
class OrvKvParameterSetListSub;
class OrvKvTabContainer;
class OrvKvTypeAndParameterSetSub;

// The dialog of the feature command: group and geometry, type and parameter set above; below, where the user
// can fold it away, the parameters or the parameter sets beside the pages with drawing and thread; at the
// bottom the messages of the rules with a traffic light.
//
//     OrvKvMainPanel* const panel = new OrvKvMainPanel(0, 0);
//     panel->Build();
//     panel->SetGroups(&groups, 1);
//     panel->SetVisibility(CATDlgShow);
//
// The dialog tree owns it. It holds no data of the feature: its setters hand them to the panel that shows
// them. What the user does is reported by those panels; the dialog itself reports nothing but the two changes
// of state that it is asked to. It remembers its place among the add-in's preferences, and whether it is
// folded for as long as the process lives.
//
// Before Build there is no panel to hand anything to: a setter that reports that says so below, every other
// one does nothing and succeeds.
class OrvKvMainPanel : public CATDlgDialog {
  public:
    // iMode 1: the lower part shows the parameter sets of the type (parameter-set mode); any other value: the
    // parameters of the feature (parameter mode). iListFlag is handed to OrvKvParameterListSub. The parent is
    // the application's main window.
    OrvKvMainPanel(unsigned char iMode, unsigned char iListFlag);
    OrvKvMainPanel(const OrvKvMainPanel& iOther);
    OrvKvMainPanel& operator=(const OrvKvMainPanel& iOther);
    ~OrvKvMainPanel() override;

    // Makes the widgets. Called once, right after construction; a second call makes nothing.
    void Build();

    // These hand their arguments on to the panel that they concern, and fail where it fails or is missing.
    long SetGroups(const CATListValCATString* const iGroupKeys, int iSelected);
    long SetFeatureTypes(int iGroupNo, int iTypeNo, const CATListValCATString* const iTypes);
    long SetParameterSetNames(const CATListValCATUnicodeString& iNames, int iSelected);
    // Fails where the panel is missing alone.
    long UnselectParameterSet(unsigned char iFlag);
    // Succeeds always; the image stays the caller's.
    long SetFeatureDrawing(const CATPixelImage* iImage, const CATUnicodeString& iText);
    // iA to iD are the flags of the parameters: value shown, value editable, tolerance shown, tolerance
    // editable. The set name is used in parameter-set mode alone, the flags in parameter mode alone. Fails
    // where the list fails or is missing.
    long SetParameters(const CATUnicodeString& iSetName, const CATListValCATString& iNames,
                       const CATListValCATBaseUnknown_var& iParms, const CATListValCATUnicodeString& iValues,
                       const CATRawCollint& iA, const CATRawCollint& iB, const CATRawCollint& iC,
                       const CATRawCollint& iD);
    // Columns, and one set more. In parameter mode these two do nothing and succeed; in parameter-set mode
    // they fail where the list of sets fails or is missing.
    long SetParameterNames(const CATListValCATBaseUnknown_var& iParms, const CATListValCATString& iNames,
                           const CATRawCollint& iA, const CATRawCollint& iB, const CATRawCollint& iC,
                           const CATRawCollint& iD);
    long SetParameterSet(const CATUnicodeString& iSetName, const CATListValCATString& iNames,
                         const CATListValCATBaseUnknown_var& iParms,
                         const CATListValCATUnicodeString& iValues);
    // A fit beside its parameter. Fails where the parameter list fails; without one it does nothing and
    // succeeds.
    long SetFittingInfo(const CATString& iKey, const CATUnicodeString& iText);
    // Does nothing and succeeds; SetInputGeometryUI shows the text of an input.
    long SetGeometryText(int iIndex, CATUnicodeString iText);
    // Text and visibility (CATDlgShow or CATDlgHide) of input iIndex, from 1. Gives 0 always.
    long SetInputGeometryUI(int iIndex, unsigned long iFlags, CATUnicodeString iText);
    // The set chosen where it can be chosen now; empty for none.
    CATUnicodeString GetSelectedParameterSetName();

    // Lets the user choose group and type or not: CATDlgEnable or CATDlgDisable.
    void DisableGroupAndType(const unsigned long& iWhat);
    void DisableInsertionDirection();

    // These do what the operation of OrvKvTabContainer does.
    void SetThread(unsigned char iThreadActive, unsigned char iSecond);
    void SetThreadTypes(const CATListValCATUnicodeString& iTypes, int iSelected, unsigned char iNotify);
    void SetThreadDims(const CATListValCATUnicodeString& iDims, int iSelected, unsigned char iNotify);
    void SetThreadValues(const CATRawColldouble& iPitches, const CATRawColldouble& iInternalDiameters,
                         const CATRawColldouble& iDiameters);
    void SetThreadDirection(const CATUnicodeString& iDirection);
    void SetThreadPanelParameters(const CATICkeParm_var& iInternalDiameter, const CATICkeParm_var& iDiameter,
                                  const CATICkeParm_var& iLength, const CATICkeParm_var& iPitch);
    void RebuildThreadPanel(const CATListValCATUnicodeString& iTypes, int iSelectedType,
                            const CATListValCATUnicodeString& iDims, int iSelectedDim);

    // Report OrvKvTriggerStateChangeToValidNotification or OrvKvTriggerStateChangeToInvalidNotification.
    void TriggerStateChangeToValid();
    void TriggerStateChangeToInvalid();

    // Shows the messages of the rules, one a line, instead of those before.
    void UpdateRuleEditor(CATListValCATUnicodeString iLines);
    // The traffic light: 1 a rule is broken, 2 a warning, any other value all is well.
    void SetColorIcon(int iState);

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    // The steps of Build.
    void BuildList();
    void BuildBottom();
    void BuildRules();
    void LayOutDialog(CATDlgFrame* iGroupFrame);
    void LayOutLowerPart();
    void BuildUpperPart(CATDlgFrame* iGroupFrame);
    void ListenToMoreLess();

    void ActOnWinMove(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void ActOnMoreLessSelection(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void Fold();
    void Unfold();
    // Gives the button the text of that key.
    void TitleMoreLess(const CATString& iKey);
    // Forgets where the frames below the first one lie.
    void DetachLowerFrames();

    static unsigned char _Expanded; // 1: the lower part is shown; for all panels

    unsigned char _Mode;
    OrvKvGroupAndGeometrySub* _pGroupAndGeometrySub; // this and the following ones belong to the dialog
    OrvKvTypeAndParameterSetSub* _pTypeAndParameterSetSub;
    CATDlgFrame* _pCombineLowerFrm;
    OrvKvTabContainer* _pTabContainer;
    OrvKvParameterSetListSub* _pParameterSetListSub; // in parameter-set mode alone
    OrvKvParameterListSub* _pParameterListSub;       // in parameter mode alone
    CATDlgFrame* _pRulesFrm;
    CATDlgEditor* _pRulesEditor;
    CATDlgLabel* _pRulesLightLab;
    CATDlgFrame* _pBottomFrm;
    CATDlgLabel* _pBottomSpacerLab;
    CATDlgPushButton* _pMoreLessButton;
    unsigned char _WantMoreLess;
    unsigned char _ListFlag;
};

#endif
