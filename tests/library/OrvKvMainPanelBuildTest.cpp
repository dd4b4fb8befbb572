// The main panel as it is made: its tree, its texts, copies and its end.

#include "OrvKvMainPanelTest.h"

#include "CATDlgDocument.h"
#include "CATDlgLabel.h"
#include "CATDlgMultiList.h"
#include "CATDlgTabPage.h"
#include "CATError.h"
#include "OrvKvParameterListSub.h"
#include "OrvKvParameterSetListSub.h"
#include "host/CommandInspection.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"
#include "host/LayoutPlan.h"
#include "host/MessageCatalogs.h"
#include "support/GoldenFolder.h"
#include "support/ResourceFolder.h"

#include <limits>

namespace {

using namespace support;
using namespace mainPanel;

const char rulesFrame[] = "Applicative Rules   ";
const char spacer[] = "               ";

using OrvKvMainPanelBuildTest = OrvKvMainPanelTest;

TEST_F(OrvKvMainPanelBuildTest, IsADialogOfTheMainWindowAndEmptyBeforeItIsBuilt) {
    const OrvKvMainPanel& panel = Make();
    EXPECT_STREQ(panel.GetName().ConvertToChar(), "MainPanel");
    EXPECT_EQ(host::Inspector::Parent(panel), MainWindow());
    EXPECT_EQ(host::Inspector::Style(panel), 0x443C00UL);
    EXPECT_TRUE(host::Inspector::Children(panel).empty());
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(panel), 0);
}

TEST_F(OrvKvMainPanelBuildTest, HasTheStandardButtonsAndNoneOfThemAnswersEnter) {
    OrvKvMainPanel& panel = MakeBuilt();
    EXPECT_EQ(host::Inspector::StandardButtons(panel).size(), 4U);
    for (const CATULong button : {CATDlgWndOK, CATDlgWndAPPLY, CATDlgWndCANCEL, CATDlgWndHELP})
        EXPECT_TRUE(host::DialogUser::PressStandardButton(panel, button)) << button;
    Command().Forget();
    EXPECT_EQ(host::Inspector::DefaultButton(panel), 0UL);
    static_cast<void>(host::DialogUser::PressEnter(panel));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvMainPanelBuildTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    Make();
    for (const int level : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_STREQ(Panel().GetResourceFilename(level), "OrvKvMainPanel") << level;
    for (const int level : {1, 2, std::numeric_limits<int>::max()})
        EXPECT_EQ(Panel().GetResourceFilename(level), nullptr) << level;
}

TEST_F(OrvKvMainPanelBuildTest, HasFourFramesBelowOneAnother) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        const OrvKvMainPanel& panel = MakeBuilt(mode);
        EXPECT_EQ(PiecesOf(panel),
                  Pieces({{"CATDlgFrame", "GroupFrm", 0, "0(1)-1(4)", "0(1)"},
                          {"CATDlgFrame", "CombineLowerFrm", 0x80000, "0(1)-1(4)", "1(1)-2(4)"},
                          {"CATDlgFrame", "BottomFrm", 0x80000, "0(1)-1(4)", "3(1)-4(3)"},
                          {"CATDlgFrame", rulesFrame, 0, "0(1)-1(4)", "5(1)"}}));
        const std::vector<CATDialog*> frames = host::Inspector::Children(panel);
        const host::LayoutPlan plan = host::PlanLayout(panel);
        for (std::size_t frame = 1; frame < frames.size(); ++frame)
            EXPECT_TRUE(plan.IsAbove(*frames[frame - 1], *frames[frame])) << frame;
        for (const CATDialog* frame : frames)
            EXPECT_TRUE(host::DialogUser::CanSee(*frame)) << frame->GetName().ConvertToChar();
    }
}

TEST_F(OrvKvMainPanelBuildTest, GroupAndGeometryStandBesideTypeAndParameterSet) {
    MakeBuilt();
    const auto& frame = Part<CATDlgFrame>("GroupFrm");
    EXPECT_EQ(PiecesOf(frame),
              Pieces({{"CATDlgFrame", "OrvKvGroupAndGeometrySub", 0x80000, "0(1)", "0(1)-1(4)"},
                      {"CATDlgFrame", "OrvKvTypeAndParameterSetSub", 0x80000, "1(1)-2(4)", "0(1)-1(4)"}}));
    const std::vector<CATDialog*> panels = host::Inspector::Children(frame);
    EXPECT_TRUE(host::PlanLayout(frame).IsLeftOf(*panels[0], *panels[1]));
    for (const char* name : {"GroupCmb", "Input1Pbt", "TypeSelectCombo", "ParameterSetCmb"})
        EXPECT_TRUE(host::DialogUser::CanSee(Part<CATDialog>(name))) << name;
}

