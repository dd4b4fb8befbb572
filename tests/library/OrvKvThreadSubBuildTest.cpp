// What the thread panel consists of: its widgets, their places and texts, its copies and its end.

#include "OrvKvThreadSubTest.h"

#include "support/GoldenFolder.h"

#include "CATDlgContainer.h"
#include "CATDlgLabel.h"
#include "CATDlgSpinner.h"
#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/FaultPoints.h"
#include "host/LayoutPlan.h"
#include "host/MessageCatalogs.h"

#include <limits>
#include <utility>

namespace {

using namespace support;
using namespace threadSub;

constexpr char init[] = "init 1 0 '' '' 0";

class OrvKvThreadSubBuildTest : public OrvKvThreadSubTest {
  protected:
    std::string Dump() const { return host::DialogDump::Of(*_panel, host::DialogDump::WithLayout); }
};

TEST_F(OrvKvThreadSubBuildTest, IsAPlainFrameThatIsEmptyAndSilentBeforeItIsBuilt) {
    Make();
    EXPECT_STREQ(_panel->GetName().ConvertToChar(), "ThreadSub");
    EXPECT_EQ(host::Inspector::Style(*_panel), 0x80000UL);
    EXPECT_EQ(host::Inspector::Parent(*_panel), MainWindow());
    EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubBuildTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    Make();
    for (const int level : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_STREQ(_panel->GetResourceFilename(level), "OrvKvThreadSub") << level;
    for (const int level : {1, 2, std::numeric_limits<int>::max()})
        EXPECT_EQ(_panel->GetResourceFilename(level), nullptr) << level;
}

TEST_F(OrvKvThreadSubBuildTest, BuildMakesASpacerAndTheFrameBelowIt) {
    MakeBuilt();
    EXPECT_EQ(PiecesOf(*_panel),
              Pieces({{"CATDlgContainer", "SepStandardThreadCkbFromFrmCon", 0, "0(1)-1(4)", "1(1)"},
                      {"CATDlgFrame", "StandardThreadFrm", 0, "0(1)-1(4)", "2(1)-3(4)"}}));
    EXPECT_TRUE(host::PlanLayout(*_panel).IsAbove(Widget<CATDialog>("SepStandardThreadCkbFromFrmCon"),
                                                  Widget<CATDialog>("StandardThreadFrm")));
}

TEST_F(OrvKvThreadSubBuildTest, TheFrameHoldsARowForEachValueInThisOrder) {
    MakeBuilt();
    EXPECT_EQ(PiecesOf(Widget<CATDialog>("StandardThreadFrm")),
              Pieces({{"CATDlgContainer", "SepTypeFromTopCon", 0, "3(4)", "0(1)"},
                      {"CATDlgContainer", "SepLabFromCmbCon", 0, "1(1)", "1(1)"},
                      {"CATDlgLabel", "ThreadTypeLab", 0, "0(1)", "1(1)"},
                      {"CATDlgCombo", "ThreadTypeCmb", 0x40000, "2(1)-4(4)", "1(1)"},
                      {"CATDlgContainer", "SepTypeFromCodeLetterCon", 0, "", ""},
                      {"CATDlgFrame", "ThreadDiaFrm", 0xC0000, "2(1)-4(4)", "2(1)"},
                      {"CATDlgLabel", "DiameterLab", 0, "0(1)", "2(1)"},
                      {"CATDlgContainer", "SepTypeFromDiameterCon", 0, "0(1)", ""},
                      {"CATDlgContainer", "SepLengthFromDiameterCon", 0, "0(1)", ""},
                      {"CATDlgFrame", "InternalDiaFrm", 0xC0000, "2(1)-4(4)", "3(1)"},
                      {"CATDlgLabel", "IntDiamLab", 0, "0(1)", "3(1)"},
                      {"CATDlgContainer", "SepIntDiamFromLengthCon", 0, "0(1)", ""},
                      {"CATDlgFrame", "ThreadLengthFrm", 0xC0000, "2(1)-4(4)", "4(1)"},
                      {"CATDlgLabel", "LengthLab", 0, "0(1)", "4(1)"},
                      {"CATDlgContainer", "SepLengthFromPitchCon", 0, "0(1)", ""},
                      {"CATDlgFrame", "PitchFrm", 0xC0000, "2(1)-4(4)", "5(1)"},
                      {"CATDlgLabel", "ThreadPitchLab", 0, "0(1)", "5(1)"},
                      {"CATDlgContainer", "SepPitchFromDirectionCon", 0, "0(1)", ""},
                      {"CATDlgLabel", "ThreadDirectionLab", 0, "0(1)", "6(1)"},
                      {"CATDlgFrame", "ThreadDirectionFrm", 0x80000, "2(1)-4(4)", "6(1)"}}));
}

TEST_F(OrvKvThreadSubBuildTest, EachLabelStandsLeftOfItsControlAndTheRowsOneBelowTheOther) {
    MakeBuilt();
    const host::LayoutPlan plan = host::PlanLayout(Widget<CATDialog>("StandardThreadFrm"));
    const std::vector<std::pair<const char*, const char*>> rows = {
        {"ThreadTypeLab", "ThreadTypeCmb"}, {"DiameterLab", "ThreadDiaFrm"},
        {"IntDiamLab", "InternalDiaFrm"},   {"LengthLab", "ThreadLengthFrm"},
        {"ThreadPitchLab", "PitchFrm"},     {"ThreadDirectionLab", "ThreadDirectionFrm"}};
    const CATDialog* above = &Widget<CATDialog>("SepTypeFromTopCon");
    for (const auto& [label, control] : rows) {
        EXPECT_TRUE(plan.IsLeftOf(Widget<CATDialog>(label), Widget<CATDialog>(control))) << label;
        EXPECT_TRUE(plan.IsAbove(*above, Widget<CATDialog>(control))) << control;
        above = &Widget<CATDialog>(control);
    }
}

TEST_F(OrvKvThreadSubBuildTest, EachValueFrameIsFilledByASpinner) {
    MakeBuilt();
    const std::vector<std::pair<const char*, const char*>> frames = {{"ThreadDiaFrm", "IntDiamSpn"},
                                                                     {"InternalDiaFrm", "IntDiamSpn"},
                                                                     {"ThreadLengthFrm", "LengthSpn"},
                                                                     {"PitchFrm", "IntDiamSpn"}};
    for (const auto& [frame, name] : frames) {
        EXPECT_EQ(PiecesOf(Widget<CATDialog>(frame)),
                  Pieces({{"CATDlgSpinner", name, 0x60000, "0(1)-1(4)", "0(1)-1(4)"}}));
        const auto& spinner =
            dynamic_cast<CATDlgSpinner&>(*host::Inspector::FirstChild(Widget<CATDialog>(frame)));
        const host::Inspector::Range range = host::Inspector::RangeOf(spinner);
        EXPECT_EQ(range.minimum, 0.0) << frame;
        EXPECT_EQ(range.maximum, 9999.0) << frame;
        EXPECT_EQ(range.step, 1.0) << frame;
        EXPECT_EQ(range.precision, 0) << frame;
        EXPECT_EQ(spinner.GetValue(), 0.0) << frame;
    }
}

TEST_F(OrvKvThreadSubBuildTest, TheDirectionsStandSideBySideLeftHandedFirstAndNoneIsChecked) {
    MakeBuilt();
    EXPECT_EQ(PiecesOf(Widget<CATDialog>("ThreadDirectionFrm")),
              Pieces({{"CATDlgRadioButton", "LeftHandedRdb", 0, "0(1)-1(4)", "0(1)-1(4)"},
                      {"CATDlgRadioButton", "RightHandedRdb", 0, "2(1)-3(4)", "0(1)-1(4)"}}));
    EXPECT_TRUE(
        host::PlanLayout(Widget<CATDialog>("ThreadDirectionFrm")).IsLeftOf(LeftHanded(), RightHanded()));
    EXPECT_EQ(LeftHanded().GetState(), CATDlgUncheck);
    EXPECT_EQ(RightHanded().GetState(), CATDlgUncheck);
}

TEST_F(OrvKvThreadSubBuildTest, SpacersHaveTheirOwnExtents) {
    MakeBuilt();
    std::vector<std::string> extents;
    for (const char* panel : {"ThreadSub", "StandardThreadFrm"})
        for (const CATDialog* child : host::Inspector::Children(Widget<CATDialog>(panel))) {
            if (dynamic_cast<const CATDlgContainer*>(child) == nullptr)
                continue;
            int place[4] = {0, 0, 0, 0};
            child->GetRectDimensions(&place[0], &place[1], &place[2], &place[3]);
            std::ostringstream text;
            text << child->GetName().ConvertToChar() << ' ' << place[0] << ' ' << place[1] << ' ' << place[2]
                 << ' ' << place[3];
            extents.push_back(text.str());
        }
    EXPECT_EQ(extents, Texts({"SepStandardThreadCkbFromFrmCon 1 1 10 10", "SepTypeFromTopCon 1 1 15 10",
                              "SepLabFromCmbCon 1 1 8 24", "SepTypeFromCodeLetterCon 1 1 10 10",
                              "SepTypeFromDiameterCon 1 1 10 10", "SepLengthFromDiameterCon 1 1 10 10",
                              "SepIntDiamFromLengthCon 1 1 10 10", "SepLengthFromPitchCon 1 1 10 10",
                              "SepPitchFromDirectionCon 1 1 10 10"}));
}

TEST_F(OrvKvThreadSubBuildTest, NoWidgetHasAReservedName) {
    MakeStandard();
    EXPECT_TRUE(Exists("StandardThreadFrm"));
    for (const char* name : {"StandardThreadCkb", "LowerFrm", "DescriptionLab", "OutputLab", "TakePbt"})
        EXPECT_TRUE(host::DialogPath::Named(name).empty()) << name;
}

TEST_F(OrvKvThreadSubBuildTest, TheCombosAreEmptyAndOfPlainHeight) {
    MakeBuilt();
    EXPECT_EQ(LinesOf(Types()), Lines());
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Types()), 0);
}

