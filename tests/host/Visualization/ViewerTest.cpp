#include "CAT2DViewer.h"

#include "CAT2DImagePixelRep.h"
#include "CATDlgDocument.h"
#include "CATPixelImage.h"
#include "VisualizationTest.h"
#include "host/DialogDump.h"
#include "host/DialogObserver.h"
#include "host/EventScope.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/MessageCatalogs.h"

#include <functional>
#include <limits>

namespace {

using host::ViewerInspector;

// Another thing that a viewer could show, and that is no picture.
class EmptyRep : public CAT2DRep {};

// Hears how the viewer changes.
class Watcher : public host::DialogObserver {
  public:
    explicit Watcher(const CATDialog& iViewer) : _viewer(iViewer) { Add(*this); }
    ~Watcher() override { Remove(*this); }

    void OnChanges(const host::DialogChanges& iChanges) override {
        for (const auto& [widget, kinds] : iChanges.changed)
            if (widget == &_viewer)
                _kinds |= kinds;
    }

    // The kinds of change that one event brings.
    unsigned During(const std::function<void()>& iAction) {
        _kinds = 0;
        {
            const host::EventScope event;
            iAction();
        }
        return _kinds;
    }

  private:
    const CATDialog& _viewer;
    unsigned _kinds = 0;
};

class CAT2DViewerTest : public VisualizationTest {
  protected:
    CATPixelImage _image = CATPixelImage(4, 3);
};

TEST_F(CAT2DViewerTest, StartsWithItsNaturalSizeAndShowsNothing) {
    EXPECT_EQ(ViewerInspector::NaturalWidth(Viewer()), 360);
    EXPECT_EQ(ViewerInspector::NaturalHeight(Viewer()), 240);
    EXPECT_EQ(ViewerInspector::ViewerStyle(Viewer()), 0x40000U);
    EXPECT_EQ(host::Inspector::Style(Viewer()), 0U);
    EXPECT_FALSE(ViewerInspector::PictureOf(Viewer()));
    EXPECT_EQ(Viewer().GetMainRep(), nullptr);
    EXPECT_FALSE(ViewerInspector::ShowsAll(Viewer()));
    EXPECT_EQ(ViewerInspector::Draws(Viewer()), 0);
    EXPECT_EQ(ViewerInspector::Background(Viewer()), (host::SceneColor{0.0F, 0.0F, 0.0F}));
}

TEST_F(CAT2DViewerTest, HasNoNegativeSize) {
    const CAT2DViewer viewer(MainWindow(), "Small", 0, -1, std::numeric_limits<int>::min(), 0);
    EXPECT_EQ(ViewerInspector::NaturalWidth(viewer), 0);
    EXPECT_EQ(ViewerInspector::NaturalHeight(viewer), 0);
}

TEST_F(CAT2DViewerTest, IsAFrameWithoutBorderAndTitle) {
    EXPECT_EQ(Viewer().IsAKindOf("CATDlgFrame"), 1);
    EXPECT_EQ(Viewer().IsAKindOf("CATViewer"), 1);
    EXPECT_FALSE(host::Inspector::ShowsTitle(Viewer()));
    Viewer().GetTitle();
    EXPECT_EQ(host::MessageCatalogs::Missing(), std::vector<std::string>());
    const CATDlgFrame frame(MainWindow(), "Frame", 0);
    EXPECT_TRUE(host::Inspector::ShowsTitle(frame)) << "a plain frame of the same style";
}

TEST_F(CAT2DViewerTest, TakesTheBackgroundAtOnceAndWithinItsRange) {
    Viewer().SetBackgroundColor(1.0F, 0.5F, 0.25F, 1);
    EXPECT_EQ(ViewerInspector::Background(Viewer()), (host::SceneColor{1.0F, 0.5F, 0.25F}));
    Viewer().SetBackgroundColor(0.25F, 0.5F, 1.0F, 0);
    EXPECT_EQ(ViewerInspector::Background(Viewer()), (host::SceneColor{0.25F, 0.5F, 1.0F}));
    const float infinity = std::numeric_limits<float>::infinity();
    const float noNumber = std::numeric_limits<float>::quiet_NaN();
    Viewer().SetBackgroundColor(1.5F, -0.5F, noNumber, 1);
    EXPECT_EQ(ViewerInspector::Background(Viewer()), (host::SceneColor{1.0F, 0.0F, 0.0F}));
    Viewer().SetBackgroundColor(-infinity, noNumber, infinity, 1);
    EXPECT_EQ(ViewerInspector::Background(Viewer()), (host::SceneColor{0.0F, 0.0F, 1.0F}));
}

TEST_F(CAT2DViewerTest, ShowsAllOnceItIsReframed) {
    Viewer().Reframe();
    EXPECT_TRUE(ViewerInspector::ShowsAll(Viewer()));
}

TEST_F(CAT2DViewerTest, ShowsOneRepresentationAfterAnother) {
    const CATPixelImage other(7, 5);
    CAT2DImagePixelRep* const first = RepOf(&_image);
    CAT2DImagePixelRep* const second = RepOf(&other);
    EXPECT_EQ(ShownBy(first).width, 4);
    EXPECT_EQ(Viewer().GetMainRep(), first);
    EXPECT_EQ(ShownBy(second).width, 7);
    EXPECT_FALSE(ShownBy(nullptr));
    EXPECT_EQ(Viewer().GetMainRep(), nullptr);
    EXPECT_EQ(ShownBy(first).width, 4);
    EXPECT_EQ(ShownBy(first).width, 4) << "the same one again";
    second->Release();
    EXPECT_EQ(Viewer().GetMainRep(), first) << "the end of one that is shown no longer";
    first->Release();
    EXPECT_EQ(Viewer().GetMainRep(), nullptr);
}

TEST_F(CAT2DViewerTest, ShowsNoPictureForARepresentationOfAnotherKind) {
    EmptyRep* const rep = new EmptyRep;
    EXPECT_FALSE(ShownBy(rep));
    EXPECT_EQ(Viewer().GetMainRep(), rep);
    rep->Release();
}

TEST_F(CAT2DViewerTest, LosesARepresentationThatGoesFirst) {
    CAT2DImagePixelRep* const rep = RepOf(&_image);
    ASSERT_TRUE(ShownBy(rep));
    const unsigned before = ViewerInspector::Revision(Viewer());
    rep->Release();
    EXPECT_EQ(Viewer().GetMainRep(), nullptr);
    EXPECT_FALSE(ViewerInspector::PictureOf(Viewer()));
    EXPECT_NE(ViewerInspector::Revision(Viewer()), before);
}

TEST_F(CAT2DViewerTest, MayGoBeforeItsRepresentation) {
    CAT2DImagePixelRep* const rep = RepOf(&_image);
    ASSERT_TRUE(ShownBy(rep));
    delete _viewer;
    rep->Release();
}

TEST_F(CAT2DViewerTest, SharesARepresentationWithOtherViewers) {
    auto* const other = new CAT2DViewer(MainWindow(), "Other", 0, 10, 10, 0);
    auto* const third = new CAT2DViewer(MainWindow(), "Third", 0, 10, 10, 0);
    CAT2DImagePixelRep* const rep = RepOf(&_image);
    Viewer().SetMainRep(rep);
    other->SetMainRep(rep);
    third->SetMainRep(rep);
    delete other;
    EXPECT_TRUE(ViewerInspector::PictureOf(Viewer()));
    rep->Release();
    EXPECT_EQ(Viewer().GetMainRep(), nullptr);
    EXPECT_EQ(third->GetMainRep(), nullptr);
}

TEST_F(CAT2DViewerTest, TellsObserversWhenItHasToBePainted) {
    Watcher watcher(Viewer());
    CAT2DImagePixelRep* const rep = RepOf(&_image);
    EXPECT_EQ(watcher.During([&] { Viewer().SetMainRep(rep); }), 0U) << "it is drawn on request";
    EXPECT_EQ(watcher.During([&] { Viewer().Draw(); }), host::ChangeContent);
    EXPECT_EQ(watcher.During([&] { Viewer().Draw(); }), host::ChangeContent) << "each time";
    EXPECT_EQ(watcher.During([&] { Viewer().Reframe(); }), host::ChangeContent);
    EXPECT_EQ(watcher.During([&] { Viewer().Reframe(); }), 0U) << "it shows all already";
    EXPECT_EQ(watcher.During([&] { Viewer().SetBackgroundColor(1, 1, 1, 1); }), host::ChangeContent);
    EXPECT_EQ(watcher.During([&] { Viewer().SetBackgroundColor(1, 1, 1, 1); }), 0U) << "the same colour";
    EXPECT_EQ(watcher.During([&] { rep->Release(); }), host::ChangeContent);
}

TEST_F(CAT2DViewerTest, GivesEachStateThatIsToBePaintedItsOwnRevision) {
    const unsigned start = ViewerInspector::Revision(Viewer());
    Viewer().Draw();
    const unsigned drawn = ViewerInspector::Revision(Viewer());
    EXPECT_NE(drawn, start);
    Viewer().Draw();
    EXPECT_NE(ViewerInspector::Revision(Viewer()), drawn);
    EXPECT_EQ(ViewerInspector::Draws(Viewer()), 2);
    Viewer().SetBackgroundColor(1, 1, 1, 1);
    EXPECT_EQ(ViewerInspector::Draws(Viewer()), 2);
}

TEST_F(CAT2DViewerTest, StandsInADumpWithSizeBackgroundAndPicture) {
    EXPECT_EQ(host::DialogDump::Of(Viewer()), "CAT2DViewer Viewer size=360x240 background=#000000\n");
    Viewer().SetBackgroundColor(1.0F, 0.5F, 0.0F, 1);
    CAT2DImagePixelRep* const rep = RepOf(&_image);
    Viewer().SetMainRep(rep);
    EXPECT_EQ(host::DialogDump::Of(Viewer()),
              "CAT2DViewer Viewer size=360x240 background=#ff8000 picture=4x3\n");
    rep->Release();
    EXPECT_EQ(host::DialogDump::Of(CATDlgFrame(MainWindow(), "Frm", CATDlgFraNoFrame)), "CATDlgFrame Frm\n")
        << "what is no viewer is not described";
}

TEST_F(CAT2DViewerTest, IsNotMadeWhenItsAllocationFails) {
    host::FaultPoints::FailCall(1, "widget allocation");
    EXPECT_EQ(new CAT2DViewer(MainWindow(), "None", 0, 10, 10, 0), nullptr);
    host::FaultPoints::Stop();
}

} // namespace
