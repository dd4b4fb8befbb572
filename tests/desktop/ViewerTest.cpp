#include "CAT2DImagePixelRep.h"
#include "CAT2DViewer.h"
#include "CATDlgFrame.h"
#include "CATPixelImage.h"
#include "DesktopFixture.h"

#include <QtGui/QImage>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace desktop_test {

namespace {

const float position[2] = {-0.5F, -0.5F};

// A white viewer of 360 by 360 that fills the dialog.
class ViewerTest : public DesktopTest {
  protected:
    ViewerTest() {
        _viewer = new CAT2DViewer(&Dialog(), "Viewer", 0, 360, 360, 0x40000);
        _viewer->SetBackgroundColor(1.0F, 1.0F, 1.0F, 1);
        Dialog().Attach4Sides(_viewer);
    }
    ~ViewerTest() override { Clear(); }

    static void Fill(CATPixelImage& ioImage, QRgb iColor) {
        const int bytes = ioImage.GetFormat();
        for (int pixel = 0; pixel < ioImage.GetWidth() * ioImage.GetHeight(); ++pixel) {
            unsigned char* const place = ioImage.GetPixels() + pixel * bytes;
            place[0] = static_cast<unsigned char>(qRed(iColor));
            place[1] = static_cast<unsigned char>(qGreen(iColor));
            place[2] = static_cast<unsigned char>(qBlue(iColor));
            if (bytes == CATPixelImage::RGBA)
                place[3] = static_cast<unsigned char>(qAlpha(iColor));
        }
    }
    void Show(const CATPixelImage& iImage) {
        Clear();
        _rep = new CAT2DImagePixelRep(&iImage, position, 0, 0, 0, 0);
        _viewer->SetMainRep(_rep);
        _viewer->Reframe();
        _viewer->Draw();
        Settle();
    }
    void Clear() {
        if (_rep != nullptr)
            _rep->Release();
        _rep = nullptr;
    }
    QImage Painted() { return Shown(*_viewer).grab().toImage().convertToFormat(QImage::Format_RGB32); }
    // The box around everything of that colour; null for none.
    static QRect BoxOf(const QImage& iImage, QRgb iColor) {
        QRect box;
        for (int y = 0; y < iImage.height(); ++y)
            for (int x = 0; x < iImage.width(); ++x)
                if (iImage.pixel(x, y) == iColor)
                    box |= QRect(x, y, 1, 1);
        return box;
    }

    CAT2DViewer* _viewer;
    CAT2DImagePixelRep* _rep = nullptr;
};

const QRgb red = qRgb(255, 0, 0);
const QRgb blue = qRgb(0, 0, 255);
const QRgb white = qRgb(255, 255, 255);

TEST_F(ViewerTest, IsAsLargeAsTheProgramAsksAndPaintsItsBackground) {
    Open();
    EXPECT_EQ(Shown(*_viewer).size(), QSize(360, 360));
    EXPECT_EQ(BoxOf(Painted(), white), QRect(0, 0, 360, 360));
    _viewer->SetBackgroundColor(0.0F, 0.0F, 1.0F, 1);
    Settle();
    EXPECT_EQ(BoxOf(Painted(), blue), QRect(0, 0, 360, 360));
}

TEST_F(ViewerTest, ItsBackgroundCountsInADarkPaletteToo) {
    Open();
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::black));
    Settle();
    EXPECT_EQ(BoxOf(Painted(), white), QRect(0, 0, 360, 360));
    QApplication::setPalette(before);
}

TEST_F(ViewerTest, FitsAWidePictureInTheMiddleAndKeepsItsProportions) {
    CATPixelImage wide(100, 50);
    Fill(wide, red);
    Open();
    Show(wide);
    EXPECT_EQ(BoxOf(Painted(), red), QRect(0, 90, 360, 180));
}

TEST_F(ViewerTest, FitsALargePictureByMakingItSmallerSmoothly) {
    CATPixelImage stripes(1440, 2880);
    Fill(stripes, white);
    for (int y = 0; y < 2880; ++y)
        for (int x = 0; x < 1440; x += 2)
            std::fill_n(stripes.GetPixels() + 3 * (y * 1440 + x), 3, static_cast<unsigned char>(0));
    Open();
    Show(stripes);
    const QImage painted = Painted();
    EXPECT_EQ(BoxOf(painted, white).size(), QSize(360, 360)) << "the background on both sides";
    const int grey = qGray(painted.pixel(180, 180));
    EXPECT_NEAR(grey, 127, 20) << "black and white lines run into each other";
    EXPECT_EQ(painted.pixel(80, 180), white);
    EXPECT_NE(painted.pixel(100, 180), white);
}