TEST_F(OrvKvMainPanelBuildTest, InParameterModeTheParametersStandBesideThePages) {
    MakeBuilt(parameterMode);
    const auto& frame = Part<CATDlgFrame>("CombineLowerFrm");
    EXPECT_EQ(PiecesOf(frame), Pieces({{"CATDlgFrame", "OrvKvParameterListSub", 0, "0(1)-1(4)", "0(1)-1(4)"},
                                       {"CATDlgFrame", "TabContainerSub", 0x80000, "2(1)", "0(1)-1(4)"}}));
    const std::vector<CATDialog*> panels = host::Inspector::Children(frame);
    EXPECT_NE(dynamic_cast<OrvKvParameterListSub*>(panels[0]), nullptr);
    EXPECT_TRUE(host::PlanLayout(frame).IsLeftOf(*panels[0], *panels[1]));
    EXPECT_TRUE(host::DialogUser::CanSee(Part<CATDialog>("ParameterMul")));
    EXPECT_TRUE(host::DialogUser::CanSee(Part<CATDialog>("SketchPge")));
}

TEST_F(OrvKvMainPanelBuildTest, InParameterSetModeTheSetsStandBesideThePages) {
    MakeBuilt(setMode);
    const auto& frame = Part<CATDlgFrame>("CombineLowerFrm");
    EXPECT_EQ(PiecesOf(frame),
              Pieces({{"CATDlgFrame", "OrvKvParameterListSub", 0xC0000, "0(1)-1(4)", "0(1)-1(4)"},
                      {"CATDlgFrame", "TabContainerSub", 0x80000, "2(1)", "0(1)-1(4)"}}));
    EXPECT_NE(dynamic_cast<OrvKvParameterSetListSub*>(host::Inspector::Children(frame)[0]), nullptr);
    EXPECT_TRUE(host::DialogUser::CanSee(Part<CATDialog>("ParameterSetMul")));
    EXPECT_TRUE(host::DialogUser::CanSee(Part<CATDialog>("SketchPge")));
}

TEST_F(OrvKvMainPanelBuildTest, EveryModeButOneIsParameterMode) {
    for (const int mode : {0, 1, 2, 255}) {
        MakeBuilt(static_cast<unsigned char>(mode));
        const CATDialog* const list = host::Inspector::Children(Part<CATDialog>("CombineLowerFrm")).front();
        EXPECT_EQ(dynamic_cast<const OrvKvParameterSetListSub*>(list) != nullptr, mode == 1) << mode;
        EXPECT_EQ(dynamic_cast<const OrvKvParameterListSub*>(list) != nullptr, mode != 1) << mode;
    }
}

TEST_F(OrvKvMainPanelBuildTest, TheModeReachesTheSelectorOfTypeAndSetUnchanged) {
    for (const int mode : {0, 1, 2, 255}) {
        MakeBuilt(static_cast<unsigned char>(mode));
        EXPECT_EQ(Part<CATDlgCombo>("ParameterSetCmb").GetVisibility(), mode == 0 ? CATDlgShow : CATDlgHide)
            << mode;
    }
}

TEST_F(OrvKvMainPanelBuildTest, TheListFlagReachesTheParameterListUnchanged) {
    for (const int flag : {0, 1, 255}) {
        MakeBuilt(parameterMode, static_cast<unsigned char>(flag));
        EXPECT_EQ(Part<CATDlgMultiList>("ParameterMul").GetColumnCount(), flag == 0 ? 5 : 4) << flag;
    }
}

TEST_F(OrvKvMainPanelBuildTest, TheButtonsForParameterSetsReportInBothModes) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        MakeBuilt(mode);
        ASSERT_TRUE(host::DialogUser::ShowPage(Part<CATDlgTabPage>("ParameterSetEditorPge")));
        Command().Forget();
        ASSERT_TRUE(host::DialogUser::Press(Part<CATDlgPushButton>("NewParameterSetPbt")));
        EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvNewParameterSetNotification"}));
    }
}

