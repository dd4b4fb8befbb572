#ifndef OrvKvToleranceSub_H
#define OrvKvToleranceSub_H

#include "CATDlgFrame.h"
#include "CATEventSubscriber.h"
#include "CATICkeParm.h"
#include "CATListValCATUnicodeString.h"
#include "CATString.h"

class CATDlgCombo;
class CATDlgContainer;
class CATDlgLabel;
class CATDlgRadioButton;

// Edits the tolerance of a length or an angle: plus/minus with two free deviations, symmetric plus/minus, or
// an ISO 286 fit, a group and a field whose deviations the command computes. What is entered is written into
// the parameter at once. Fits are reported with OrvKvParameterEditISOFittingNotification,
// OrvKvParameterEditISOFittingGroupSelectNotification, OrvKvParameterEditISOFittingFieldSelectNotification
// and OrvKvParameterEditUpdateISOFittingValuesNotification; the command answers with SetToleranceGroups,
// SetToleranceFields and SetFittingVals.
//
// Who hears the panel may choose another mode while one is being entered; so does the panel itself where a
// value-change event finds a value that has no fit, not above 1 and up to 500. The entry stops there: the
// mode chosen last counts and says what can be edited.
//
// Deviations and values are as stored: mm, or degrees for an angle. The parent owns the frame; who hears it
// and has done with it asks for its delayed destruction. A copy shares the widgets of the original and must
// not outlive them.
class OrvKvToleranceSub : public CATDlgFrame {
  public:
    OrvKvToleranceSub(CATDialog* iParent, const CATICkeParm_var& iParm);
    OrvKvToleranceSub(const OrvKvToleranceSub& iOther);
    OrvKvToleranceSub& operator=(const OrvKvToleranceSub& iOther);
    ~OrvKvToleranceSub() override;

    // Makes the widgets. Called once; a second call makes nothing. An error that is raised meanwhile is
    // shown.
    void Build();

    // Chooses the mode that fits what the parameter has: ISO fit when group and field are known, else
    // symmetric or plus/minus by its deviations. The mode is entered as if the user had chosen it. A null
    // parameter raises the platform's null-handle error. Fails before Build.
    long InitTolerance();
    // Group and field that InitTolerance goes by.
    void SetTolGroupAndField(const CATString& iGroup, const CATString& iField);
    // Writes group and field; a null pointer is left out, and the deviations are never written. Fails when
    // both texts are null.
    long GetFittingInfo(double* oMax, double* oMin, CATString* pTolGroup, CATString* pTolField);

    // Lists the groups and selects iGroup as if the user had; iField is selected by the next
    // SetToleranceFields. Fails before Build.
    long SetToleranceGroups(const CATListValCATUnicodeString& iGroups, const CATString& iGroup,
                            const CATString& iField);
    // Lists the fields and selects the current one, or the first while there is none, as if the user had.
    // Fails before Build.
    long SetToleranceFields(const CATListValCATUnicodeString& iFields);

    // Shows deviations and gives them to the parameter; the minimum only when iWriteMin is set. A flag of 0
    // disables an editor; no flag enables one. Raises the change events of what it sets. It stops where it
    // runs within the entry of a mode and another mode is chosen meanwhile. Fails before Build.
    long SetToleranceValues(double iMax, double iMin, unsigned char iMaxEditable, unsigned char iMinEditable,
                            unsigned char iWriteMin);
    // Shows the deviations of the chosen fit, which the user cannot change, gives them to the parameter and
    // raises its change event; the editors stay as they are where it runs within the entry of a mode and
    // another mode is chosen meanwhile. Fails before Build.
    long SetFittingVals(double iMax, double iMin);

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    enum { TolModeNone = 0, TolModePM = 1, TolModePMSym = 2, TolModeFitting = 3, TolModes = 4 };

