#include "OrvKvTypeAndParameterSetSub.h"

#include "PanelTest.h"
#include "support/GoldenFolder.h"
#include "support/ResourceFolder.h"

#include "CATDlgDocument.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvTypeSelectedNotification.h"
#include "OrvKvTypeSub.h"
#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/LayoutPlan.h"
#include "host/MessageCatalogs.h"

#include <limits>
#include <string>
#include <vector>

namespace {

using namespace support;

const char source[] = "OrvKv9SubFrames.m/src/OrvKvTypeAndParameterSetSub";
const char badTypes[] = "Invalid data members _pTypeSub, iGroupNo, iTypeNo ";
const char noCombo[] = "parameter set combo is NULL.";

constexpr unsigned char parameterMode = 0;
constexpr unsigned char parameterSetMode = 1;

// A success; the results of the operations that it calls are counted too.
Report SuccessAfter(int iCalledOperations) {
    Report report = SuccessIn(source);
    report.returns += iCalledOperations;
    return report;
}

// The failure of an operation in which the selection of a line was refused.
Report RefusedIn(const std::string& iOperation) {
    return CaughtIn(source, iOperation, "ComboSelection", "CATDialog");
}

CATListValCATString Keys(int iCount) {
    CATListValCATString keys;
    for (int number = 1; number <= iCount; ++number)
        keys.Append(CATString("Type") + std::to_string(number).c_str());
    return keys;
}

CATListValCATUnicodeString Names(int iCount) {
    CATListValCATUnicodeString names;
    for (int number = 1; number <= iCount; ++number)
        names.Append(CATUnicodeString(("Set " + std::to_string(number)).c_str()));
    return names;
}

class OrvKvTypeAndParameterSetSubTest : public PanelTest {
  protected:
    OrvKvTypeAndParameterSetSub& Make(unsigned char iMode) {
        _panel = new OrvKvTypeAndParameterSetSub(MainWindow(), iMode);
        return *_panel;
    }
    OrvKvTypeAndParameterSetSub& MakeBuilt(unsigned char iMode = parameterMode) {
        Make(iMode).Build();
        return *_panel;
    }

    static CATDlgCombo& SetCombo() { return Combo("ParameterSetCmb"); }
    static CATDlgCombo& TypeCombo() { return Combo("TypeSelectCombo"); }
    static OrvKvTypeSub& TypeFrame() { return Widget<OrvKvTypeSub>("OrvKvTypeSub"); }

    Report SetNames(const CATListValCATUnicodeString& iNames, int iSelected) {
        return Observe([&] { return _panel->SetParameterSetNames(iNames, iSelected); });
    }
    Report SetTypes(int iGroup, int iType, const CATListValCATString* iTypes) {
        return Observe([&] { return _panel->SetFeatureTypes(iGroup, iType, iTypes); });
    }

    // The name that the last report of a chosen set carried.
    std::string LastChosenSet() {
        auto* const heard = Command().Last<OrvKvParameterSetSelectedNotification>();
        CATUnicodeString name("nothing was reported");
        if (heard != nullptr)
            heard->GetParameterSetName(&name);
        return name.ConvertToChar();
    }
    std::string SelectedName() { return _panel->GetSelectedParameterSetName().ConvertToChar(); }

