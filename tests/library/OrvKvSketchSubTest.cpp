#include "OrvKvSketchSub.h"

#include "PanelTest.h"
#include "support/GoldenFolder.h"

#include "CAT2DImagePixelRep.h"
#include "CAT2DViewer.h"
#include "CATDlgDocument.h"
#include "CATPixelImage.h"
#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/DialogObserver.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/LiveObjects.h"
#include "host/MessageCatalogs.h"
#include "host/ViewerInspector.h"

#include <memory>

namespace {

using namespace support;
using host::ViewerInspector;

const char source[] = "OrvKv9SubFrames.m/src/OrvKvSketchSub";

class OrvKvSketchSubTest : public PanelTest {
  protected:
    OrvKvSketchSubTest() : _panel(new OrvKvSketchSub(MainWindow())) {}

    OrvKvSketchSub& Panel() { return *_panel; }
    OrvKvSketchSub& BuiltPanel() {
        _panel->Build();
        return *_panel;
    }
    static CAT2DViewer& Viewer() { return Widget<CAT2DViewer>("Viewer"); }
    static host::Picture Shown() { return ViewerInspector::PictureOf(Viewer()); }
    static int LivingReps() { return host::LiveObjects::Count("CAT2DImagePixelRep"); }

    Report SetImage(const CATPixelImage* iImage) {
        return Observe([&] { return _panel->SetImage(iImage, "Counterbore"); });
    }
    Report SetImageWithoutText(const CATPixelImage* iImage) {
        return Observe([&] { return _panel->SetImage(iImage); });
    }

    CATPixelImage _image = CATPixelImage(12, 8);
    CATPixelImage _other = CATPixelImage(20, 30, CATPixelImage::RGBA);
    OrvKvSketchSub* _panel; // owned by the main window
};

TEST_F(OrvKvSketchSubTest, IsAPlainFrameNamedAfterItsClassAndEmptyBeforeItIsBuilt) {
    EXPECT_STREQ(Panel().GetName().ConvertToChar(), "OrvKvSketchSub");
    EXPECT_EQ(host::Inspector::Style(Panel()), 0x80000UL);
    EXPECT_EQ(host::Inspector::Parent(Panel()), MainWindow());
    EXPECT_TRUE(host::Inspector::Children(Panel()).empty());
}

TEST_F(OrvKvSketchSubTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    EXPECT_STREQ(Panel().GetResourceFilename(0), "OrvKvSketchSub");
    EXPECT_STREQ(Panel().GetResourceFilename(-1), "OrvKvSketchSub");
    EXPECT_EQ(Panel().GetResourceFilename(1), nullptr);
}

TEST_F(OrvKvSketchSubTest, BuildMakesAWhiteViewerThatFillsTheFrame) {
    BuiltPanel();
    EXPECT_EQ(PiecesOf(Panel()), Pieces({{"CAT2DViewer", "Viewer", 0, "0(1)-1(4)", "0(1)-1(4)"}}));
    EXPECT_EQ(ViewerInspector::NaturalWidth(Viewer()), 360);
    EXPECT_EQ(ViewerInspector::NaturalHeight(Viewer()), 360);
    EXPECT_EQ(ViewerInspector::ViewerStyle(Viewer()), 0x40000UL);
    EXPECT_EQ(ViewerInspector::Background(Viewer()), (host::SceneColor{1.0F, 1.0F, 1.0F}));
    EXPECT_FALSE(Shown());
}

TEST_F(OrvKvSketchSubTest, ASecondBuildMakesNothing) {
    BuiltPanel();
    SetImage(&_image);
    const CAT2DViewer* const viewer = &Viewer();
    Panel().Build();
    EXPECT_EQ(host::Inspector::Children(Panel()).size(), 1U);
    EXPECT_EQ(&Viewer(), viewer);
    EXPECT_EQ(Shown().width, 12);
}

TEST_F(OrvKvSketchSubTest, ShowsTheWholeImageFromItsAnchorOn) {
    BuiltPanel();
    _image.GetPixels()[0] = 17;
    EXPECT_EQ(SetImage(&_image), SuccessIn(source));
    const host::Picture picture = Shown();
    EXPECT_EQ(picture.left, -0.5F);
    EXPECT_EQ(picture.top, -0.5F);
    EXPECT_EQ(picture.width, 12);
    EXPECT_EQ(picture.height, 8);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture.pixels[0], 17);
    EXPECT_TRUE(ViewerInspector::ShowsAll(Viewer()));
    EXPECT_EQ(ViewerInspector::Draws(Viewer()), 1);
}