TEST_F(OrvKvThreadSubBuildTest, BuildEndsByAskingForTheDataOfThePanel) {
    Make();
    // What is there when the command hears of it.
    class Looking : public RecordingCommand {
      public:
        CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom,
                                                    CATNotification* iNotification) override {
            built = Exists("RightHandedRdb");
            return RecordingCommand::AnalyseNotification(iFrom, iNotification);
        }
        bool built = false;
    } command;
    host::Application::SetActiveCommand(&command);
    _panel->Build();
    host::Application::SetActiveCommand(&Command());
    ASSERT_EQ(command.Heard().size(), 1U);
    EXPECT_EQ(Told(command.Heard().front().notification), init);
    EXPECT_EQ(command.Heard().front().sender, _panel);
    EXPECT_TRUE(command.built);
}

TEST_F(OrvKvThreadSubBuildTest, ASecondBuildMakesAndSendsNothing) {
    Make().Build();
    EXPECT_EQ(Said(), Texts({init}));
    const std::string before = Dump();
    const int callbacks = host::CommandInspection::AnalyseCallbacks(*_panel);
    _panel->Build();
    EXPECT_EQ(Dump(), before);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), callbacks);
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubBuildTest, NotificationsGoToTheFatherAndNotThroughThePanelItself) {
    auto* const panel = new ListeningPanel<OrvKvThreadSub>(MainWindow());
    panel->Build();
    EXPECT_EQ(Said(), Texts({init}));
    EXPECT_EQ(panel->Count(), 0);
    LeftHanded().SendNotification(panel, new OrvKvThreadInitNotification(1));
    EXPECT_EQ(panel->Count(), 1) << "one that is sent to the panel is counted";
}

