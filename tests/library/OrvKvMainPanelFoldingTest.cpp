// The part below that More and Less show and hide.

#include "OrvKvMainPanelTest.h"

#include "CATDlgMultiList.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"
#include "host/LayoutPlan.h"
#include "host/MessageCatalogs.h"

namespace {

using namespace support;
using namespace mainPanel;

const char rulesFrame[] = "Applicative Rules   ";

const Pieces folded = {{"CATDlgFrame", "GroupFrm", 0, "0(1)-1(4)", "0(1)"},
                       {"CATDlgFrame", "CombineLowerFrm", 0x80000, "", ""},
                       {"CATDlgFrame", "BottomFrm", 0x80000, "0(1)-1(4)", "3(1)-4(3)"},
                       {"CATDlgFrame", rulesFrame, 0, "0(1)-1(4)", "5(1)-6(3)"}};
const Pieces unfolded = {{"CATDlgFrame", "GroupFrm", 0, "0(1)-1(4)", "0(1)"},
                         {"CATDlgFrame", "CombineLowerFrm", 0x80000, "0(1)-1(4)", "2(1)-3(4)"},
                         {"CATDlgFrame", "BottomFrm", 0x80000, "0(1)-1(4)", "4(1)-5(3)"},
                         {"CATDlgFrame", rulesFrame, 0, "0(1)-1(4)", "6(3)"}};

class OrvKvMainPanelFoldingTest : public OrvKvMainPanelTest {
  protected:
    void ExpectFolded(const std::string& iWhen) {
        EXPECT_EQ(TitleOfMoreLess(), "More") << iWhen;
        EXPECT_EQ(Part<CATDialog>("CombineLowerFrm").GetVisibility(), CATDlgHide) << iWhen;
        EXPECT_EQ(PiecesOf(Panel()), folded) << iWhen;
        EXPECT_EQ(PlaceOf(Panel()), Place({0, 0, 340, 670})) << iWhen;
    }
    void ExpectUnfolded(const std::string& iWhen) {
        EXPECT_EQ(TitleOfMoreLess(), "Less") << iWhen;
        EXPECT_EQ(Part<CATDialog>("CombineLowerFrm").GetVisibility(), CATDlgShow) << iWhen;
        EXPECT_EQ(PiecesOf(Panel()), unfolded) << iWhen;
        EXPECT_EQ(PlaceOf(Panel()), Place({0, 0, 640, 670})) << iWhen;
    }
    bool IsSelectorShown() { return Part<CATDialog>("ParameterSetCmb").GetVisibility() == CATDlgShow; }
};

TEST_F(OrvKvMainPanelFoldingTest, StartsUnfoldedAtItsFullHeight) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        MakeBuilt(mode);
        EXPECT_EQ(TitleOfMoreLess(), "Less");
        EXPECT_EQ(Part<CATDialog>("CombineLowerFrm").GetVisibility(), CATDlgShow);
        EXPECT_EQ(PlaceOf(Panel()), Place({0, 0, 640, 670}));
    }
}

TEST_F(OrvKvMainPanelFoldingTest, EachClickFoldsOrUnfoldsAndChangesTheLayoutWithIt) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        MakeBuilt(mode);
        for (int round = 1; round <= 3; ++round) {
            PressMoreLess();
            ExpectFolded("round " + std::to_string(round));
            PressMoreLess();
            ExpectUnfolded("round " + std::to_string(round));
        }
    }
}

TEST_F(OrvKvMainPanelFoldingTest, TheFramesThatAreSeenStandBelowOneAnother) {
    MakeBuilt();
    PressMoreLess();
    const host::LayoutPlan less = host::PlanLayout(Panel());
    EXPECT_EQ(less.cells.size(), 3U);
    EXPECT_TRUE(less.IsAbove(Part<CATDialog>("GroupFrm"), Part<CATDialog>("BottomFrm")));
    EXPECT_TRUE(less.IsAbove(Part<CATDialog>("BottomFrm"), Part<CATDialog>(rulesFrame)));
    PressMoreLess();
    const host::LayoutPlan more = host::PlanLayout(Panel());
    EXPECT_EQ(more.cells.size(), 4U);
    EXPECT_TRUE(more.IsAbove(Part<CATDialog>("GroupFrm"), Part<CATDialog>("CombineLowerFrm")));
    EXPECT_TRUE(more.IsAbove(Part<CATDialog>("CombineLowerFrm"), Part<CATDialog>("BottomFrm")));
    EXPECT_TRUE(more.IsAbove(Part<CATDialog>("BottomFrm"), Part<CATDialog>(rulesFrame)));
}

