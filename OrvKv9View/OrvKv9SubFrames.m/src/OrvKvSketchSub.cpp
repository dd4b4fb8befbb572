#include "OrvKvSketchSub.h"

#include "CAT2DImagePixelRep.h"
#include "CAT2DViewer.h"
#include "OrvKvPanelValues.h"
#include "OrvKvReport.h"
#include "OrvKvResourceName.h"

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvSketchSub";

static constexpr CATDlgStyle ViewerFrame = 0;
static constexpr CATULong ViewerStyle = 0x40000;
static constexpr int ViewerSide = 360; // pixels

// The centre of the first pixel lies at the origin of the model.
static const float PicturePosition[] = {-0.5F, -0.5F};

OrvKvImplementResourceName(OrvKvSketchSub, CATDialog);

static void DestroyRep(CAT2DImagePixelRep*& ioRep) {
    if (ioRep != nullptr)
        ioRep->Release();
    ioRep = nullptr;
}

OrvKvSketchSub::OrvKvSketchSub(CATDialog* iFather)
    : CATDlgFrame(iFather, "OrvKvSketchSub", OrvKvPlainFrame), _pViewer(nullptr), _pImageRep(nullptr) {}

OrvKvSketchSub::OrvKvSketchSub(const OrvKvSketchSub& iOther)
    : CATDlgFrame(iOther), _pViewer(iOther._pViewer), _pImageRep(iOther._pImageRep) {
    if (_pImageRep != nullptr)
        _pImageRep->AddRef();
}

OrvKvSketchSub& OrvKvSketchSub::operator=(const OrvKvSketchSub& iOther) {
    if (this == &iOther)
        return *this;
    CATDlgFrame::operator=(iOther);
    DestroyRep(_pImageRep);
    _pViewer = iOther._pViewer;
    _pImageRep = iOther._pImageRep;
    if (_pImageRep != nullptr)
        _pImageRep->AddRef();
    return *this;
}

OrvKvSketchSub::~OrvKvSketchSub() {
    DestroyRep(_pImageRep);
    _pViewer = nullptr;
}

void OrvKvSketchSub::Build() {
    if (_pViewer != nullptr)
        return;
    _pViewer = new CAT2DViewer(this, "Viewer", ViewerFrame, ViewerSide, ViewerSide, ViewerStyle);
    if (_pViewer == nullptr)
        return;
    _pViewer->SetBackgroundColor(1.0, 1.0, 1.0, 1);
    Attach4Sides(_pViewer);
}

long OrvKvSketchSub::SetImage(const CATPixelImage* iImage, const CATUnicodeString&) {
    return SetImage(iImage);
}

long OrvKvSketchSub::SetImage(const CATPixelImage* iImage) {
    if (iImage == nullptr)
        return OrvKvReport::Failure("Invalid input data ipImage", OrvKvHere);
    if (_pViewer == nullptr)
        return OrvKvReport::SilentFailure();
    DestroyRep(_pImageRep);
    _pImageRep = new CAT2DImagePixelRep(iImage, PicturePosition, 0, 0, 0, 0);
    _pViewer->SetMainRep(_pImageRep);
    _pViewer->Reframe();
    _pViewer->Draw();
    return _pImageRep == nullptr ? OrvKvReport::SilentFailure() : OrvKvReport::Success(OrvKvHere);
}
