#ifndef OrvKvGroupAndGeometrySub_H
#define OrvKvGroupAndGeometrySub_H

#include "CATDlgFrame.h"
#include "CATListValCATString.h"

class CATDlgCombo;
class OrvKvInsertionGeometrySub;

// Lets the user choose the feature group, reported with OrvKvGroupChangedNotification, and holds the inputs
// of the insertion geometry.
//
// The parent owns it. A copy shares the widgets of the original and must not outlive them.
class OrvKvGroupAndGeometrySub : public CATDlgFrame {
  public:
    explicit OrvKvGroupAndGeometrySub(CATDialog* iFather);
    OrvKvGroupAndGeometrySub(const OrvKvGroupAndGeometrySub& iOther);
    OrvKvGroupAndGeometrySub& operator=(const OrvKvGroupAndGeometrySub& iOther);
    ~OrvKvGroupAndGeometrySub() override;

    // Makes the combo and the geometry inputs. Called once; a second call makes nothing.
    void Build();

    // Lists the groups under their display names, a group without one under its key, and chooses number
    // iSelectedGroup (from 1) as if the user had; another number chooses nothing. Fails, and changes nothing,
    // when iGroupKeys is null or before Build. An error that is raised while the choice is reported becomes
    // the failing result; the groups are listed and shown then.
    long SetGroupKeys(const CATListValCATString* iGroupKeys, int iSelectedGroup);
    // Lets the user choose a group or not: CATDlgEnable or CATDlgDisable.
    void DisableGroup(const unsigned long& iSensitivity);
    // Greys the invert button for good. Without effect before Build.
    void DisableDirection();
    // Shows an input geometry; see OrvKvInsertionGeometrySub::SetGeometryText, whose failure is not passed
    // on. Fails before Build.
    long SetGeometryText(int iEditorNo, CATUnicodeString iText, unsigned long iVisibility);

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    void OnGroupCmbSelectNotification(CATCommand* iFrom, CATNotification* iNotification, void* iData);

    // Children of this frame; null before Build.
    CATDlgCombo* _pGroupCmb;
    OrvKvInsertionGeometrySub* _pInsertionGeometrySub;
};

#endif