    void OnFittingSelect(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void OnPMSymSelect(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void OnPMSelect(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void OnFittingGroupSelNotif(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    void OnFittingFieldSelNotif(CATCommand* iFrom, CATNotification* iNotification, void* iData);
    // Subscribed as long as the panel lives; the others belong to a mode.
    void OnChangeParmValFitting(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
                                CATSubscriberData iData, CATCallback iId);
    void OnChangeParmVal(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
                         CATSubscriberData iData, CATCallback iId);
    void OnChangeMaxValPMSym(CATCallbackEvent iEvent, void* iFrom, CATNotification* iNotification,
                             CATSubscriberData iInfo, CATCallback iId);
    void OnChangeMaxVal(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
                        CATSubscriberData iData, CATCallback iId);
    void OnChangeMinVal(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
                        CATSubscriberData iData, CATCallback iId);

    // What a mode is entered with, from none and from another one. S_FALSE where the entry is overtaken.
    long InitFitting();
    long InitPMSym();
    long InitPM();
    long OnPMToPMSym();
    long OnPMToFitting();
    long OnPMSymToPM();
    long OnPMSymToFitting();
    long OnFittingToPM();
    long OnFittingToPMSym();
    // These two subscribe when iSubscribe is 1 and nothing is subscribed, and unsubscribe otherwise.
    void ReactOnPMModifications(unsigned char iSubscribe);
    void UpdateFittingValuesOnChangeParmEvent(unsigned char iSubscribe);
    void WriteFittingInfo(CATUnicodeString iGroup, CATUnicodeString iField);
    // Whether the deviations of a tolerance, as texts of six digits, differ in their sign alone.
    unsigned char IsToleranceSym(const CATICkeParm_var& iParm);

    void BuildChoices();
    void BuildEditors();
    void LayOut(CATDialog* iChoiceGap, CATDialog* iRowGap);
    void Subscribe();
    bool IsBuilt() const { return _pMinFrm != nullptr; }

    // Answers a radio button that enters iMode when it is checked. iOperation names the callback.
    void SelectMode(const char* iOperation, const CATDlgRadioButton* iRadio, int iMode);
    // Goes from one mode to another. Whatever happens meanwhile, the other one holds afterwards, unless this
    // entry was overtaken.
    long EnterMode(int iFrom, int iMode);
    void ShowAsIn(int iMode);
    // The number of the entry that is under way, 0 outside of one, and whether another one has followed
    // since.
    int EntryUnderWay() const { return _EnteredMode == TolModeNone ? 0 : _Entries; }
    bool IsOvertaken(int iEntry) const { return iEntry != 0 && iEntry != _Entries; }

    // The steps of entries. Those that give a bool say whether the entry goes on.
    bool SetFitWidgetsVisibility(CATULong iVisibility);
    void SetEditorsSensitivity(CATULong iMaximum, CATULong iMinimum);
    void SetSpinnerSteps();
    void UnsubscribeDeviations();
    void SubscribeSymmetry();
    void UnsubscribeSymmetry();
    void ClearFit();
    bool EnterDeviations(double iMax, double iMin, bool iMaxEditable, bool iMinEditable, bool iWriteMin);
    long AskForFit();

    double ParmValue() const;
    bool IsAngle() const;

    CATDlgRadioButton* _pISOFittingRdb; // this widget and the following ones belong to the frame
    CATDlgRadioButton* _pPlusMinusSymmetricalRdb;
    CATDlgRadioButton* _pPlusMinusRdb;
    CATDlgLabel* _pToleranceGroupLab;
    CATDlgCombo* _pToleranceGroupCmb;
    CATDlgLabel* _pToleranceFieldLab;
    CATDlgCombo* _pToleranceFieldCmb;
    CATDlgLabel* _pMaxLab;
    CATDlgFrame* _pMaxFrm;
    CATDlgLabel* _pMinLab;
    CATDlgFrame* _pMinFrm;
    CATICkeParm_var _hIParm;
    CATICkeParm_var _hIMaxLiteral;
    CATICkeParm_var _hIMinLiteral;
    int _CBMaxValPMSym; // subscriptions; -1 for none
    int _CBMaxVal;
    int _CBMinVal;
    CATString _TolGroup; // empty for none, like the field
    CATString _TolField;
    int _TolMode;
    int _CBParmVal;
    int _CBParmValFitting;
    int _EnteredMode; // while an entry is under way; the mode before it still counts then. TolModeNone
                      // otherwise
    int _Entries;     // how many there were
};

#endif
