// Viewers and the pictures that they show.

#include "CAT2DImagePixelRep.h"
#include "CAT2DViewer.h"
#include "CATPixelImage.h"

#include "Panels.h"

namespace {

class Viewers : public DialogTest {
  protected:
    static CAT2DImagePixelRep* PictureOf(const CATPixelImage& iImage) {
        const float position[] = {-0.5F, -0.5F};
        return new CAT2DImagePixelRep(&iImage, position, 0, 0, 0, 0);
    }

    CAT2DViewer* viewer = new CAT2DViewer(panel, "Viewer", 0, 360, 360, 0x40000);
};

} // namespace

CERTAIN(Viewers, AViewerIsAChildOfTheDialogInWhichItIsMade) {
    EXPECT_STREQ("Viewer", viewer->GetName().ConvertToChar());
    EXPECT_EQ(panel, viewer->GetFather());
}

ASSUMED(Viewers, AViewerIsAFrame, "recalled: it behaves like one in a dialog") {
    EXPECT_EQ(1, viewer->IsAKindOf("CATDlgFrame"));
    EXPECT_EQ(1, viewer->IsAKindOf("CATViewer"));
}

ASSUMED(Viewers, AViewerShowsOneMainRepresentation, "open: set, then fitted and drawn") {
    const CATPixelImage image(4, 3);
    EXPECT_EQ(nullptr, viewer->GetMainRep());
    CAT2DImagePixelRep* const first = PictureOf(image);
    CAT2DImagePixelRep* const second = PictureOf(image);
    viewer->SetBackgroundColor(1.0, 1.0, 1.0, 1);
    viewer->SetMainRep(first);
    viewer->Reframe();
    viewer->Draw();
    EXPECT_EQ(first, viewer->GetMainRep());
    viewer->SetMainRep(second);
    EXPECT_EQ(second, viewer->GetMainRep());
    first->Release();
    second->Release();
}

ASSUMED(Viewers, ARepresentationThatGoesIsShownNoLonger, "open: whoever made it releases it") {
    const CATPixelImage image(4, 3);
    CAT2DImagePixelRep* const rep = PictureOf(image);
    viewer->SetMainRep(rep);
    rep->Release();
    EXPECT_EQ(nullptr, viewer->GetMainRep());
}

CERTAIN(Viewers, TheImageStaysTheCallers) {
    CATPixelImage image(2, 1);
    CAT2DImagePixelRep* const rep = PictureOf(image);
    rep->Release();
    image.GetPixels()[0] = 7;
    EXPECT_EQ(7, image.GetPixels()[0]);
}

ASSUMED(Viewers, AnImageHasEightBitsAChannelWithOrWithoutOpacity, "open: the command supplies the pixels") {
    const CATPixelImage plain(2, 1);
    EXPECT_EQ(2, plain.GetWidth());
    EXPECT_EQ(1, plain.GetHeight());
    EXPECT_EQ(CATPixelImage::RGB, plain.GetFormat());
    EXPECT_EQ(6U, plain.GetSizeInBytes());
    EXPECT_EQ(8U, CATPixelImage(2, 1, CATPixelImage::RGBA).GetSizeInBytes());
}