    OrvKvTypeAndParameterSetSub* _panel = nullptr; // owned by the main window
};

const Classes oneSetChosen = {"OrvKvParameterSetSelectedNotification"};
const Classes oneTypeChosen = {"OrvKvTypeSelectedNotification"};

TEST_F(OrvKvTypeAndParameterSetSubTest, IsAPlainFrameNamedAfterItsClassAndEmptyBeforeItIsBuilt) {
    Make(parameterMode);
    EXPECT_STREQ(_panel->GetName().ConvertToChar(), "OrvKvTypeAndParameterSetSub");
    EXPECT_EQ(host::Inspector::Style(*_panel), 0x80000UL);
    EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
    EXPECT_STREQ(_panel->GetResourceFilename(0), "OrvKvTypeAndParameterSetSub");
    EXPECT_STREQ(_panel->GetResourceFilename(-3), "OrvKvTypeAndParameterSetSub");
    EXPECT_EQ(_panel->GetResourceFilename(1), nullptr);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, BuildMakesTheTypeFrameAndThenTheComboOfTheSets) {
    MakeBuilt();
    const std::vector<CATDialog*> children = host::Inspector::Children(*_panel);
    ASSERT_EQ(children.size(), 2U);
    EXPECT_EQ(children[0], &TypeFrame());
    EXPECT_EQ(children[1], &SetCombo());
    EXPECT_EQ(TypeFrame().GetVisibility(), CATDlgShow);
    EXPECT_EQ(host::Inspector::Children(TypeFrame()).size(), 1U);
    EXPECT_EQ(host::Inspector::Style(SetCombo()), 0x40000UL);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, TheSetsLieBelowTheTypesAndBothStretchAcrossThePanel) {
    MakeBuilt();
    const host::LayoutPlan plan = host::PlanLayout(*_panel);
    EXPECT_TRUE(plan.IsAbove(TypeFrame(), SetCombo()));
    EXPECT_TRUE(MatchesGolden("TypeAndParameterSetSub-layout",
                              host::DialogDump::Of(*_panel, host::DialogDump::WithLayout)));
}

TEST_F(OrvKvTypeAndParameterSetSubTest, LooksTheSameAsEverInParameterMode) {
    MakeBuilt(parameterMode);
    const CATListValCATString keys = Keys(3);
    SetTypes(1, 2, &keys);
    SetNames(Names(3), 1);
    EXPECT_TRUE(MatchesGolden("TypeAndParameterSetSub-parameters", host::DialogDump::Of(*_panel)));
}

TEST_F(OrvKvTypeAndParameterSetSubTest, LooksTheSameAsEverInParameterSetMode) {
    MakeBuilt(parameterSetMode);
    const CATListValCATString keys = Keys(3);
    SetTypes(1, 2, &keys);
    SetNames(Names(3), 1);
    EXPECT_TRUE(MatchesGolden("TypeAndParameterSetSub-sets", host::DialogDump::Of(*_panel)));
}

TEST_F(OrvKvTypeAndParameterSetSubTest, TheComboOfTheSetsIsShownInParameterModeAndHiddenInEveryOther) {
    MakeBuilt(parameterMode);
    EXPECT_EQ(SetCombo().GetVisibility(), CATDlgShow);
    delete _panel;
    for (const unsigned char mode : std::vector<unsigned char>{1, 2, 255}) {
        MakeBuilt(mode);
        EXPECT_EQ(SetCombo().GetVisibility(), CATDlgHide) << int{mode};
        delete _panel;
    }
}

TEST_F(OrvKvTypeAndParameterSetSubTest, TheComboOfTheSetsCanBeShownAndHidden) {
    MakeBuilt(parameterSetMode);
    _panel->ShowParameterSetSelector();
    EXPECT_EQ(SetCombo().GetVisibility(), CATDlgShow);
    _panel->HideParameterSetSelector();
    EXPECT_EQ(SetCombo().GetVisibility(), CATDlgHide);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ASecondBuildMakesNothing) {
    MakeBuilt(parameterSetMode);
    _panel->ShowParameterSetSelector();
    _panel->Build();
    EXPECT_EQ(host::Inspector::Children(*_panel).size(), 2U);
    EXPECT_EQ(SetCombo().GetVisibility(), CATDlgShow);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 1);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ListsTheTypesOfAGroupAndSelectsOne) {
    MakeBuilt();
    const CATListValCATString keys = Keys(3);
    EXPECT_EQ(SetTypes(1, 3, &keys), SuccessAfter(2));
    EXPECT_EQ(TypeCombo().GetLineCount(), 3);
    EXPECT_EQ(TypeCombo().GetSelect(), 2);
    EXPECT_EQ(Command().TakeClasses(), oneTypeChosen);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, AGroupNumberBelowOneFailsAndLeavesTheTypesAsTheyWere) {
    MakeBuilt();
    const CATListValCATString keys = Keys(3);
    const CATListValCATString others = Keys(5);
    SetTypes(1, 2, &keys);
    Command().Forget();
    for (const int group : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(SetTypes(group, 1, &others), FailureIn(source, badTypes)) << group;
        EXPECT_EQ(TypeCombo().GetLineCount(), 3) << group;
        EXPECT_EQ(TypeCombo().GetSelect(), 1) << group;
    }
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ListingTypesBeforeThePanelIsBuiltFails) {
    Make(parameterMode);
    const CATListValCATString keys = Keys(3);
    EXPECT_EQ(SetTypes(1, 1, &keys), FailureIn(source, badTypes));
}