// Notes how wide the picture is when its viewer first asks to be shown anew.
class FirstChange : public host::DialogObserver {
  public:
    explicit FirstChange(const CATViewer& iViewer) : _viewer(iViewer) { Add(*this); }
    ~FirstChange() override { Remove(*this); }

    void OnChanges(const host::DialogChanges&) override {}
    void OnIdleNeeded() override { widths.push_back(ViewerInspector::PictureOf(_viewer).width); }

    std::vector<int> widths;

  private:
    const CATViewer& _viewer;
};

TEST_F(OrvKvSketchSubTest, TheViewerHasThePictureBeforeItIsAskedToShowIt) {
    BuiltPanel();
    const FirstChange first(Viewer());
    SetImage(&_image);
    EXPECT_EQ(first.widths, std::vector<int>({12}));
}

TEST_F(OrvKvSketchSubTest, TheTextHasNoEffect) {
    BuiltPanel();
    EXPECT_EQ(SetImage(&_image), SuccessIn(source));
    const std::string dump = host::DialogDump::Of(Panel(), host::DialogDump::WithLayout);
    for (const char* text : {"", "Counterbore", "Bohrung\nØ 6"}) {
        EXPECT_EQ(Observe([&] { return Panel().SetImage(&_image, text); }), SuccessIn(source));
        EXPECT_EQ(host::DialogDump::Of(Panel(), host::DialogDump::WithLayout), dump) << text;
    }
}

TEST_F(OrvKvSketchSubTest, TheFormWithoutTextDoesTheSame) {
    BuiltPanel();
    EXPECT_EQ(SetImage(&_image), SuccessIn(source));
    EXPECT_EQ(SetImageWithoutText(&_other), SuccessIn(source));
    EXPECT_EQ(Shown().width, 20);
    EXPECT_EQ(Shown().height, 30);
    EXPECT_EQ(Shown().format, CATPixelImage::RGBA);
    EXPECT_EQ(ViewerInspector::Draws(Viewer()), 2);
    EXPECT_EQ(SetImageWithoutText(nullptr), FailureIn(source, "Invalid input data ipImage"));
    EXPECT_EQ(Shown().width, 20);
}

TEST_F(OrvKvSketchSubTest, EachImageReplacesTheOneBefore) {
    BuiltPanel();
    for (const CATPixelImage* const image : {&_image, &_other, &_image}) {
        EXPECT_EQ(SetImage(image), SuccessIn(source));
        EXPECT_EQ(Shown().width, image->GetWidth());
        EXPECT_EQ(LivingReps(), 1);
    }
}

// The second representation may lie where the first one lay; what it was made from tells them apart.
TEST_F(OrvKvSketchSubTest, TheSameImageTwiceIsReadTwiceAndOnlyTheLastPictureLives) {
    BuiltPanel();
    SetImage(&_image);
    ASSERT_EQ(Shown().pixels[0], 255);
    _image.GetPixels()[0] = 42;
    EXPECT_EQ(Shown().pixels[0], 255) << "a change of the image alone shows nowhere";
    EXPECT_EQ(SetImage(&_image), SuccessIn(source));
    EXPECT_EQ(Shown().pixels[0], 42);
    EXPECT_EQ(LivingReps(), 1);
    EXPECT_EQ(ViewerInspector::Draws(Viewer()), 2);
}