TEST_F(OrvKvThreadSubBuildTest, LooksLikeThis) {
    MakeBuilt();
    EXPECT_TRUE(MatchesGolden("ThreadSub-built", Dump()));
    delete _panel;
    MakeStandard();
    EXPECT_TRUE(MatchesGolden("ThreadSub-standard", Dump()));
    delete _panel;
    MakeBound();
    SetTypes(_types, -1);
    EXPECT_TRUE(MatchesGolden("ThreadSub-no-standard", Dump()));
}

TEST_F(OrvKvThreadSubBuildTest, CaptionsAreThereInEveryLanguage) {
    MakeBuilt();
    std::vector<Lines> captions;
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        Lines texts;
        for (const char* name :
             {"StandardThreadFrm", "ThreadTypeLab", "DiameterLab", "IntDiamLab", "LengthLab",
              "ThreadPitchLab", "ThreadDirectionLab", "LeftHandedRdb", "RightHandedRdb"})
            texts.emplace_back(Widget<CATDialog>(name).GetTitle().ConvertToChar());
        captions.push_back(texts);
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(captions, std::vector<Lines>({{"Thread", "Type", "Diameter", "Internal diameter", "Length",
                                             "Pitch", "Direction", "Left handed", "Right handed"},
                                            {"Gewinde", "Typ", "Durchmesser", "Kerndurchmesser", "Länge",
                                             "Steigung", "Richtung", "Linksgängig", "Rechtsgängig"},
                                            {"Filetage", "Type", "Diamètre", "Diamètre intérieur", "Longueur",
                                             "Pas", "Sens", "À gauche", "À droite"},
                                            {"ねじ", "タイプ", "直径", "内径", "長さ", "ピッチ", "方向",
                                             "左ねじ", "右ねじ"}}));
}

