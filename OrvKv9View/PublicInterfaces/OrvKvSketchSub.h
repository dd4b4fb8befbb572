#ifndef OrvKvSketchSub_H
#define OrvKvSketchSub_H

#include "CATDlgFrame.h"

class CAT2DImagePixelRep;
class CAT2DViewer;
class CATPixelImage;

// Shows the drawing of the feature: a raster image, whole, in a two-dimensional viewer.
//
// The parent owns it. A copy has viewer and picture of the original, and must not outlive the viewer. The
// picture goes with the last panel that has it.
class OrvKvSketchSub : public CATDlgFrame {
  public:
    explicit OrvKvSketchSub(CATDialog* iFather);
    OrvKvSketchSub(const OrvKvSketchSub& iOther);
    OrvKvSketchSub& operator=(const OrvKvSketchSub& iOther);
    ~OrvKvSketchSub() override;

    // Makes the viewer, empty and white. Called once; a second call makes nothing.
    void Build();

    // Shows the image instead of the one before. The image stays the caller's; iText is not used. Fails, and
    // the picture stays, for a null image and before Build; fails, and nothing is shown, where memory is
    // short.
    long SetImage(const CATPixelImage* iImage, const CATUnicodeString& iText);
    long SetImage(const CATPixelImage* iImage);

    // CATDialog
    char* GetResourceFilename(int iLevel) const override;

  private:
    CAT2DViewer* _pViewer;          // child of this frame; null before Build
    CAT2DImagePixelRep* _pImageRep; // what is shown; a reference; null for nothing
};

#endif