TEST_F(OrvKvTypeAndParameterSetSubTest, WhatTheTypeFrameAnswersIsNotLookedAt) {
    MakeBuilt();
    const CATListValCATString keys = Keys(3);
    SetTypes(1, 2, &keys);
    EXPECT_EQ(SetTypes(1, 1, nullptr), SuccessIn(source));
    EXPECT_EQ(TypeCombo().GetLineCount(), 3);
    EXPECT_EQ(TypeCombo().GetSelect(), 1);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ListsTheNamesOfTheSetsInTheirOrder) {
    MakeBuilt();
    CATListValCATUnicodeString names = Names(2);
    names.Append("DIN 974-1 M6 (fein) / 100 % größer\nzweite Zeile");
    names.Append("");
    EXPECT_EQ(SetNames(names, 2), SuccessIn(source));
    ASSERT_EQ(SetCombo().GetLineCount(), 4);
    for (int line = 0; line < 4; ++line) {
        CATUnicodeString text;
        SetCombo().GetLine(text, line);
        EXPECT_STREQ(text.ConvertToChar(), names[line + 1].ConvertToChar());
    }
    EXPECT_EQ(LastChosenSet(), "DIN 974-1 M6 (fein) / 100 % größer\nzweite Zeile");
}

TEST_F(OrvKvTypeAndParameterSetSubTest, NewNamesReplaceTheOldOnes) {
    MakeBuilt();
    SetNames(Names(5), 4);
    SetNames(Names(2), 0);
    EXPECT_EQ(SetCombo().GetLineCount(), 2);
    EXPECT_EQ(SelectedName(), "Set 1");
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ShowsAsManyLinesAsThereAreNamesUpToEight) {
    MakeBuilt();
    for (const auto& [names, lines] :
         std::vector<std::pair<int, int>>{{0, 0}, {1, 1}, {7, 7}, {8, 8}, {9, 8}, {300, 8}}) {
        SetNames(Names(names), 0);
        EXPECT_EQ(host::Inspector::VisibleTextHeight(SetCombo()), lines) << names;
    }
}

TEST_F(OrvKvTypeAndParameterSetSubTest, SelectsTheNameThatIsAskedForAndReportsIt) {
    MakeBuilt();
    SetNames(Names(3), 2);
    EXPECT_EQ(SetCombo().GetSelect(), 2);
    EXPECT_EQ(LastChosenSet(), "Set 3");
    EXPECT_EQ(Command().TakeClasses(), oneSetChosen);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ANegativeSelectionIsTheFirstName) {
    MakeBuilt();
    for (const int selected : {-1, -7, std::numeric_limits<int>::min()}) {
        SetNames(Names(3), selected);
        EXPECT_EQ(SetCombo().GetSelect(), 0) << selected;
        EXPECT_EQ(LastChosenSet(), "Set 1") << selected;
        EXPECT_EQ(Command().TakeClasses(), oneSetChosen) << selected;
    }
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ASelectionBehindTheLastNameSelectsAndReportsNothing) {
    MakeBuilt();
    EXPECT_EQ(SetNames(Names(3), 3), SuccessIn(source));
    EXPECT_EQ(SetCombo().GetSelect(), -1);
    EXPECT_EQ(SelectedName(), "");
    EXPECT_EQ(SetNames(Names(0), -1), SuccessIn(source));
    EXPECT_EQ(SetCombo().GetSelect(), -1);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    SetNames(Names(3), 0);
    EXPECT_EQ(Command().TakeClasses(), oneSetChosen);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, NamesThatAreListedBeforeThePanelIsBuiltFail) {
    Make(parameterMode);
    EXPECT_EQ(SetNames(Names(1), 0), FailureIn(source, noCombo));
}