TEST_F(OrvKvMainPanelBuildTest, MoreOrLessStandsRightOfASpacerOfFifteenBlanks) {
    MakeBuilt();
    const auto& frame = Part<CATDlgFrame>("BottomFrm");
    EXPECT_EQ(PiecesOf(frame), Pieces({{"CATDlgLabel", spacer, 0, "0(1)-1(4)", "0(1)"},
                                       {"CATDlgPushButton", "MoreLessButton", 0x80000, "2(1)", "0(1)"}}));
    EXPECT_STREQ(Part<CATDlgLabel>(spacer).GetTitle().ConvertToChar(), spacer);
    EXPECT_TRUE(host::PlanLayout(frame).IsLeftOf(Part<CATDialog>(spacer), Part<CATDialog>("MoreLessButton")));
}

TEST_F(OrvKvMainPanelBuildTest, TheRulesHaveAnEditorThatNobodyTypesInAndALight) {
    MakeBuilt();
    EXPECT_EQ(PiecesOf(Part<CATDlgFrame>(rulesFrame)),
              Pieces({{"CATDlgEditor", "KelvaneRules", 0x4080000, "0(1)-1(4)", "0(1)"},
                      {"CATDlgLabel", "Label003", 0, "1(3)", "0(1)"}}));
    auto& editor = Part<CATDlgEditor>("KelvaneRules");
    const host::LayoutPlan plan = host::PlanLayout(Part<CATDialog>(rulesFrame));
    EXPECT_TRUE(plan.IsLeftOf(editor, Part<CATDialog>("Label003")));
    EXPECT_EQ(editor.GetLineCount(), 0);
    EXPECT_EQ(host::Inspector::VisibleTextHeight(editor), 5);
    EXPECT_EQ(host::Inspector::VisibleTextWidth(editor), 5);
    EXPECT_EQ(host::Inspector::MaxTextWidth(editor), 0) << "messages are kept whole";
    const CATDlgGridConstraints grid = host::Inspector::GridConstraints(editor);
    EXPECT_EQ(grid.Row, 0);
    EXPECT_EQ(grid.Column, 0);
    EXPECT_EQ(grid.H_Span, 1);
    EXPECT_EQ(grid.V_Span, 1);
    EXPECT_EQ(grid.Justification, 30U);
    EXPECT_FALSE(host::DialogUser::Type(editor, "typed"));
}

TEST_F(OrvKvMainPanelBuildTest, NoWidgetHasTheNameOfALogo) {
    MakeBuilt();
    for (const char* name : {"LogoFrm", "CompanyLogoLab", "DepartmentLogoLab"})
        EXPECT_EQ(FindBelow(Panel(), name), nullptr) << name;
    EXPECT_NE(FindBelow(Panel(), "GroupFrm"), nullptr);
}

TEST_F(OrvKvMainPanelBuildTest, ASecondBuildMakesNothing) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        MakeBuilt(mode);
        Fill();
        const std::string before = Dump();
        Panel().Build();
        EXPECT_EQ(Dump(), before);
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 2) << "a move, and More or Less";
        EXPECT_EQ(Command().TakeClasses(), Classes());
    }
}

TEST_F(OrvKvMainPanelBuildTest, TheLongHelpIsThatOfTheLanguageInWhichThePanelWasBuilt) {
    MakeBuilt();
    const CATUnicodeString english = Panel().GetLongHelp();
    EXPECT_EQ(english.SearchSubString("Kelvane feature"), 0);
    host::MessageCatalogs::SetLanguage("German");
    EXPECT_STREQ(Panel().GetLongHelp().ConvertToChar(), english.ConvertToChar());
    MakeBuilt();
    EXPECT_EQ(Panel().GetLongHelp().SearchSubString("Kelvane-Feature"), 0);
    host::MessageCatalogs::SetLanguage("");
}

TEST_F(OrvKvMainPanelBuildTest, BuiltWithoutTextsItHasNoLongHelpOfItsOwnAndMoreOrLessShowsItsName) {
    host::MessageCatalogs::Reset();
    MakeBuilt();
    EXPECT_EQ(Panel().GetLongHelp(), CATUnicodeString());
    EXPECT_EQ(TitleOfMoreLess(), "MoreLessButton");
    host::MessageCatalogs::Reset();
    UseLibraryResources();
    EXPECT_EQ(Panel().GetLongHelp().SearchSubString("Kelvane feature"), 0)
        << "the text is found later, since none was set";
}

