#include "CAT2DImagePixelRep.h"

#include "CAT2DViewer.h"
#include "CATPixelImage.h"
#include "VisualizationTest.h"
#include "host/FaultPoints.h"
#include "host/LiveObjects.h"
#include "host/Misuse.h"

#include <memory>

namespace {

class CAT2DImagePixelRepTest : public VisualizationTest {};

TEST_F(CAT2DImagePixelRepTest, ShowsThePixelsOfItsImageAtItsPosition) {
    CATPixelImage image(2, 1, CATPixelImage::RGBA);
    FillWithNumbers(image);
    const float position[] = {-0.5F, 12.0F};
    CAT2DImagePixelRep* const rep = new CAT2DImagePixelRep(&image, position, 0, 0, 0, 0);
    const host::Picture picture = ShownBy(rep);
    EXPECT_EQ(picture.left, -0.5F);
    EXPECT_EQ(picture.top, 12.0F);
    EXPECT_EQ(picture.width, 2);
    EXPECT_EQ(picture.height, 1);
    EXPECT_EQ(picture.format, CATPixelImage::RGBA);
    EXPECT_EQ(BytesOf(picture), (Bytes{0, 1, 2, 3, 4, 5, 6, 7}));
    rep->Release();
}

TEST_F(CAT2DImagePixelRepTest, LivesOnWhenTheImageIsChangedAndGoes) {
    auto image = std::make_unique<CATPixelImage>(1, 2);
    FillWithNumbers(*image);
    CAT2DImagePixelRep* const rep = RepOf(image.get());
    image->GetPixels()[0] = 99;
    EXPECT_EQ(BytesOf(ShownBy(rep)), (Bytes{0, 1, 2, 3, 4, 5}));
    image.reset();
    EXPECT_EQ(BytesOf(ShownBy(rep)), (Bytes{0, 1, 2, 3, 4, 5}));
    rep->Release();
}

TEST_F(CAT2DImagePixelRepTest, ShowsNothingWithoutAnImageOrWithoutPixels) {
    const CATPixelImage huge(20000, 20000);
    const CATPixelImage empty(0, 0);
    const CATPixelImage negative(-3, 4);
    for (const CATPixelImage* const image :
         {static_cast<const CATPixelImage*>(nullptr), &huge, &empty, &negative}) {
        CAT2DImagePixelRep* const rep = RepOf(image);
        const host::Picture picture = ShownBy(rep);
        EXPECT_FALSE(picture);
        EXPECT_EQ(picture.width, 0);
        EXPECT_EQ(picture.height, 0);
        rep->Release();
    }
    const CATPixelImage smallest(1, 1);
    CAT2DImagePixelRep* const rep = RepOf(&smallest);
    EXPECT_TRUE(ShownBy(rep));
    rep->Release();
}

TEST_F(CAT2DImagePixelRepTest, IsAMisuseWithNumbersThatAreNotZero) {
    const CATPixelImage image(1, 1);
    const float position[] = {0.0F, 0.0F};
    for (int place = 0; place < 4; ++place) {
        const auto number = [place](int iPlace) { return place == iPlace ? 7 : 0; };
        CAT2DImagePixelRep* const rep =
            new CAT2DImagePixelRep(&image, position, number(0), number(1), number(2), number(3));
        EXPECT_TRUE(ShownBy(rep));
        rep->Release();
        EXPECT_EQ(host::Misuse::Recorded().size(), 1U);
        host::Misuse::Clear();
    }
}

TEST_F(CAT2DImagePixelRepTest, IsCountedAmongTheLivingUntilItsLastReferenceGoes) {
    const CATPixelImage image(1, 1);
    EXPECT_EQ(host::LiveObjects::Count("CAT2DImagePixelRep"), 0);
    CAT2DImagePixelRep* const rep = RepOf(&image);
    rep->AddRef();
    EXPECT_EQ(host::LiveObjects::Count("CAT2DImagePixelRep"), 1);
    rep->Release();
    EXPECT_EQ(host::LiveObjects::Count("CAT2DImagePixelRep"), 1);
    rep->Release();
    EXPECT_EQ(host::LiveObjects::Count("CAT2DImagePixelRep"), 0);
}

TEST_F(CAT2DImagePixelRepTest, IsNotMadeWhenItsAllocationFails) {
    const CATPixelImage image(1, 1);
    host::FaultPoints::FailCall(1, "representation allocation");
    EXPECT_EQ(RepOf(&image), nullptr);
    host::FaultPoints::Stop();
    CAT2DImagePixelRep* const rep = RepOf(&image);
    EXPECT_NE(rep, nullptr);
    rep->Release();
}

TEST_F(CAT2DImagePixelRepTest, IsAKindOfRepresentation) {
    const CATPixelImage image(1, 1);
    CAT2DImagePixelRep* const rep = RepOf(&image);
    EXPECT_STREQ(rep->IsA(), "CAT2DImagePixelRep");
    EXPECT_EQ(rep->IsAKindOf("CAT2DRep"), 1);
    EXPECT_EQ(rep->IsAKindOf("CATViewer"), 0);
    rep->Release();
}

} // namespace