TEST_F(OrvKvThreadSubBuildTest, EveryValueAndChoiceHasHelpInEveryLanguage) {
    MakeStandard();
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        for (const char* name : {"ThreadTypeCmb", "ThreadDiaFrm", "DiameterCmb", "InternalDiaFrm",
                                 "ThreadLengthFrm", "PitchFrm", "LeftHandedRdb", "RightHandedRdb"}) {
            const auto& widget = Widget<CATDialog>(name);
            EXPECT_GT(widget.GetShortHelp().GetLengthInChar(), 0) << language << name;
            EXPECT_GT(widget.GetHelp().GetLengthInChar(), 0) << language << name;
            EXPECT_GT(widget.GetLongHelp().GetLengthInChar(), 0) << language << name;
        }
    }
    host::MessageCatalogs::SetLanguage("");
}

TEST_F(OrvKvThreadSubBuildTest, CopiesShareWidgetsAndParametersAndHaveTextsOfTheirOwn) {
    MakeStandard();
    ASSERT_TRUE(host::DialogUser::Choose(Diameters(), 1));
    ASSERT_TRUE(host::DialogUser::Check(RightHanded()));
    OrvKvThreadSub copy(*_panel);
    auto& other = *new OrvKvThreadSub(MainWindow()); // reaches the command, which a copy does not
    other = copy;
    ASSERT_TRUE(host::DialogUser::Choose(Diameters(), 2));
    ASSERT_TRUE(host::DialogUser::Check(LeftHanded()));
    Said();
    EXPECT_EQ(other.SetAsStandardThread(), S_OK);
    EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
    EXPECT_EQ(Said(), Texts({"take 'M10' P 1.5 DK 8.5 DG 10 'RH' 'Metric'",
                             "take 'M12' P 1.5 DK 8.5 DG 10 'LH' 'Metric'"}));
    for (OrvKvThreadSub* const panel : {&copy, &other}) {
        panel->Build(); // has its widgets already
        EXPECT_TRUE(host::Inspector::Children(*panel).empty());
        EXPECT_EQ(panel->SetThreadDims(threadSub::ListOf(Texts{"M5"}), 0, 0), S_OK);
        EXPECT_EQ(LinesOf(Diameters()), Lines({"M5"}));
        SetDims(_diameters, 0);
    }
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubBuildTest, ADestroyedCopyLeavesTheCallbacksOfTheOriginalAlone) {
    MakeStandard();
    { const OrvKvThreadSub copy(*_panel); }
    ASSERT_TRUE(host::DialogUser::Choose(Diameters(), 1));
    ASSERT_TRUE(host::DialogUser::Check(LeftHanded()));
    EXPECT_EQ(Said(),
              Texts({"diameter 'M10' of 'Metric' init 1", "take 'M10' P 1.5 DK 8.5 DG 10 'LH' 'Metric'"}));
}