TEST_F(OrvKvMainPanelBuildTest, HasItsTextsInEveryLanguage) {
    const std::vector<std::pair<const char*, Lines>> texts = {
        {"", {"Kelvane Feature", "Feature", "Less", "Applicative Rules"}},
        {"German", {"Kelvane-Feature", "Feature", "Weniger", "Geltende Regeln"}},
        {"French", {"Fonction Kelvane", "Fonction", "Moins", "Règles applicables"}},
        {"Japanese", {"Kelvane フィーチャー", "フィーチャー", "簡略", "適用ルール"}}};
    for (const auto& [language, expected] : texts) {
        host::MessageCatalogs::SetLanguage(language);
        MakeBuilt();
        EXPECT_EQ(
            Lines({Panel().GetTitle().ConvertToChar(), Part<CATDialog>("GroupFrm").GetTitle().ConvertToChar(),
                   TitleOfMoreLess(), Part<CATDialog>(rulesFrame).GetTitle().ConvertToChar()}),
            expected)
            << language;
        for (const char* name : {"MoreLessButton", "KelvaneRules", "Label003"}) {
            const auto& widget = Part<CATDialog>(name);
            EXPECT_GT(widget.GetShortHelp().GetLengthInChar(), 0) << language << ": " << name;
            EXPECT_GT(widget.GetHelp().GetLengthInChar(), 0) << language << ": " << name;
            EXPECT_GT(widget.GetLongHelp().GetLengthInChar(), 0) << language << ": " << name;
        }
    }
    host::MessageCatalogs::SetLanguage("");
}

TEST_F(OrvKvMainPanelBuildTest, TheThreadPageAsksForItsDataWhileThePanelIsBuilt) {
    Make().Build();
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvThreadInitNotification"}));
}

TEST_F(OrvKvMainPanelBuildTest, LooksTheSameAsEverInParameterMode) {
    MakeBuilt(parameterMode);
    Fill();
    EXPECT_TRUE(MatchesGolden("MainPanel-parameters", Dump()));
    PressMoreLess();
    EXPECT_TRUE(MatchesGolden("MainPanel-parameters-folded", Dump()));
}

TEST_F(OrvKvMainPanelBuildTest, LooksTheSameAsEverInParameterSetMode) {
    MakeBuilt(setMode);
    Fill();
    EXPECT_TRUE(MatchesGolden("MainPanel-sets", Dump()));
    PressMoreLess();
    EXPECT_TRUE(MatchesGolden("MainPanel-sets-folded", Dump()));
}

// A panel that hears of its own size.
class SizeListeningPanel : public OrvKvMainPanel {
  public:
    SizeListeningPanel() : OrvKvMainPanel(parameterMode, 0) {
        AddAnalyseNotificationCB(this, GetWindSizeNotification(),
                                 static_cast<CATCommandMethod>(&SizeListeningPanel::OnSize), nullptr);
    }

  private:
    void OnSize(CATCommand*, CATNotification*, void*) {}
};

TEST_F(OrvKvMainPanelBuildTest, ItsEndRemovesTheCallbacksOfItsWindowBeforeItsChildrenGo) {
    std::vector<int> counts;
    auto* const panel = new SizeListeningPanel();
    panel->Build();
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*panel), 3) << "size, move, and More or Less";
    Below<CATDlgPushButton>(*panel, "MoreLessButton").RequestDelayedDestruction();
    RunIdle();
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*panel), 2);
    new CountingChild(*panel, counts);
    delete panel;
    EXPECT_EQ(counts, std::vector<int>({0}));
}

TEST_F(OrvKvMainPanelBuildTest, AnEndBeforeBuildRemovesNothingAndIsSafe) {
    Make();
    Destroy();
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), 0);
}

TEST_F(OrvKvMainPanelBuildTest, ACopySharesTheWidgetsAndItsEndLeavesThemAlone) {
    MakeBuilt(setMode);
    Fill();
    const std::string before = Dump();
    {
        OrvKvMainPanel copy(Panel());
        copy.UpdateRuleEditor(TextsOf({"from the copy"}));
        EXPECT_STREQ(Part<CATDlgEditor>("KelvaneRules").GetText().ConvertToChar(), "from the copy");
        EXPECT_EQ(copy.SetParameterNames({}, KeysOf({"D"}), {}, {}, {}, {}), E_FAIL)
            << "it has the mode of the original";
        CATError::CATCleanLastError();
        OrvKvMainPanel assigned(parameterMode, 1);
        assigned = copy;
        assigned.UpdateRuleEditor(TextsOf({"D is below K.", "T is above L."}));
        EXPECT_EQ(assigned.GetSelectedParameterSetName(), Panel().GetSelectedParameterSetName());
    }
    EXPECT_EQ(Dump(), before);
    PressMoreLess();
    EXPECT_EQ(TitleOfMoreLess(), "More");
}

} // namespace
