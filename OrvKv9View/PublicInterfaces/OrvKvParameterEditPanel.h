#ifndef OrvKvParameterEditPanel_H
#define OrvKvParameterEditPanel_H

#include "CATDlgDialog.h"
#include "CATICkeParm.h"
#include "CATListValCATUnicodeString.h"
#include "CATString.h"

class CATDlgCheckButton;
class CATDlgContainer;
class CATDlgFrame;
class CATDlgLabel;
class OrvKvToleranceSub;

// The dialog in which the user edits one parameter: its value and, for a length or an angle, its tolerance.
// What is entered is in the parameter at once. The command that opens it hears its OK, Apply and Cancel
// buttons, answers what OrvKvToleranceSub reports, and hides or destroys it.
//
//     auto* panel = new OrvKvParameterEditPanel(parameter, "D", "H", "H7", 1, 1);
//     panel->Build();
//     panel->SetVisibility(CATDlgShow);
//
// Deviations are as stored: mm, or degrees for an angle. A copy shares the widgets of the original and must
// not outlive them.
class OrvKvParameterEditPanel : public CATDlgDialog {
  public:
    // A child of the application's main window. iParmKey names the parameter in title and description; group
    // and field are those of its ISO fit, empty for none. A flag of 0 locks the value or the tolerance.
    OrvKvParameterEditPanel(const CATICkeParm_var& iParm, const CATString& iParmKey, const CATString& iGroup,
                            const CATString& iField, const unsigned char& iValueEditable,
                            const unsigned char& iToleranceEditable);
    OrvKvParameterEditPanel(const OrvKvParameterEditPanel& iOther);
    OrvKvParameterEditPanel& operator=(const OrvKvParameterEditPanel& iOther);
    ~OrvKvParameterEditPanel() override;

    // Makes the widgets and takes the focus of the power input. Called once; a second call makes nothing. An
    // error that is raised meanwhile is shown.
    void Build();

    // Writes parameter and key, and group and field of the fit, empty for none. The deviations carry no
    // value: they are in the parameter. Succeeds and writes nothing when a handle, key, group or field is
    // null.
    long GetModifiedParameter(CATICkeParm_var* oParm, CATString* oParmKey, double* oMax, double* oMin,
                              CATString* oGroup, CATString* oField);
    // Writes 1 while the user has a tolerance checked, else 0. Fails for a null pointer.
    long HasTolerance(unsigned char* pState);

    // These go to the tolerance area. Without one, for other magnitudes and before Build, the first three
    // give E_FAIL without an error and the last does nothing. An error that is raised meanwhile is the
    // failing result; SetFittingVals shows it.
    long SetToleranceGroups(const CATListValCATUnicodeString& iGroups, const CATString& iGroup,
                            const CATString& iField);
    long SetToleranceFields(const CATListValCATUnicodeString& iFields);
    // Both limit editors are disabled afterwards.
    long SetToleranceValues(double iMax, double iMin);
    void SetFittingVals(double iMax, double iMin);

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    // Checks the button of a tolerance that is set.
    void ActivateToleranceIfAvailable();
    // Shows and sets up the tolerance area, or hides it and takes the tolerance from the parameter. An error
    // that is raised meanwhile is shown.
    void COMToleranceOnOffCheck(CATCommand* iFrom, CATNotification* iNotification, void* iData);

    void BuildTexts();
    void BuildEditor();
    void BuildToleranceArea();
    void LeaveToleranceOut();
    // Whether the magnitude is one that has tolerances.
    bool HasToleranceArea() const;
    void ShowTolerance();
    void HideTolerance();

    void LayOutValue();
    void LayOutValueAndTolerance();
    void ResetLayout();

    CATDlgLabel* _pNameLab; // this widget and the following ones belong to the dialog
    CATDlgFrame* _pParmFrm;
    CATDlgCheckButton* _pToleranceCkb;
    OrvKvToleranceSub* _pToleranceSub; // null for other magnitudes than length and angle
    CATICkeParm_var _hIParm;
    CATString _ParmKey;
    CATDlgContainer* _pSeparateParamFromToleranceCon;
    CATString _TolGroup;
    CATString _TolField;
    unsigned char _ValueEditable;
    unsigned char _ToleranceEditable;
};

#endif