TEST_F(OrvKvMainPanelFoldingTest, FoldedTheLowerPartCannotBeSeenAndEverythingElseCan) {
    MakeBuilt();
    PressMoreLess();
    for (const char* name : {"ParameterMul", "SketchPge", "TabContainer"})
        EXPECT_FALSE(host::DialogUser::CanSee(Part<CATDialog>(name))) << name;
    for (const char* name : {"GroupCmb", "TypeSelectCombo", "KelvaneRules", "Label003", "MoreLessButton"})
        EXPECT_TRUE(host::DialogUser::CanSee(Part<CATDialog>(name))) << name;
    PressMoreLess();
    for (const char* name : {"ParameterMul", "SketchPge", "TabContainer"})
        EXPECT_TRUE(host::DialogUser::CanSee(Part<CATDialog>(name))) << name;
}

TEST_F(OrvKvMainPanelFoldingTest, InParameterSetModeTheSelectorOfSetsIsThereWhileFolded) {
    MakeBuilt(setMode);
    EXPECT_FALSE(IsSelectorShown());
    PressMoreLess();
    EXPECT_TRUE(IsSelectorShown());
    PressMoreLess();
    EXPECT_FALSE(IsSelectorShown());
}

TEST_F(OrvKvMainPanelFoldingTest, InEveryOtherModeTheSelectorOfSetsStaysAsItIs) {
    for (const int mode : {0, 2}) {
        MakeBuilt(static_cast<unsigned char>(mode));
        EXPECT_EQ(IsSelectorShown(), mode == 0) << mode;
        PressMoreLess();
        EXPECT_EQ(IsSelectorShown(), mode == 0) << mode;
        PressMoreLess();
        EXPECT_EQ(IsSelectorShown(), mode == 0) << mode;
    }
}

TEST_F(OrvKvMainPanelFoldingTest, APanelThatIsOpenedAfterAnotherWasFoldedOpensFolded) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        MakeBuilt(parameterMode);
        PressMoreLess();
        MakeBuilt(mode);
        ExpectFolded("opened");
        EXPECT_TRUE(IsSelectorShown());
        PressMoreLess();
        ExpectUnfolded("one click later");
        EXPECT_EQ(IsSelectorShown(), mode == parameterMode);
        MakeBuilt(mode);
        EXPECT_EQ(TitleOfMoreLess(), "Less") << "and the next one opens unfolded";
    }
}

TEST_F(OrvKvMainPanelFoldingTest, AClickFoldsOrUnfoldsByWhatThePanelsHaveInCommon) {
    MakeBuilt();
    auto* const other = new OrvKvMainPanel(parameterMode, 0);
    other->Build();
    other->SetVisibility(CATDlgShow);
    PressMoreLess();
    ExpectFolded("the panel that was clicked");
    EXPECT_EQ(TitleOfMoreLess(*other), "Less") << "the other panel stays as it is";
    PressMoreLess(*other);
    EXPECT_EQ(TitleOfMoreLess(*other), "Less") << "its click unfolds, since the last one folded";
    EXPECT_EQ(PlaceOf(*other), Place({0, 0, 640, 670}));
    PressMoreLess(*other);
    EXPECT_EQ(TitleOfMoreLess(*other), "More");
    delete other;
}

TEST_F(OrvKvMainPanelFoldingTest, FoldingAndUnfoldingLoseNothingAndReportNothing) {
    MakeBuilt();
    Fill();
    const std::string before = Dump();
    PressMoreLess();
    EXPECT_EQ(Part<CATDlgMultiList>("ParameterMul").GetLineCount(), 2);
    EXPECT_EQ(Panel().SetFittingInfo("D", "H7"), S_OK) << "what is hidden can be changed";
    EXPECT_EQ(Panel().SetFittingInfo("D", "H13"), S_OK);
    PressMoreLess();
    PressMoreLess();
    const std::string foldedTwice = Dump();
    PressMoreLess();
    EXPECT_NE(foldedTwice, before);
    EXPECT_EQ(Part<CATDlgMultiList>("ParameterMul").GetLineCount(), 2);
    EXPECT_EQ(LinesOf(Part<CATDlgCombo>("ParameterSetCmb")), Lines({"M6", "M8"}));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvMainPanelFoldingTest, TheButtonNamesWhatAClickDoesInTheLanguageOfTheMoment) {
    const std::vector<std::pair<const char*, Lines>> titles = {{"", {"Less", "More"}},
                                                               {"German", {"Weniger", "Mehr"}},
                                                               {"French", {"Moins", "Plus"}},
                                                               {"Japanese", {"簡略", "詳細"}}};
    MakeBuilt();
    for (const auto& [language, expected] : titles) {
        host::MessageCatalogs::SetLanguage(language);
        PressMoreLess();
        const std::string more = TitleOfMoreLess();
        PressMoreLess();
        EXPECT_EQ(Lines({TitleOfMoreLess(), more}), expected);
    }
    host::MessageCatalogs::SetLanguage("");
}

TEST_F(OrvKvMainPanelFoldingTest, ALowerPartThatSomebodyShowedIsHiddenByTheNextFolding) {
    MakeBuilt();
    PressMoreLess();
    Part<CATDialog>("CombineLowerFrm").SetVisibility(CATDlgShow);
    PressMoreLess();
    PressMoreLess();
    ExpectFolded("once more");
}

} // namespace