TEST_F(OrvKvTypeAndParameterSetSubTest, AChosenSetIsReportedWithItsName) {
    MakeBuilt();
    SetNames(Names(3), 0);
    Command().Forget();
    ASSERT_TRUE(host::DialogUser::ChooseText(SetCombo(), "Set 2"));
    EXPECT_EQ(LastChosenSet(), "Set 2");
    EXPECT_EQ(SelectedName(), "Set 2");
    EXPECT_EQ(Command().TakeClasses(), oneSetChosen);
    ASSERT_TRUE(host::DialogUser::Choose(SetCombo(), 1));
    EXPECT_EQ(Command().TakeClasses(), oneSetChosen);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, TheChoiceIsSentByThePanelToItsFather) {
    MakeBuilt();
    SetNames(Names(3), 1);
    ASSERT_EQ(Command().Heard().size(), 1U);
    EXPECT_EQ(Command().Heard().front().sender, _panel);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, TheChoiceGoesToTheFatherAndNotThroughThePanelItself) {
    auto* const panel = new ListeningPanel<OrvKvTypeAndParameterSetSub>(MainWindow(), parameterMode);
    _panel = panel;
    _panel->Build();
    SetNames(Names(3), 1);
    EXPECT_EQ(Command().TakeClasses(), oneSetChosen);
    EXPECT_EQ(panel->Count(), 0);
    SetCombo().SendNotification(panel, new OrvKvParameterSetSelectedNotification(CATUnicodeString("Set")));
    EXPECT_EQ(panel->Count(), 1) << "one that is sent to the panel is counted";
}

TEST_F(OrvKvTypeAndParameterSetSubTest, AChosenTypeClimbsThroughThePanelToTheCommand) {
    MakeBuilt();
    const CATListValCATString keys = Keys(3);
    SetTypes(2, 0, &keys);
    ASSERT_TRUE(host::DialogUser::Choose(TypeCombo(), 1));
    ASSERT_EQ(Command().Heard().size(), 1U);
    EXPECT_EQ(Command().Heard().front().sender, &TypeFrame());
    EXPECT_EQ(Command().TakeClasses(), oneTypeChosen);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ASelectNotificationWithoutSelectionReportsAnEmptyName) {
    MakeBuilt();
    CATNotification* const event = SetCombo().GetComboSelectNotification();
    event->AddRef();
    SetCombo().SendNotification(_panel, event);
    EXPECT_EQ(Command().Classes(), oneSetChosen);
    EXPECT_EQ(LastChosenSet(), "");
}

TEST_F(OrvKvTypeAndParameterSetSubTest, UnselectingGoesBackToTheFirstSetAndTellsNobody) {
    MakeBuilt();
    SetNames(Names(3), 2);
    Command().Forget();
    for (const unsigned char flag : std::vector<unsigned char>{0, 1, 255}) {
        ASSERT_TRUE(host::DialogUser::Choose(SetCombo(), 2));
        Command().Forget();
        EXPECT_EQ(Observe([&] { return _panel->UnselectParameterSet(flag); }), SuccessIn(source))
            << int{flag};
        EXPECT_EQ(SelectedName(), "Set 1") << int{flag};
        EXPECT_EQ(Command().TakeClasses(), Classes()) << int{flag};
    }
}

TEST_F(OrvKvTypeAndParameterSetSubTest, UnselectingWithoutNamesOrBeforeThePanelIsBuiltSucceeds) {
    Make(parameterMode);
    EXPECT_EQ(Observe([&] { return _panel->UnselectParameterSet(0); }), SuccessIn(source));
    _panel->Build();
    EXPECT_EQ(Observe([&] { return _panel->UnselectParameterSet(0); }), SuccessIn(source));
    EXPECT_EQ(SetCombo().GetSelect(), -1);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, AnErrorRaisedWhileUnselectingBecomesTheFailingResult) {
    MakeBuilt();
    SetNames(Names(3), 2);
    host::FaultPoints::FailCall(1, "combo selection");
    const Report report = Observe([&] { return _panel->UnselectParameterSet(0); });
    host::FaultPoints::Stop();
    EXPECT_EQ(report, RefusedIn("OrvKvTypeAndParameterSetSub::UnselectParameterSet"));
    EXPECT_EQ(SelectedName(), "Set 3");
}

