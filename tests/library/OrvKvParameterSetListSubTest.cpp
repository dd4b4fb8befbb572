// The panel with the parameter sets: its widgets, its texts, its copies and its end.

#include "OrvKvParameterSetListSubTest.h"

#include "support/GoldenFolder.h"

#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"
#include "host/LayoutPlan.h"
#include "host/LiveObjects.h"
#include "host/MessageCatalogs.h"

namespace {

using namespace support;
using namespace parameterSetList;

const char* const languages[] = {"", "German", "French", "Japanese"};

TEST_F(OrvKvParameterSetListSubTest, HasTheNameOfTheParameterListFrameAndTheResourcesOfItsOwnClass) {
    Make();
    EXPECT_STREQ(_panel->GetName().ConvertToChar(), "OrvKvParameterListSub");
    EXPECT_EQ(host::Inspector::Style(*_panel), 0xC0000UL);
    EXPECT_STREQ(_panel->GetResourceFilename(0), "OrvKvParameterSetListSub");
    EXPECT_STREQ(_panel->GetResourceFilename(-3), "OrvKvParameterSetListSub");
    EXPECT_EQ(_panel->GetResourceFilename(1), nullptr);
}

TEST_F(OrvKvParameterSetListSubTest, IsEmptyBeforeItIsBuilt) {
    Make();
    EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
    EXPECT_EQ(SelectedName(), "");
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 0);
}

// The set frame stretches down, the one of the current parameters keeps its height.
TEST_F(OrvKvParameterSetListSubTest, BuildMakesTwoFramesWithATableEach) {
    MakeBuilt();
    EXPECT_EQ(PiecesOf(*_panel),
              Pieces({{"CATDlgFrame", "ParameterSetFrame", 0, "0(1)-1(4)", "0(1)-2(4)"},
                      {"CATDlgFrame", "CurrentParameterFrame", 0, "0(1)-1(4)", "3(1)-4(3)"}}));
    const auto& sets = Widget<CATDlgFrame>("ParameterSetFrame");
    const auto& current = Widget<CATDlgFrame>("CurrentParameterFrame");
    EXPECT_EQ(PiecesOf(sets), Pieces({{"CATDlgMultiList", "ParameterSetMul", 0, "0(1)-1(4)", "0(1)-1(4)"}}));
    EXPECT_EQ(PiecesOf(current),
              Pieces({{"CATDlgMultiList", "CurrentParameterMul", 0, "0(1)-1(4)", "0(1)-1(4)"}}));
    EXPECT_TRUE(host::PlanLayout(*_panel).IsAbove(sets, current));
    EXPECT_EQ(host::Inspector::VisibleTextHeight(SetTable()), 18);
    EXPECT_EQ(host::Inspector::VisibleTextHeight(CurrentTable()), 2);
    for (const CATDlgMultiList* table : {&SetTable(), &CurrentTable()})
        EXPECT_EQ(host::Inspector::VisibleTextWidth(*table), 20);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 3);
}

TEST_F(OrvKvParameterSetListSubTest, LooksTheSameAsEverAfterBuild) {
    MakeBuilt();
    EXPECT_TRUE(MatchesGolden("ParameterSetListSub-built",
                              host::DialogDump::Of(*_panel, host::DialogDump::WithLayout)));
}

TEST_F(OrvKvParameterSetListSubTest, LooksTheSameAsEverWithColumnsAndSets) {
    MakeBuilt();
    const Shown depth{"T", 1, 1, 1, 1};
    const Shown fixed{"D", 1, 0, 1, 0};
    SetNames({depth, fixed});
    AddSet("M6", {Length(6.5), Length(11)}, {"H13", ""});
    AddSet("M8", {Length(8.5), Length(15)}, {"", "+0.2/0"});
    SetCurrent("M8", {Length(8.5), Length(15)}, {"", "+0.2/0"});
    EXPECT_TRUE(MatchesGolden("ParameterSetListSub-filled", host::DialogDump::Of(*_panel)));
}

TEST_F(OrvKvParameterSetListSubTest, ASecondBuildMakesNothing) {
    MakeFilled({"A"});
    const std::string before = host::DialogDump::Of(*_panel);
    _panel->Build();
    EXPECT_EQ(host::DialogDump::Of(*_panel), before);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 3);
}

