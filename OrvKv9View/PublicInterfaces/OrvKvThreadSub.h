#ifndef OrvKvThreadSub_H
#define OrvKvThreadSub_H

#include "CATDlgFrame.h"
#include "CATICkeParamFrame.h"
#include "CATICkeParm.h"
#include "CATListValCATUnicodeString.h"
#include "CATRawColldouble.h"

class CATDlgCombo;
class CATDlgLabel;
class CATDlgRadioButton;

// Shows the thread of the feature: its type, a standard's name or "No Standard", diameter, internal diameter,
// length, pitch and direction. The values are parameters of the feature, edited in place. What the user does
// is reported with OrvKvThreadTypeNotification, OrvKvThreadDiameterNotification and, once the feature is to
// take the thread as shown, OrvKvThreadTakeNotification.
//
// The parent owns it. A copy shares the widgets of the original and must not outlive them.
class OrvKvThreadSub : public CATDlgFrame {
  public:
    explicit OrvKvThreadSub(CATDialog* iFather);
    OrvKvThreadSub(const OrvKvThreadSub& iOther);
    OrvKvThreadSub& operator=(const OrvKvThreadSub& iOther);
    ~OrvKvThreadSub() override;

    // Makes the widgets and asks for their data with OrvKvThreadInitNotification. Called once; a second call
    // makes and sends nothing.
    void Build();

    // Lists "No Standard" and the types, and selects entry iSelected of iTypes (from 0), as if the user had
    // chosen it when iNotify is 1, or "No Standard", silently, for -1. Fails before Build. An error that is
    // raised meanwhile becomes the failing result.
    long SetThreadTypes(const CATListValCATUnicodeString& iTypes, int iSelected, unsigned char iNotify);
    // Lists the diameters and selects line iSelected (from 0) in the same way. Without a standard type there
    // is no list: nothing changes then, and that is no failure.
    long SetThreadDims(const CATListValCATUnicodeString& iDims, int iSelected, unsigned char iNotify);
    // Gives the parameters the first value of each list, in mm. With an empty list nothing changes. Succeeds
    // always.
    long SetThreadValues(const CATRawColldouble& iPitches, const CATRawColldouble& iInternalDiameters,
                         const CATRawColldouble& iDiameters);
    // Checks the left handed button for "LH" and "Left_Threaded", the right handed one for "RH" and
    // "Right_Threaded", as if the user had; any other text changes nothing. Fails before Build. An error that
    // is raised meanwhile becomes the failing result.
    long SetThreadDirection(const CATUnicodeString& iDirection);
    // Shows the parameters in editors; without a standard type the user may change diameters and pitch. Fails
    // without an error object, and changes nothing, when one of the first three is null; a null pitch raises
    // the null-handle error. Fails before Build.
    long SetThreadPanelParameters(const CATICkeParm_var& iInternalDiameter, const CATICkeParm_var& iDiameter,
                                  const CATICkeParm_var& iLength, const CATICkeParm_var& iPitch);
    // Lists types and diameters anew, silently, and shows the control for the diameter that fits the type. A
    // negative iSelectedDim leaves the diameters as they are. Succeeds always, but raises the null-handle
    // error where the editor of the diameter is to be shown and its parameter was never given.
    long RebuildThreadPanel(const CATListValCATUnicodeString& iTypes, int iSelectedType,
                            const CATListValCATUnicodeString& iDims, int iSelectedDim);
    // Lets the feature take the thread as it is shown now. Succeeds always.
    long SetAsStandardThread();

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    void OnSelectThreadType(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void OnSelectThreadDiameter(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void OnModifyThreadDirection(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    // Shows a combo for the diameter of a standard thread, and the editor of the parameter for another one.
    void UpdatePanelAccordingToThreadType();
    void ShowDiameterCombo();
    void ShowDiameterEditor();
    // Reports the thread as it is, once diameter, internal diameter and pitch are there.
    void OnActivateTake();

    void BuildRows();
    void BuildDirections(CATDlgFrame* iFrame);
    // A combo or button that is not there (null) is left out.
    void SubscribeSelect(CATDlgCombo* iCombo, CATCommandMethod iMethod);
    void UnsubscribeSelect(CATDlgCombo* iCombo);
    void SubscribeModify(CATDlgRadioButton* iButton);
    void UnsubscribeModify(CATDlgRadioButton* iButton);

    CATDlgFrame* _pStandardThreadFrm; // this widget and the following ones belong to the frame
    CATDlgLabel* _pThreadTypeLab;
    CATDlgCombo* _pThreadTypeCmb;
    CATUnicodeString _ThreadType; // a standard's name, "No Standard", or empty for the same
    CATDlgFrame* _pThreadDiaFrm;
    CATDlgLabel* _pDiameterLab;
    CATDlgCombo* _pDiameterCmb; // for a standard type alone; one of it and the editor is there
    CATDialog* _pDiameterEditor;
    CATUnicodeString _Diameter; // the designation chosen last
    CATDlgFrame* _pPitchFrm;
    CATDlgLabel* _pThreadPitchLab;
    CATDialog* _pPitchEditor;
    CATRawColldouble _Pitches; // these three stay empty
    CATRawColldouble _InternalDiameters;
    CATRawColldouble _Diameters;
    CATDlgRadioButton* _pLeftHandedRdb;
    CATDlgRadioButton* _pRightHandedRdb;
    CATDlgFrame* _pThreadLengthFrm;
    CATDlgLabel* _pLengthLab;
    CATDialog* _pLengthEditor;
    CATDlgFrame* _pInternalDiaFrm;
    CATDlgLabel* _pIntDiamLab;
    CATDialog* _pInternalDiameterEditor;
    CATICkeParamFrame_var _spDiameterParm;
    CATICkeParamFrame_var _spInternalDiameterParm;
    CATICkeParamFrame_var _spLengthParm;
    CATICkeParamFrame_var _spPitchParm;
    CATUnicodeString _Direction; // "LH" or "RH" once the user has chosen
};

#endif