TEST_F(ViewerTest, ShowsThePixelsInTheirPlaces) {
    CATPixelImage picture(2, 2);
    Fill(picture, white);
    unsigned char* const corner = picture.GetPixels() + 3; // the upper right one
    corner[1] = corner[2] = 0;
    Open();
    Show(picture);
    const QImage painted = Painted();
    EXPECT_EQ(painted.pixel(350, 10), red);
    EXPECT_EQ(painted.pixel(10, 10), white);
    EXPECT_EQ(painted.pixel(350, 350), white);
}

TEST_F(ViewerTest, TheBackgroundShowsThroughAPictureWithOpacity) {
    CATPixelImage glass(10, 10, CATPixelImage::RGBA);
    Fill(glass, qRgba(255, 0, 0, 0));
    Open();
    Show(glass);
    EXPECT_EQ(BoxOf(Painted(), white), QRect(0, 0, 360, 360));
    Fill(glass, red);
    Show(glass);
    EXPECT_EQ(BoxOf(Painted(), red), QRect(0, 0, 360, 360));
}

TEST_F(ViewerTest, ShowsTheNextPictureAndNoneWhenItIsDestroyed) {
    CATPixelImage first(10, 10);
    CATPixelImage second(10, 10);
    Fill(first, red);
    Fill(second, blue);
    Open();
    Show(first);
    ASSERT_EQ(Painted().pixel(180, 180), red);
    Show(second);
    EXPECT_EQ(Painted().pixel(180, 180), blue);
    Clear();
    EXPECT_EQ(Painted().pixel(180, 180), white) << "at once, nothing is read that is gone";
}

TEST_F(ViewerTest, FollowsTheSizeOfTheWindow) {
    CATPixelImage picture(10, 10);
    Fill(picture, red);
    Open();
    Show(picture);
    Dialog().SetRectDimensions(0, 0, Window().height() - 100, Window().width() + 40);
    Settle();
    EXPECT_EQ(Shown(*_viewer).size(), QSize(400, 260));
    EXPECT_EQ(BoxOf(Painted(), red), QRect(70, 0, 260, 260));
}

TEST_F(ViewerTest, SharesANarrowWindowButNeverGoesAway) {
    Dialog().SetRectDimensions(0, 0, 10, 10);
    Open();
    EXPECT_EQ(Shown(*_viewer).size(), QSize(120, 120).expandedTo(Shown(*_viewer).size()));
    EXPECT_EQ(Shown(*_viewer).height(), 120);
}

TEST_F(ViewerTest, APictureOfOneLineIsSeen) {
    CATPixelImage line(CATPixelImage::MaximumSide, 1);
    Fill(line, red);
    Open();
    Show(line);
    EXPECT_EQ(BoxOf(Painted(), red), QRect(0, 179, 360, 1));
}

TEST_F(ViewerTest, FitsAVeryLargePictureToo) {
    constexpr int side = 4100;
    CATPixelImage halves(side, side);
    Fill(halves, red);
    for (int y = 0; y < side; ++y) {
        unsigned char* const right = halves.GetPixels() + 3 * (y * side + side / 2);
        std::fill_n(right, 3 * side / 2, static_cast<unsigned char>(0));
    }
    Open();
    Show(halves);
    const QImage painted = Painted();
    EXPECT_EQ(BoxOf(painted, qRgb(0, 0, 0)).intersected(QRect(181, 0, 179, 360)), QRect(181, 0, 179, 360));
    EXPECT_EQ(BoxOf(painted, red), QRect(0, 0, BoxOf(painted, red).width(), 360));
    EXPECT_NEAR(BoxOf(painted, red).width(), 180, 1);
}

TEST_F(ViewerTest, IsNamedAfterTheBoxAroundIt) {
    auto* const frame = new CATDlgFrame(&Dialog(), "DrawingFrm");
    frame->SetTitle("Drawing");
    auto* const inner = new CAT2DViewer(frame, "Viewer", 0, 100, 100, 0);
    auto* const titled = new CAT2DViewer(&Dialog(), "TitledViewer", 0, 100, 100, 0);
    titled->SetTitle("Section");
    Open();
    EXPECT_EQ(Utf8(Shown(*inner).accessibleName()), "Drawing");
    EXPECT_EQ(Utf8(Shown(*titled).accessibleName()), "Section");
}

} // namespace

} // namespace desktop_test