TEST_F(OrvKvParameterSetListSubTest, TitlesAndHelpAreThereInEveryLanguage) {
    MakeBuilt();
    Texts setTitles;
    Texts currentTitles;
    for (const char* language : languages) {
        host::MessageCatalogs::SetLanguage(language);
        const std::vector<CATDialog*> frames = host::Inspector::Children(*_panel);
        setTitles.emplace_back(frames[0]->GetTitle().ConvertToChar());
        currentTitles.emplace_back(frames[1]->GetTitle().ConvertToChar());
        for (const CATDlgMultiList* table : {&SetTable(), &CurrentTable()}) {
            EXPECT_GT(table->GetShortHelp().GetLengthInChar(), 0) << language;
            EXPECT_GT(table->GetHelp().GetLengthInChar(), 0) << language;
            EXPECT_GT(table->GetLongHelp().GetLengthInChar(), 0) << language;
        }
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(setTitles,
              Texts({"Parameter Sets", "Parametersätze", "Jeux de paramètres", "パラメーターセット"}));
    EXPECT_EQ(currentTitles, Texts({"Current Parameters", "Aktuelle Parameter", "Paramètres courants",
                                    "現在のパラメーター"}));
}

TEST_F(OrvKvParameterSetListSubTest, TheSelectedNameIsEmptyUnlessALineIsSelected) {
    MakeFilled({"A", "B"});
    EXPECT_EQ(SelectedName(), "");
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {1}));
    EXPECT_EQ(SelectedName(), "B");
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {}));
    EXPECT_EQ(SelectedName(), "");
}

TEST_F(OrvKvParameterSetListSubTest, TheSelectedNameIsEmptyWhenSeveralLinesAreSelected) {
    MakeFilled({"A", "B"});
    CATDlgMultiList several(MainWindow(), "Several", CATDlgLstMultisel);
    several.SetColumnItem(0, "A");
    several.SetColumnItem(0, "B");
    int lines[] = {0, 1};
    several.SetSelect(lines, 2);
    SetTable() = several;
    ASSERT_EQ(SetTable().GetSelectCount(), 2);
    EXPECT_EQ(SelectedName(), "");
    SetTable().SetSelect(&lines[1], 1);
    EXPECT_EQ(SelectedName(), "B");
}

TEST_F(OrvKvParameterSetListSubTest, SettingTheSelectedSetDoesNothingAndSucceeds) {
    Make();
    const auto call = [this] {
        return _panel->SetSelectedParameterSet(ListOf(Texts{"A", "B"}), CATUnicodeString("B"));
    };
    EXPECT_EQ(Observe(call), SuccessIn(source));
    _panel = nullptr;
    MakeFilled({"A", "B"});
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0}));
    Command().Forget();
    EXPECT_EQ(Observe(call), SuccessIn(source));
    EXPECT_EQ(SelectedName(), "A");
    EXPECT_EQ(TakeTold(), Texts());
}

TEST_F(OrvKvParameterSetListSubTest, ADestroyedPanelTakesItsWidgetsAndCallbacksAlong) {
    const int before = host::CommandInspection::AnalyseCallbacks();
    MakeFilled({"A"});
    SetNames(ValuesOf({"D", "T"}));
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), before + 3);
    delete _panel;
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), before);
    EXPECT_FALSE(Exists("ParameterSetMul"));
    EXPECT_FALSE(Exists("CurrentParameterMul"));
}

TEST_F(OrvKvParameterSetListSubTest, APanelRemovesItsCallbacksBeforeItsWidgetsGo) {
    std::vector<int> counts;
    MakeBuilt();
    new CountingChild(*_panel, counts);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 3);
    delete _panel;
    EXPECT_EQ(counts, std::vector<int>({0}));
}

TEST_F(OrvKvParameterSetListSubTest, ACopySharesTheTablesAndKnowsTheSetsAndColumns) {
    MakeFilled({"A", "B"});
    OrvKvParameterSetListSub copy(*_panel);
    EXPECT_TRUE(host::Inspector::Children(copy).empty());
    EXPECT_EQ(copy.SetCurrentParameters("B", CATListValCATString(), ListOf(Parameters{Length(7)}),
                                        CATListValCATUnicodeString()),
              S_OK);
    EXPECT_EQ(LineOf(CurrentTable(), 0), Texts({"B", "7mm"}));
    EXPECT_EQ(SelectedName(), "B");
    EXPECT_STREQ(copy.GetSelectedParameterSetName().ConvertToChar(), "B");
}