TEST_F(OrvKvSketchSubTest, ANullImageIsReportedAndThePictureStays) {
    BuiltPanel();
    EXPECT_EQ(SetImage(nullptr), FailureIn(source, "Invalid input data ipImage"));
    EXPECT_FALSE(Shown());
    SetImage(&_image);
    EXPECT_EQ(SetImage(nullptr), FailureIn(source, "Invalid input data ipImage"));
    EXPECT_EQ(Shown().width, 12);
    EXPECT_EQ(LivingReps(), 1);
    EXPECT_EQ(ViewerInspector::Draws(Viewer()), 1);
}

TEST_F(OrvKvSketchSubTest, AnImageWithoutPixelsShowsNothing) {
    BuiltPanel();
    for (const int side : {0, -1, 20000}) {
        SetImage(&_image);
        const CATPixelImage unfit(side, side);
        EXPECT_EQ(SetImage(&unfit), SuccessIn(source)) << side;
        EXPECT_FALSE(Shown()) << side;
        EXPECT_EQ(LivingReps(), 1) << side;
    }
    EXPECT_EQ(SetImage(&_image), SuccessIn(source));
    EXPECT_TRUE(Shown());
}

TEST_F(OrvKvSketchSubTest, TheImageMayGoAfterwards) {
    BuiltPanel();
    auto image = std::make_unique<CATPixelImage>(2, 2);
    SetImage(image.get());
    image.reset();
    EXPECT_EQ(Shown().pixels[11], 255);
}

TEST_F(OrvKvSketchSubTest, BeforeThePanelIsBuiltAnImageIsRefusedAndANullOneReported) {
    EXPECT_EQ(SetImage(&_image), PlainFailure());
    EXPECT_EQ(SetImageWithoutText(&_image), PlainFailure());
    EXPECT_EQ(SetImage(nullptr), FailureIn(source, "Invalid input data ipImage"));
    EXPECT_EQ(LivingReps(), 0);
    BuiltPanel();
    EXPECT_FALSE(Shown());
    EXPECT_EQ(SetImage(&_image), SuccessIn(source));
}

TEST_F(OrvKvSketchSubTest, HearsAndSendsNothing) {
    const int subscriptions = host::CommandInspection::Subscriptions();
    BuiltPanel();
    SetImage(&_image);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 0);
    EXPECT_EQ(host::CommandInspection::Subscriptions(), subscriptions);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvSketchSubTest, ADestroyedPanelTakesViewerAndPictureAlong) {
    BuiltPanel();
    SetImage(&_image);
    EXPECT_EQ(LivingReps(), 1);
    delete _panel;
    EXPECT_EQ(LivingReps(), 0);
    EXPECT_FALSE(Exists("Viewer"));
}

TEST_F(OrvKvSketchSubTest, CopiesShareViewerAndPicture) {
    BuiltPanel();
    SetImage(&_image);
    {
        OrvKvSketchSub copy(Panel());
        EXPECT_TRUE(host::Inspector::Children(copy).empty());
        EXPECT_EQ(LivingReps(), 1);
        EXPECT_EQ(copy.SetImage(&_other), S_OK);
        EXPECT_EQ(Shown().width, 20);
    }
    EXPECT_FALSE(Shown()) << "the picture of the copy went with it";
    EXPECT_EQ(SetImage(&_image), SuccessIn(source));
    EXPECT_EQ(Shown().width, 12);
    EXPECT_EQ(LivingReps(), 1);
}

TEST_F(OrvKvSketchSubTest, TheEndOfAnUnusedCopyLeavesThePicture) {
    BuiltPanel();
    SetImage(&_image);
    {
        const OrvKvSketchSub copy(Panel());
        OrvKvSketchSub assigned(MainWindow());
        assigned = copy;
        EXPECT_EQ(LivingReps(), 1);
    }
    EXPECT_EQ(Shown().width, 12);
    EXPECT_EQ(LivingReps(), 1);
}

TEST_F(OrvKvSketchSubTest, KeepsItsPictureWhenItIsAssignedToItself) {
    BuiltPanel();
    SetImage(&_image);
    const OrvKvSketchSub& same = Panel();
    Panel() = same;
    EXPECT_EQ(Shown().width, 12);
    EXPECT_EQ(LivingReps(), 1);
}