TEST_F(OrvKvThreadSubBuildTest, APanelRemovesItsCallbacksBeforeItsWidgetsGo) {
    for (const int type : {-1, 0}) {
        std::vector<int> counts;
        Make();
        new CountingChild(*_panel, counts);
        _panel->Build();
        new CountingChild(*_panel, counts);
        Bind();
        Rebuild(_types, type, _diameters, 0);
        const int own = type == 0 ? 4 : 3; // the types, both directions, and the diameters of a standard
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), own);
        const int before = host::CommandInspection::AnalyseCallbacks();
        delete _panel;
        EXPECT_EQ(counts, std::vector<int>({0, 0}));
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), before - own);
        EXPECT_FALSE(Exists("StandardThreadFrm"));
        Said();
    }
}

TEST_F(OrvKvThreadSubBuildTest, ADestroyedPanelLetsGoOfItsParameters) {
    const auto references = [this] {
        std::vector<CATULong> counts;
        for (const CATICkeParm_var& parameter : {_diameter, _internalDiameter, _length, _pitch}) {
            parameter->AddRef();
            counts.push_back(parameter->Release());
        }
        return counts;
    };
    const std::vector<CATULong> before = references();
    MakeStandard();
    EXPECT_NE(references(), before);
    delete _panel;
    EXPECT_EQ(references(), before);
}

TEST_F(OrvKvThreadSubBuildTest, WithoutMemoryForTheFrameNothingIsMadeUntilThePanelIsBuiltAgain) {
    Make();
    host::FaultPoints::FailCall(2, "widget allocation");
    {
        const host::EventScope event;
        _panel->Build();
    }
    host::FaultPoints::Stop();
    EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
    EXPECT_EQ(Said(), Texts());
    _panel->Build();
    EXPECT_EQ(Said(), Texts({init}));
    EXPECT_TRUE(MatchesGolden("ThreadSub-built", Dump()));
}

TEST_F(OrvKvThreadSubBuildTest, AnyOtherWidgetThatCannotBeMadeIsMissingAloneWithWhatItHolds) {
    MakeBuilt();
    const std::string whole = Dump();
    delete _panel;
    constexpr int widgets = 28;
    for (int missing = 1; missing <= widgets; ++missing) {
        if (missing == 2)
            continue; // the frame that holds all the rest
        Make();
        host::FaultPoints::FailCall(missing, "widget allocation");
        _panel->Build();
        host::FaultPoints::Stop();
        EXPECT_EQ(Said(), Texts({init})) << missing;
        // One line is missing, with those of its children.
        std::istringstream lines(Dump());
        std::istringstream allLines(whole);
        std::string line;
        std::string expected;
        int left = 0;
        std::getline(lines, line);
        while (std::getline(allLines, expected))
            if (expected == line) {
                std::getline(lines, line);
            } else {
                ++left;
            }
        EXPECT_TRUE(lines.eof()) << missing << ": " << line;
        EXPECT_TRUE(left >= 1 && left <= 3) << missing << ": " << left;
        _panel->Build(); // makes nothing: what is there was made once
        EXPECT_EQ(Said(), Texts()) << missing;
        delete _panel;
    }
}

} // namespace
