#ifndef OrvKvInsertionGeometrySub_H
#define OrvKvInsertionGeometrySub_H

#include "CATDlgFrame.h"

class CATDlgEditor;
class CATDlgPushButton;

// Shows up to three input geometries of a feature, each with a button that starts its selection and the name
// of what is selected, and a button that inverts the feature. Reports the user's wishes with
// OrvKvSetInputGeometryNotification and OrvKvInvertFeatureNotification.
//
// The parent owns it. A copy shares the widgets of the original and must not outlive them.
class OrvKvInsertionGeometrySub : public CATDlgFrame {
  public:
    explicit OrvKvInsertionGeometrySub(CATDialog* iFather);
    OrvKvInsertionGeometrySub(const OrvKvInsertionGeometrySub& iOther);
    OrvKvInsertionGeometrySub& operator=(const OrvKvInsertionGeometrySub& iOther);
    ~OrvKvInsertionGeometrySub() override;

    // Makes the widgets, all of them visible. Called once; a second call makes nothing.
    void Build();

    // Shows the name of what is selected for input iEditorNo, 1 to 3, as text and as balloon, and shows or
    // hides the input: CATDlgShow or CATDlgHide. Fails, and changes nothing, for another number and before
    // Build.
    long SetGeometryText(int iEditorNo, CATUnicodeString iText, unsigned long iVisibility);
    // Does nothing.
    void SetLimitingVisibility(unsigned long iVisibility);
    // Greys the invert button for good. Without effect before Build.
    void DisableDirectionButton();

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    bool HasWidgets() const;
    void BuildSpacer();
    // One row: the button that starts the selection of input iInputNo, and the editor beside it.
    void BuildInput(int iInputNo, const char* iButtonName, const char* iEditorName,
                    CATDlgPushButton*& oButton, CATDlgEditor*& oEditor);
    void BuildInvertButton();

    void OnInitInputGeometrySelection(CATCommand* iFrom, CATNotification* iNotification, void* iInputNo);
    void OnInvertFeature(CATCommand* iFrom, CATNotification* iNotification, void* iData);

    // Children of this frame; null before Build.
    CATDlgPushButton* _pInput1Pbt;
    CATDlgEditor* _pInput1Edt;
    CATDlgPushButton* _pInput2Pbt;
    CATDlgEditor* _pInput2Edt;
    CATDlgPushButton* _pInput3Pbt;
    CATDlgEditor* _pInput3Edt;
    CATDlgPushButton* _pInvertPbt;
};

#endif