TEST_F(OrvKvTypeAndParameterSetSubTest, AnErrorRaisedWhileANameIsSelectedBecomesTheFailingResult) {
    MakeBuilt();
    host::FaultPoints::FailCall(1, "combo selection");
    const Report report = SetNames(Names(3), 1);
    host::FaultPoints::Stop();
    EXPECT_EQ(report, RefusedIn("OrvKvTypeAndParameterSetSub::SetParameterSetNames"));
    EXPECT_EQ(SetCombo().GetLineCount(), 3);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    ASSERT_TRUE(host::DialogUser::Choose(SetCombo(), 1));
    EXPECT_EQ(LastChosenSet(), "Set 2");
}

TEST_F(OrvKvTypeAndParameterSetSubTest, AnErrorRaisedWhileATypeIsSelectedIsTracedAndNotLookedAt) {
    MakeBuilt();
    const CATListValCATString keys = Keys(3);
    host::FaultPoints::FailCall(1, "combo selection");
    const Report report = SetTypes(1, 2, &keys);
    host::FaultPoints::Stop();
    Report expected = SuccessAfter(1);
    expected.traces = {{"OrvKv9SubFrames", 3, "OrvKvTypeSub::SetTypes -> caught ERROR"},
                       {"OrvKv9SubFrames", 3, "error message: ComboSelection"}};
    EXPECT_EQ(report, expected);
    EXPECT_EQ(TypeCombo().GetLineCount(), 3);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, TypesCanBeDisabledAndEnabledWhileTheSetsStayFree) {
    MakeBuilt();
    _panel->DisableTypes(CATDlgDisable);
    EXPECT_EQ(TypeCombo().GetSensitivity(), CATDlgDisable);
    EXPECT_EQ(SetCombo().GetSensitivity(), CATDlgEnable);
    _panel->DisableTypes(CATDlgEnable);
    EXPECT_EQ(TypeCombo().GetSensitivity(), CATDlgEnable);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, QueriesAndSwitchesBeforeThePanelIsBuiltAreEmptyOrHaveNoEffect) {
    Make(parameterSetMode);
    EXPECT_EQ(SelectedName(), "");
    _panel->DisableTypes(CATDlgDisable);
    _panel->ShowParameterSetSelector();
    _panel->HideParameterSetSelector();
    EXPECT_EQ(_panel->GetVisibility(), CATDlgShow);
    EXPECT_EQ(_panel->GetSensitivity(), CATDlgEnable);
    EXPECT_EQ(Traces().Take(), TraceLines());
}

TEST_F(OrvKvTypeAndParameterSetSubTest, AFailureFollowedByASuccessLeavesNoError) {
    MakeBuilt();
    const CATListValCATString keys = Keys(1);
    EXPECT_EQ(SetTypes(0, 1, &keys), FailureIn(source, badTypes));
    EXPECT_EQ(SetTypes(1, 1, &keys), SuccessAfter(2));
}

TEST_F(OrvKvTypeAndParameterSetSubTest, WhereTheTypeFrameCannotBeMadeTheSetsWorkAndTypesFail) {
    Make(parameterMode);
    host::FaultPoints::FailCall(1, "widget allocation");
    _panel->Build();
    host::FaultPoints::Stop();
    _panel->Build(); // makes nothing: what is there was made once
    ASSERT_EQ(host::Inspector::Children(*_panel).size(), 1U);
    const CATListValCATString keys = Keys(1);
    EXPECT_EQ(SetTypes(1, 1, &keys), FailureIn(source, badTypes));
    _panel->DisableTypes(CATDlgDisable);
    EXPECT_EQ(SetNames(Names(2), 1), SuccessIn(source));
    EXPECT_EQ(LastChosenSet(), "Set 2");
}

