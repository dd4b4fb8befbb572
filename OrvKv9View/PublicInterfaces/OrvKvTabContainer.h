#ifndef OrvKvTabContainer_H
#define OrvKvTabContainer_H

#include "CATDlgFrame.h"
#include "CATICkeParm.h"
#include "CATListValCATUnicodeString.h"
#include "CATRawColldouble.h"

class CATDlgPushButton;
class CATDlgTabContainer;
class CATDlgTabPage;
class CATPixelImage;
class OrvKvParameterSetSub;
class OrvKvSketchSub;
class OrvKvThreadSub;

// Three pages: the drawing of the feature, the buttons for parameter sets, and the thread. Hands what the
// main panel sets to the page that shows it. It sends nothing; the pages' own panels do.
//
// The parent owns it. A copy shares the widgets of the original and must not outlive them.
class OrvKvTabContainer : public CATDlgFrame {
  public:
    // iParameterSetMode is handed to OrvKvParameterSetSub.
    OrvKvTabContainer(CATDialog* iFather, int iParameterSetMode);
    OrvKvTabContainer(const OrvKvTabContainer& iOther);
    OrvKvTabContainer& operator=(const OrvKvTabContainer& iOther);
    ~OrvKvTabContainer() override;

    // Makes the pages and the panels on them. Called once; a second call makes nothing.
    void Build();

    // Shows the drawing; the image stays the caller's. A null image is reported, but is no failure here: the
    // drawing before it stays. Fails before Build.
    long SetFeatureDrawing(const CATPixelImage* iImage, const CATUnicodeString& iText);
    // Lets the user use the thread page (other than 0) or not (0). The second argument is not used. An error
    // that is raised meanwhile becomes the failing result. Fails before Build.
    long SetThread(unsigned char iThreadActive, unsigned char iSecond);

    // These do what the operation of OrvKvThreadSub does. They fail where it fails, and before Build.
    long SetThreadTypes(const CATListValCATUnicodeString& iTypes, int iSelected, unsigned char iNotify);
    long SetThreadDims(const CATListValCATUnicodeString& iDims, int iSelected, unsigned char iNotify);
    long SetThreadValues(const CATRawColldouble& iPitches, const CATRawColldouble& iInternalDiameters,
                         const CATRawColldouble& iDiameters);
    long SetThreadDirection(const CATUnicodeString& iDirection);
    long SetThreadPanelParameters(const CATICkeParm_var& iInternalDiameter, const CATICkeParm_var& iDiameter,
                                  const CATICkeParm_var& iLength, const CATICkeParm_var& iPitch);
    long RebuildThreadPanel(const CATListValCATUnicodeString& iTypes, int iSelectedType,
                            const CATListValCATUnicodeString& iDims, int iSelectedDim);

    // The buttons of the page for parameter sets, which the owner may enable and disable; null before Build.
    CATDlgPushButton* GetCreatePSPB();
    CATDlgPushButton* GetDeletePSPB();
    CATDlgPushButton* GetRenamePSPB();

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    CATDlgTabContainer* _pTabContainer; // these seven belong to this frame and are null before Build
    CATDlgTabPage* _pSketchPage;
    CATDlgTabPage* _pParameterSetEditorPage;
    CATDlgTabPage* _pThreadPage;
    OrvKvSketchSub* _pSketchSub;
    OrvKvParameterSetSub* _pParameterSetSub;
    OrvKvThreadSub* _pThreadSub;
    int _iReserved; // always 0
    int _iParameterSetMode;
};

#endif