TEST_F(OrvKvParameterSetListSubTest, AnAssignedPanelSharesTheTablesToo) {
    MakeFilled({"A", "B"});
    OrvKvParameterSetListSub other(MainWindow());
    EXPECT_STREQ(other.GetSelectedParameterSetName().ConvertToChar(), "");
    other = *_panel;
    EXPECT_EQ(other.SetCurrentParameters("B", CATListValCATString(), ListOf(Parameters{Length(7)}),
                                         CATListValCATUnicodeString()),
              S_OK);
    EXPECT_EQ(LineOf(CurrentTable(), 0), Texts({"B", "7mm"}));
    EXPECT_STREQ(other.GetSelectedParameterSetName().ConvertToChar(), "B");
}

TEST_F(OrvKvParameterSetListSubTest, AnAssignedPanelTakesOverTheParameters) {
    OrvKvParameterSetListSub other(MainWindow());
    other.Build();
    _panel = &other;
    SetNames({{"X", 1, 0, 1, 0}, {"D", 1, 0, 1, 0}});
    SetCurrent("set");
    CATDlgMultiList& itsOwnTable = CurrentTable();
    MakeBuilt();
    ASSERT_EQ(CallSetNames({{"D", 1, 1, 1, 1}}), S_OK);
    other = *_panel;
    _panel = &other;
    ASSERT_TRUE(host::DialogUser::Activate(itsOwnTable, 0, 3));
    ASSERT_TRUE(host::DialogUser::Activate(itsOwnTable, 0, 4));
    EXPECT_EQ(TakeTold(),
              Texts({"edit 'D' row -1 value 1 tolerance 1", "edit 'D' row -1 value 0 tolerance 1"}));
}

TEST_F(OrvKvParameterSetListSubTest, AnAssignedPanelRemembersWhetherTheTablesOfBuildWereUsed) {
    OrvKvParameterSetListSub other(MainWindow());
    other.Build();
    _panel = &other;
    SetNames({Shown{"D"}});
    MakeBuilt();
    const int widgets = host::LiveObjects::Count("CATDlgMultiList");
    other = *_panel;
    _panel = &other;
    EXPECT_EQ(CallSetNames({Shown{"T"}}), S_OK);
    EXPECT_EQ(host::LiveObjects::Count("CATDlgMultiList"), widgets);
}

TEST_F(OrvKvParameterSetListSubTest, WhatACopyLearnsTheOriginalDoesNot) {
    MakeFilled({"A"});
    OrvKvParameterSetListSub copy(*_panel);
    OrvKvParameterSetListSub other(MainWindow());
    other = *_panel;
    AddSet("B");
    const auto choose = [](OrvKvParameterSetListSub& ioPanel) {
        return ioPanel.SetCurrentParameters("B", CATListValCATString(), CATListValCATBaseUnknown_var(),
                                            CATListValCATUnicodeString());
    };
    EXPECT_EQ(choose(copy), S_OK);
    EXPECT_EQ(SelectedName(), "");
    EXPECT_EQ(choose(other), S_OK);
    EXPECT_EQ(SelectedName(), "");
    EXPECT_EQ(choose(*_panel), S_OK);
    EXPECT_EQ(SelectedName(), "B");
}

TEST_F(OrvKvParameterSetListSubTest, ADestroyedCopyLeavesTheOriginalAlone) {
    MakeFilled({"A", "B"});
    { const OrvKvParameterSetListSub copy(*_panel); }
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {1}));
    EXPECT_EQ(TakeTold(), ChoiceOf("B"));
    EXPECT_EQ(SetCurrent("A"), SuccessIn(source));
    EXPECT_EQ(SelectedName(), "A");
}

TEST_F(OrvKvParameterSetListSubTest, ACopyRemembersWhetherTheTablesOfBuildWereUsed) {
    MakeBuilt();
    OrvKvParameterSetListSub copy(*_panel);
    const CATDlgMultiList* const built = &SetTable();
    EXPECT_EQ(copy.SetParameterNames(CATListValCATBaseUnknown_var(), CATListValCATString(), CATRawCollint(),
                                     CATRawCollint(), CATRawCollint(), CATRawCollint()),
              S_OK);
    EXPECT_EQ(&SetTable(), built);
}

} // namespace