TEST_F(OrvKvTypeAndParameterSetSubTest, WhereTheComboOfTheSetsCannotBeMadeTheTypesWorkAndNamesFail) {
    Make(parameterSetMode);
    host::FaultPoints::FailCall(3, "widget allocation"); // after the type frame and its combo
    _panel->Build();
    host::FaultPoints::Stop();
    const CATListValCATString keys = Keys(2);
    EXPECT_EQ(SetTypes(1, 2, &keys), SuccessAfter(2));
    EXPECT_EQ(TypeCombo().GetSelect(), 1);
    EXPECT_EQ(SetNames(Names(2), 1), FailureIn(source, noCombo));
    EXPECT_EQ(SelectedName(), "");
    EXPECT_EQ(Observe([&] { return _panel->UnselectParameterSet(0); }), SuccessIn(source));
}

TEST_F(OrvKvTypeAndParameterSetSubTest, WithoutMemoryForTheNotificationNothingIsSent) {
    MakeBuilt();
    SetNames(Names(2), 0);
    Command().Forget();
    host::FaultPoints::FailCall(1, "notification allocation");
    ASSERT_TRUE(host::DialogUser::Choose(SetCombo(), 1));
    host::FaultPoints::Stop();
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_EQ(SelectedName(), "Set 2");
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ADestroyedPanelRemovesItsCallbacks) {
    MakeBuilt();
    const int before = host::CommandInspection::AnalyseCallbacks();
    delete _panel;
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), before - 2);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, APanelRemovesItsCallbackBeforeItsWidgetsGo) {
    std::vector<int> counts;
    Make(parameterMode);
    new CountingChild(*_panel, counts);
    _panel->Build();
    new CountingChild(*_panel, counts);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 1);
    delete _panel;
    EXPECT_EQ(counts, std::vector<int>({0, 0}));
}

TEST_F(OrvKvTypeAndParameterSetSubTest, CopiesCarryTheMembersOfTheOriginal) {
    MakeBuilt();
    SetNames(Names(3), 2);
    OrvKvTypeAndParameterSetSub copy(*_panel);
    EXPECT_STREQ(copy.GetSelectedParameterSetName().ConvertToChar(), "Set 3");
    OrvKvTypeAndParameterSetSub other(MainWindow(), parameterSetMode);
    EXPECT_STREQ(other.GetSelectedParameterSetName().ConvertToChar(), "");
    other = copy;
    EXPECT_STREQ(other.GetSelectedParameterSetName().ConvertToChar(), "Set 3");
    other.DisableTypes(CATDlgDisable);
    EXPECT_EQ(TypeCombo().GetSensitivity(), CATDlgDisable);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ACopyOfAPanelThatIsNotBuiltBuildsInTheModeOfTheOriginal) {
    Make(parameterSetMode);
    OrvKvTypeAndParameterSetSub copy(*_panel);
    copy.Build();
    const std::vector<CATDialog*> children = host::Inspector::Children(copy);
    ASSERT_EQ(children.size(), 2U);
    EXPECT_EQ(children[1]->GetVisibility(), CATDlgHide);
    EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
}

TEST_F(OrvKvTypeAndParameterSetSubTest, ADestroyedCopyLeavesTheCallbacksOfTheOriginalAlone) {
    MakeBuilt();
    SetNames(Names(3), 0);
    Command().Forget();
    { const OrvKvTypeAndParameterSetSub copy(*_panel); }
    ASSERT_TRUE(host::DialogUser::Choose(SetCombo(), 1));
    EXPECT_EQ(LastChosenSet(), "Set 2");
    EXPECT_EQ(Command().TakeClasses(), oneSetChosen);
}

TEST_F(OrvKvTypeAndParameterSetSubTest, HelpForTheComboIsThereInEveryLanguage) {
    MakeBuilt();
    std::vector<std::string> shortHelps;
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        EXPECT_GT(SetCombo().GetLongHelp().GetLengthInChar(), 0) << language;
        EXPECT_GT(SetCombo().GetHelp().GetLengthInChar(), 0) << language;
        shortHelps.emplace_back(SetCombo().GetShortHelp().ConvertToChar());
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(shortHelps, (std::vector<std::string>{"Parameter set", "Parametersatz", "Jeu de paramètres",
                                                    "パラメーターセット"}));
}

} // namespace