TEST_F(OrvKvSketchSubTest, AnAssignedPanelGivesUpItsOwnPicture) {
    BuiltPanel();
    SetImage(&_image);
    auto* const other = new OrvKvSketchSub(MainWindow());
    other->Build();
    other->SetImage(&_other);
    EXPECT_EQ(LivingReps(), 2);
    *other = Panel();
    EXPECT_EQ(LivingReps(), 1);
    EXPECT_EQ(other->SetImage(&_other), S_OK);
    const auto* const viewer = dynamic_cast<const CAT2DViewer*>(host::Inspector::FirstChild(Panel()));
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(ViewerInspector::PictureOf(*viewer).width, 20) << "the viewer that both have now";
    delete other;
}

TEST_F(OrvKvSketchSubTest, WithoutMemoryForTheViewerThePanelStaysEmptyAndTakesNoImage) {
    host::FaultPoints::FailCall(1, "widget allocation");
    Panel().Build();
    host::FaultPoints::Stop();
    EXPECT_TRUE(host::Inspector::Children(Panel()).empty());
    EXPECT_EQ(SetImage(&_image), PlainFailure());
    BuiltPanel();
    EXPECT_EQ(SetImage(&_image), SuccessIn(source));
}

TEST_F(OrvKvSketchSubTest, WithoutMemoryForThePictureNothingIsShownAndTheNextOneIs) {
    BuiltPanel();
    SetImage(&_other);
    host::FaultPoints::FailCall(1, "representation allocation");
    const Report report = SetImage(&_image);
    host::FaultPoints::Stop();
    EXPECT_EQ(report, PlainFailure());
    EXPECT_FALSE(Shown());
    EXPECT_EQ(ViewerInspector::Draws(Viewer()), 2) << "the viewer was drawn empty";
    EXPECT_EQ(SetImage(&_image), SuccessIn(source));
    EXPECT_EQ(Shown().width, 12);
}

// Every call on the way fails once: the picture is the one asked for or none, and the next image is shown.
TEST_F(OrvKvSketchSubTest, EachFailingCallLeavesThePanelUsable) {
    host::FaultPoints::StartCounting();
    BuiltPanel();
    SetImage(&_image);
    const int calls = host::FaultPoints::Passed();
    host::FaultPoints::Stop();
    ASSERT_GE(calls, 2) << "the viewer and the picture";
    for (int call = 1; call <= calls; ++call) {
        delete _panel;
        _panel = new OrvKvSketchSub(MainWindow());
        host::FaultPoints::FailCall(call);
        BuiltPanel();
        const Report report = SetImage(&_image);
        host::FaultPoints::Stop();
        EXPECT_TRUE(report == SuccessIn(source) || report == PlainFailure()) << call;
        EXPECT_EQ(Exists("Viewer") && Shown(), report == SuccessIn(source)) << call;
        BuiltPanel();
        EXPECT_EQ(SetImage(&_other), SuccessIn(source)) << call;
        EXPECT_EQ(Shown().width, 20) << call;
        EXPECT_EQ(LivingReps(), 1) << call;
    }
}

TEST_F(OrvKvSketchSubTest, HelpForTheViewerIsThereInEveryLanguage) {
    BuiltPanel();
    std::vector<std::string> shortHelps;
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        EXPECT_GT(Viewer().GetLongHelp().GetLengthInChar(), 0) << language;
        EXPECT_GT(Viewer().GetHelp().GetLengthInChar(), 0) << language;
        shortHelps.emplace_back(Viewer().GetShortHelp().ConvertToChar());
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(shortHelps, (std::vector<std::string>{"Feature drawing", "Zeichnung des Features",
                                                    "Dessin de la fonction", "フィーチャーの図"}));
}

TEST_F(OrvKvSketchSubTest, LooksAsAccepted) {
    BuiltPanel();
    EXPECT_TRUE(
        MatchesGolden("SketchSub-built", host::DialogDump::Of(Panel(), host::DialogDump::WithLayout)));
    SetImage(&_other);
    EXPECT_TRUE(
        MatchesGolden("SketchSub-filled", host::DialogDump::Of(Panel(), host::DialogDump::WithLayout)));
}

} // namespace
