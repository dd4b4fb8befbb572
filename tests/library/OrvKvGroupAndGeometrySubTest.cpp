#include "OrvKvGroupAndGeometrySub.h"

#include "PanelTest.h"
#include "PrivateCallback.h"
#include "support/GoldenFolder.h"
#include "support/ResourceFolder.h"

#include "CATDlgDocument.h"
#include "OrvKvGroupChangedNotification.h"
#include "OrvKvInsertionGeometrySub.h"
#include "OrvKvInvertFeatureNotification.h"
#include "OrvKvSetInputGeometryNotification.h"
#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/LayoutPlan.h"
#include "host/MessageCatalogs.h"

#include <limits>

static PrivateCallback<OrvKvGroupAndGeometrySub> onSelect = nullptr;
template struct OpenCallback<onSelect, &OrvKvGroupAndGeometrySub::OnGroupCmbSelectNotification>;

namespace {

using namespace support;

const char source[] = "OrvKv9SubFrames.m/src/OrvKvGroupAndGeometrySub";
const char noCombo[] = "Invalid data memeber _pGroupCmb .";
const char noGeometry[] = "Invalid data memeber _pInsertionGeometrySub";

const Classes oneGroup = {"OrvKvGroupChangedNotification"};

// A success; the result of the inner panel is counted too.
Report ForwardedSuccess() {
    Report report = SuccessIn(source);
    report.returns = 2;
    return report;
}

class OrvKvGroupAndGeometrySubTest : public PanelTest {
  protected:
    OrvKvGroupAndGeometrySubTest() {
        _resources.Write("OrvKvCustomisation.CATNls", "Holes = \"Holes and countersinks\";\n"
                                                      "Shafts = \"Shaft details\";\n"
                                                      "Named = \"Group of /p1 /p2\";\n"
                                                      "Lost = \"resource error\";\n"
                                                      "Blank = \"\";\n"
                                                      "Error = \"resource error \";\n");
    }

    OrvKvGroupAndGeometrySub& Panel() { return *_panel; }
    OrvKvGroupAndGeometrySub& BuiltPanel() {
        _panel->Build();
        return *_panel;
    }
    static CATDlgCombo& GroupCombo() { return Combo("GroupCmb"); }
    static OrvKvInsertionGeometrySub& Geometry() {
        return Widget<OrvKvInsertionGeometrySub>("InsertionEditorSub");
    }

    Report SetGroups(const CATListValCATString& iKeys, int iSelected) {
        return Observe([&] { return _panel->SetGroupKeys(&iKeys, iSelected); });
    }
    Report SetText(int iInput, const char* iText, unsigned long iVisibility = CATDlgShow) {
        return Observe([&] { return _panel->SetGeometryText(iInput, CATUnicodeString(iText), iVisibility); });
    }
    int LastGroup() {
        auto* const heard = Command().Last<OrvKvGroupChangedNotification>();
        int group = -1;
        if (heard != nullptr)
            heard->GetGroup(&group);
        return group;
    }
    std::string Dump() { return host::DialogDump::Of(*_panel, host::DialogDump::WithLayout); }

    ResourceFolder _resources;
    OrvKvGroupAndGeometrySub* _panel = new OrvKvGroupAndGeometrySub(MainWindow()); // owned by the window
};

TEST_F(OrvKvGroupAndGeometrySubTest, IsAPlainFrameNamedAfterItsClassAndEmptyBeforeItIsBuilt) {
    EXPECT_STREQ(Panel().GetName().ConvertToChar(), "OrvKvGroupAndGeometrySub");
    EXPECT_EQ(host::Inspector::Style(Panel()), 0x80000UL);
    EXPECT_EQ(host::Inspector::Parent(Panel()), MainWindow());
    EXPECT_TRUE(host::Inspector::Children(Panel()).empty());
}

TEST_F(OrvKvGroupAndGeometrySubTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    for (const int level : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_STREQ(Panel().GetResourceFilename(level), "OrvKvGroupAndGeometrySub") << level;
    for (const int level : {1, 2, std::numeric_limits<int>::max()})
        EXPECT_EQ(Panel().GetResourceFilename(level), nullptr) << level;
}

TEST_F(OrvKvGroupAndGeometrySubTest, BuildMakesTheComboAndThenTheGeometryWithoutRowsOfTheirOwn) {
    BuiltPanel();
    EXPECT_EQ(PiecesOf(Panel()), Pieces({{"CATDlgCombo", "GroupCmb", 0x40000, "0(1)-1(4)", ""},
                                         {"CATDlgFrame", "InsertionEditorSub", 0x80000, "0(1)-1(4)", ""}}));
    EXPECT_EQ(host::Inspector::VisibleTextWidth(GroupCombo()), 12);
    EXPECT_EQ(GroupCombo().GetLineCount(), 0);
    EXPECT_EQ(GroupCombo().GetVisibility(), CATDlgShow);
    EXPECT_EQ(Geometry().GetVisibility(), CATDlgShow);
    EXPECT_EQ(host::Inspector::Children(Geometry()).size(), 8U) << "the geometry is built with it";
    EXPECT_TRUE(host::PlanLayout(Panel()).IsAbove(GroupCombo(), Geometry()));
    EXPECT_TRUE(MatchesGolden("GroupAndGeometrySub-built", Dump()));
}

TEST_F(OrvKvGroupAndGeometrySubTest, LooksTheSameAsEverWithGroupsAndInputs) {
    BuiltPanel();
    SetGroups(KeysOf({"Holes", "Shafts", "Unknown"}), 2);
    SetText(1, "Point.1");
    SetText(3, "", CATDlgHide);
    EXPECT_TRUE(MatchesGolden("GroupAndGeometrySub-filled", host::DialogDump::Of(Panel())));
}

TEST_F(OrvKvGroupAndGeometrySubTest, ASecondBuildMakesNothing) {
    BuiltPanel();
    SetGroups(KeysOf({"Holes"}), 0);
    const std::vector<CATDialog*> before = host::Inspector::Children(Panel());
    Panel().Build();
    EXPECT_EQ(host::Inspector::Children(Panel()), before);
    EXPECT_EQ(host::Inspector::Children(Geometry()).size(), 8U);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 1);
    ASSERT_TRUE(host::DialogUser::Choose(GroupCombo(), 0));
    EXPECT_EQ(Command().TakeClasses(), oneGroup);
}

TEST_F(OrvKvGroupAndGeometrySubTest, ListsTheGroupsUnderTheirNamesInTheCatalogue) {
    BuiltPanel();
    EXPECT_EQ(SetGroups(KeysOf({"Shafts", "Holes"}), 0), SuccessIn(source));
    EXPECT_EQ(LinesOf(GroupCombo()), Lines({"Shaft details", "Holes and countersinks"}));
}

TEST_F(OrvKvGroupAndGeometrySubTest, ShowsTheKeyOfAGroupThatTheCatalogueDoesNotHave) {
    BuiltPanel();
    EXPECT_EQ(SetGroups(KeysOf({"Unheard_Of", "Holes", "Lost", "Error"}), 0), SuccessIn(source));
    EXPECT_EQ(LinesOf(GroupCombo()),
              Lines({"Unheard_Of", "Holes and countersinks", "Lost", "resource error "}))
        << "the very text of a missing entry alone stands for one";
}

TEST_F(OrvKvGroupAndGeometrySubTest, TheDisplayNameHasOneParameterWhichIsTheWordName) {
    BuiltPanel();
    SetGroups(KeysOf({"Named"}), 0);
    EXPECT_EQ(LinesOf(GroupCombo()), Lines({"Group of Name /p2"}));
}

TEST_F(OrvKvGroupAndGeometrySubTest, GroupsHaveTheNamesOfTheLanguage) {
    BuiltPanel();
    _resources.Write("German/OrvKvCustomisation.CATNls", "Holes = \"Bohrungen Ø\";\n");
    host::MessageCatalogs::SetLanguage("German");
    SetGroups(KeysOf({"Holes", "Shafts"}), 0);
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(LinesOf(GroupCombo()), Lines({"Bohrungen Ø", "Shaft details"}));
}

TEST_F(OrvKvGroupAndGeometrySubTest, KeysOfAnyTextAreShownAsTheyAre) {
    BuiltPanel();
    std::string veryLong;
    for (int character = 0; character < 100000; ++character)
        veryLong += character % 2 == 0 ? "x" : "é";
    const Lines keys = {"Größe 点 \U0001F529", "",   "100 % %s %d %n", "one\ntwo\n",
                        "(a/b) \\ /p1 \"q\"",  "..", "../Holes",       veryLong};
    CATListValCATString list;
    for (const std::string& key : keys)
        list.Append(key.c_str());
    EXPECT_EQ(SetGroups(list, 1), SuccessIn(source));
    EXPECT_EQ(LinesOf(GroupCombo()), keys);
}

TEST_F(OrvKvGroupAndGeometrySubTest, NewGroupsReplaceTheOldOnes) {
    BuiltPanel();
    SetGroups(KeysOf({"Holes", "Shafts", "Named"}), 3);
    SetGroups(KeysOf({"Shafts"}), 1);
    EXPECT_EQ(LinesOf(GroupCombo()), Lines({"Shaft details"}));
    EXPECT_EQ(GroupCombo().GetSelect(), 0);
    EXPECT_EQ(SetGroups(KeysOf({}), 1), SuccessIn(source));
    EXPECT_EQ(LinesOf(GroupCombo()), Lines());
    EXPECT_EQ(GroupCombo().GetSelect(), -1);
    EXPECT_EQ(GroupCombo().GetVisibility(), CATDlgShow);
}

TEST_F(OrvKvGroupAndGeometrySubTest, SelectsTheGroupThatIsAskedForAndReportsItsNumber) {
    BuiltPanel();
    for (const int group : {1, 3}) {
        EXPECT_EQ(SetGroups(KeysOf({"Holes", "Shafts", "Named"}), group), SuccessIn(source));
        EXPECT_EQ(GroupCombo().GetSelect(), group - 1);
        EXPECT_EQ(LastGroup(), group);
        EXPECT_EQ(Command().TakeClasses(), oneGroup);
    }
}

TEST_F(OrvKvGroupAndGeometrySubTest, AGroupNumberOutsideTheListSelectsAndReportsNothing) {
    BuiltPanel();
    for (const int group : {0, -1, std::numeric_limits<int>::min(), 3, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(SetGroups(KeysOf({"Holes", "Shafts"}), group), SuccessIn(source)) << group;
        EXPECT_EQ(LinesOf(GroupCombo()).size(), 2U) << group;
        EXPECT_EQ(GroupCombo().GetSelect(), -1) << group;
    }
    EXPECT_EQ(Command().TakeClasses(), Classes());
    SetGroups(KeysOf({"Holes", "Shafts"}), 2);
    EXPECT_EQ(Command().TakeClasses(), oneGroup);
}

// Notes how the combo stands whenever it hears something.
class ComboWatch : public CATCommand {
  public:
    explicit ComboWatch(const CATDlgCombo& iCombo) : CATCommand(nullptr, "ComboWatch"), _combo(iCombo) {}

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification* iNotification) override {
        const bool isShown = _combo.GetVisibility() == CATDlgShow;
        _seen.push_back(std::string(iNotification->IsA()) + (isShown ? ": shown with " : ": hidden with ") +
                        std::to_string(_combo.GetLineCount()));
        return CATNotifDontTransmitToFather;
    }
    const Lines& Seen() const { return _seen; }

  private:
    const CATDlgCombo& _combo;
    Lines _seen;
};

TEST_F(OrvKvGroupAndGeometrySubTest, TheComboIsClearedAndHiddenWhileItIsFilledAndShownAfterTheReport) {
    BuiltPanel();
    SetGroups(KeysOf({"Holes", "Shafts", "Named"}), 0);
    GroupCombo().GetVisibilityNotification(); // from now on it is sent
    ComboWatch watch(GroupCombo());
    host::Application::SetActiveCommand(&watch);
    SetGroups(KeysOf({"Holes", "Shafts"}), 2);
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(watch.Seen(), Lines({"CATDlgVisibilityNotification: hidden with 0",
                                   "OrvKvGroupChangedNotification: hidden with 2",
                                   "CATDlgVisibilityNotification: shown with 2"}));
}

TEST_F(OrvKvGroupAndGeometrySubTest, ANullListFailsAndTheComboKeepsItsContent) {
    BuiltPanel();
    SetGroups(KeysOf({"Holes", "Shafts"}), 2);
    Command().Forget();
    const std::string before = Dump();
    EXPECT_EQ(Observe([&] { return Panel().SetGroupKeys(nullptr, 1); }), FailureIn(source, noCombo));
    EXPECT_EQ(Dump(), before);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvGroupAndGeometrySubTest, OperationsBeforeThePanelIsBuiltFailOrHaveNoEffect) {
    EXPECT_EQ(SetGroups(KeysOf({"Holes"}), 1), FailureIn(source, noCombo));
    EXPECT_EQ(Observe([&] { return Panel().SetGroupKeys(nullptr, 1); }), FailureIn(source, noCombo));
    EXPECT_EQ(SetText(1, "Point.1"), FailureIn(source, noGeometry));
    Panel().DisableGroup(CATDlgDisable);
    Panel().DisableDirection();
    EXPECT_EQ(Panel().GetSensitivity(), CATDlgEnable);
    BuiltPanel();
    EXPECT_EQ(GroupCombo().GetSensitivity(), CATDlgEnable);
    EXPECT_EQ(Button("InvertPbt").GetSensitivity(), CATDlgEnable);
    EXPECT_EQ(SetGroups(KeysOf({"Holes"}), 1), SuccessIn(source));
}

TEST_F(OrvKvGroupAndGeometrySubTest, AChosenGroupIsReportedWithItsNumberByThePanel) {
    BuiltPanel();
    SetGroups(KeysOf({"Holes", "Shafts", "Unheard_Of"}), 0);
    for (const int group : {3, 1, 2, 2}) {
        ASSERT_TRUE(host::DialogUser::Choose(GroupCombo(), group - 1));
        EXPECT_EQ(LastGroup(), group);
        ASSERT_EQ(Command().Heard().size(), 1U);
        EXPECT_EQ(Command().Heard().front().sender, &Panel());
        EXPECT_EQ(Command().TakeClasses(), oneGroup);
    }
}

TEST_F(OrvKvGroupAndGeometrySubTest, ASelectNotificationWithoutASelectedLineReportsTheNumberZero) {
    BuiltPanel();
    SetGroups(KeysOf({"Holes"}), 0);
    CATNotification* const event = GroupCombo().GetComboSelectNotification();
    event->AddRef();
    GroupCombo().SendNotification(&Panel(), event);
    EXPECT_EQ(LastGroup(), 0);
    EXPECT_EQ(Command().TakeClasses(), oneGroup);
}

TEST_F(OrvKvGroupAndGeometrySubTest, ASelectNotificationWithoutASenderReportsNothing) {
    BuiltPanel();
    SetGroups(KeysOf({"Holes"}), 1);
    Command().Forget();
    (Panel().*onSelect)(nullptr, nullptr, nullptr);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    (Panel().*onSelect)(&GroupCombo(), nullptr, nullptr);
    EXPECT_EQ(LastGroup(), 1);
}

TEST_F(OrvKvGroupAndGeometrySubTest, TheGroupGoesToTheFatherAndWhatTheGeometrySendsClimbsThroughThePanel) {
    delete _panel;
    auto* const panel = new ListeningPanel<OrvKvGroupAndGeometrySub>(MainWindow());
    _panel = panel;
    BuiltPanel();
    SetGroups(KeysOf({"Holes"}), 1);
    EXPECT_EQ(Command().TakeClasses(), oneGroup);
    EXPECT_EQ(panel->Count(), 0);
    ASSERT_TRUE(host::DialogUser::Press(Button("Input3Pbt")));
    ASSERT_TRUE(host::DialogUser::Press(Button("InvertPbt")));
    EXPECT_EQ(panel->Count(), 2);
    ASSERT_EQ(Command().Heard().size(), 2U);
    EXPECT_EQ(Command().Heard().back().sender, &Geometry());
    EXPECT_EQ(Command().Last<OrvKvSetInputGeometryNotification>()->GetInputGeometryNo(), 3);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"OrvKvSetInputGeometryNotification", "OrvKvInvertFeatureNotification"}));
}

TEST_F(OrvKvGroupAndGeometrySubTest, GroupsCanBeDisabledAndEnabledWhileTheInputsStayFree) {
    BuiltPanel();
    SetGroups(KeysOf({"Holes", "Shafts"}), 0);
    Panel().DisableGroup(CATDlgDisable);
    EXPECT_FALSE(host::DialogUser::Choose(GroupCombo(), 1));
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_TRUE(host::DialogUser::Press(Button("Input1Pbt")));
    Command().Forget();
    Panel().DisableGroup(0);
    EXPECT_EQ(GroupCombo().GetSensitivity(), CATDlgDisable) << "a value that is none";
    Panel().DisableGroup(CATDlgEnable);
    EXPECT_TRUE(host::DialogUser::Choose(GroupCombo(), 1));
    EXPECT_EQ(Command().TakeClasses(), oneGroup);
}

TEST_F(OrvKvGroupAndGeometrySubTest, ADisabledDirectionGreysTheInvertButtonAlone) {
    BuiltPanel();
    EXPECT_TRUE(host::DialogUser::Press(Button("InvertPbt")));
    Panel().DisableDirection();
    EXPECT_FALSE(host::DialogUser::Press(Button("InvertPbt")));
    EXPECT_TRUE(host::DialogUser::Press(Button("Input1Pbt")));
    EXPECT_EQ(GroupCombo().GetSensitivity(), CATDlgEnable);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"OrvKvInvertFeatureNotification", "OrvKvSetInputGeometryNotification"}));
}

TEST_F(OrvKvGroupAndGeometrySubTest, ATextIsForwardedWithAllThatBelongsToIt) {
    BuiltPanel();
    EXPECT_EQ(SetText(2, "Line.7 (größer)\n100 %", CATDlgHide), ForwardedSuccess());
    EXPECT_STREQ(Editor("Input2Edt").GetText().ConvertToChar(), "Line.7 (größer)\n100 %");
    EXPECT_STREQ(Editor("Input2Edt").GetShortHelp().ConvertToChar(), "Line.7 (größer)\n100 %");
    EXPECT_EQ(Editor("Input2Edt").GetVisibility(), CATDlgHide);
    EXPECT_EQ(Button("Input2Pbt").GetVisibility(), CATDlgHide);
    EXPECT_EQ(Editor("Input1Edt").GetLineCount() + Editor("Input3Edt").GetLineCount(), 0);
}

TEST_F(OrvKvGroupAndGeometrySubTest, ATextSucceedsEvenWhereTheInnerPanelReportsAFailure) {
    BuiltPanel();
    const std::string before = Dump();
    for (const int input : {0, 4, std::numeric_limits<int>::min()}) {
        const Report report = SetText(input, "Point.1");
        EXPECT_EQ(report.result, "S_OK") << input;
        EXPECT_EQ(report.source, source) << input;
        EXPECT_EQ(report.returns, 2) << input;
        ASSERT_EQ(report.traces.size(), 2U) << "the failure itself is traced";
        EXPECT_EQ(report.traces.front(),
                  (host::TraceLine{"OrvKv9Errors", 1, "error: iEditorNo out of range"}));
    }
    EXPECT_EQ(Dump(), before);
}

TEST_F(OrvKvGroupAndGeometrySubTest, AnErrorThatTheCommandRaisesBecomesTheFailingResultAndTheGroupsAreShown) {
    BuiltPanel();
    RaisingCommand command;
    host::Application::SetActiveCommand(&command);
    const Report report = SetGroups(KeysOf({"Shafts", "Holes"}), 1);
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(report, CaughtOfCommandIn(source, "OrvKvGroupAndGeometrySub::SetGroupKeys"));
    EXPECT_EQ(LinesOf(GroupCombo()), Lines({"Shaft details", "Holes and countersinks"}));
    EXPECT_EQ(GroupCombo().GetVisibility(), CATDlgShow);
    ASSERT_TRUE(host::DialogUser::Choose(GroupCombo(), 1));
    EXPECT_EQ(LastGroup(), 2);
}

TEST_F(OrvKvGroupAndGeometrySubTest, AnErrorRaisedWhileAGroupIsSelectedBecomesTheFailingResult) {
    BuiltPanel();
    host::FaultPoints::FailCall(1, "combo selection");
    const Report report = SetGroups(KeysOf({"Shafts", "Holes"}), 2);
    host::FaultPoints::Stop();
    EXPECT_EQ(report.result, "E_FAIL");
    EXPECT_EQ(report.key, "ComboSelection");
    EXPECT_EQ(GroupCombo().GetLineCount(), 2);
    EXPECT_EQ(GroupCombo().GetVisibility(), CATDlgShow);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_EQ(SetGroups(KeysOf({"Shafts", "Holes"}), 2), SuccessIn(source));
}

// A command may answer a choice by listing other groups, or by closing the panel, from inside the
// notification.
class AnsweringCommand : public CATCommand {
  public:
    AnsweringCommand(OrvKvGroupAndGeometrySub& ioPanel, bool iCloses)
        : CATCommand(nullptr, "AnsweringCommand"), _panel(ioPanel), _closes(iCloses) {}

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification*) override {
        const CATListValCATString keys = KeysOf({"Shafts"});
        if (_answers++ > 0)
            return CATNotifDontTransmitToFather;
        if (_closes)
            _panel.RequestDelayedDestruction();
        else
            _panel.SetGroupKeys(&keys, 1);
        return CATNotifDontTransmitToFather;
    }
    int Answers() const { return _answers; }

  private:
    OrvKvGroupAndGeometrySub& _panel;
    bool _closes;
    int _answers = 0;
};

TEST_F(OrvKvGroupAndGeometrySubTest, ACommandMayListOtherGroupsWhileItHearsOfOne) {
    BuiltPanel();
    AnsweringCommand command(Panel(), false);
    host::Application::SetActiveCommand(&command);
    Report expected = SuccessIn(source);
    expected.returns = 2;
    EXPECT_EQ(SetGroups(KeysOf({"Holes", "Named"}), 2), expected);
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(command.Answers(), 2);
    EXPECT_EQ(LinesOf(GroupCombo()), Lines({"Shaft details"}));
    EXPECT_EQ(GroupCombo().GetSelect(), 0);
    EXPECT_EQ(GroupCombo().GetVisibility(), CATDlgShow);
}

TEST_F(OrvKvGroupAndGeometrySubTest, ACommandMayCloseThePanelWhileItHearsOfAGroup) {
    BuiltPanel();
    AnsweringCommand command(Panel(), true);
    host::Application::SetActiveCommand(&command);
    EXPECT_EQ(SetGroups(KeysOf({"Holes"}), 1), SuccessIn(source));
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(command.Answers(), 1);
    RunIdle();
    EXPECT_FALSE(Exists("GroupCmb"));
}

TEST_F(OrvKvGroupAndGeometrySubTest, AFailingLookUpOfADisplayNameShowsTheKey) {
    BuiltPanel();
    for (const int failing : {1, 2}) {
        host::FaultPoints::FailCall(failing, "message look-up");
        EXPECT_EQ(SetGroups(KeysOf({"Holes", "Shafts"}), 0), SuccessIn(source));
        host::FaultPoints::Stop();
        EXPECT_EQ(LinesOf(GroupCombo()), failing == 1 ? Lines({"Holes", "Shaft details"})
                                                      : Lines({"Holes and countersinks", "Shafts"}));
    }
}

TEST_F(OrvKvGroupAndGeometrySubTest, WithoutMemoryForTheNotificationNothingIsSentAndThePanelGoesOn) {
    BuiltPanel();
    host::FaultPoints::FailCall(1, "notification allocation");
    ASSERT_EQ(SetGroups(KeysOf({"Holes", "Shafts"}), 1), SuccessIn(source));
    host::FaultPoints::Stop();
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_EQ(GroupCombo().GetSelect(), 0);
    ASSERT_TRUE(host::DialogUser::Choose(GroupCombo(), 1));
    EXPECT_EQ(Command().TakeClasses(), oneGroup);
}

TEST_F(OrvKvGroupAndGeometrySubTest, WhereTheComboCannotBeMadeTheInputsWorkAndGroupsFail) {
    host::FaultPoints::FailCall(1, "widget allocation");
    BuiltPanel();
    host::FaultPoints::Stop();
    Panel().Build(); // makes nothing: what is there was made once
    EXPECT_EQ(host::Inspector::Children(Panel()).size(), 1U);
    EXPECT_EQ(SetGroups(KeysOf({"Holes"}), 1), FailureIn(source, noCombo));
    Panel().DisableGroup(CATDlgDisable);
    EXPECT_EQ(SetText(1, "Point.1"), ForwardedSuccess());
    Panel().DisableDirection();
    EXPECT_TRUE(host::DialogUser::Press(Button("Input1Pbt")));
}

TEST_F(OrvKvGroupAndGeometrySubTest, WhereTheGeometryCannotBeMadeGroupsWorkAndTextsFail) {
    host::FaultPoints::FailCall(2, "widget allocation");
    BuiltPanel();
    host::FaultPoints::Stop();
    Panel().Build(); // makes nothing: what is there was made once
    EXPECT_EQ(host::Inspector::Children(Panel()).size(), 1U);
    EXPECT_EQ(SetText(1, "Point.1"), FailureIn(source, noGeometry));
    Panel().DisableDirection();
    EXPECT_EQ(SetGroups(KeysOf({"Holes"}), 1), SuccessIn(source));
    EXPECT_EQ(LastGroup(), 1);
}

TEST_F(OrvKvGroupAndGeometrySubTest, WhereAWidgetOfTheGeometryCannotBeMadeTheRestWorks) {
    for (int missing = 3; missing <= 10; ++missing) {
        host::FaultPoints::FailCall(missing, "widget allocation");
        BuiltPanel();
        host::FaultPoints::Stop();
        EXPECT_EQ(host::Inspector::Children(Geometry()).size(), 7U) << missing;
        for (const int input : {1, 2, 3})
            EXPECT_EQ(SetText(input, "Point.1").result, "S_OK") << missing;
        Panel().DisableDirection();
        EXPECT_EQ(SetGroups(KeysOf({"Holes"}), 1), SuccessIn(source)) << missing;
        delete _panel;
        _panel = new OrvKvGroupAndGeometrySub(MainWindow());
    }
}

TEST_F(OrvKvGroupAndGeometrySubTest, APanelRemovesItsCallbackBeforeItsWidgetsGo) {
    std::vector<int> counts;
    new CountingChild(Panel(), counts);
    BuiltPanel();
    new CountingChild(Panel(), counts);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 1);
    const int before = host::CommandInspection::AnalyseCallbacks();
    delete _panel;
    EXPECT_EQ(counts, std::vector<int>({0, 0}));
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), before - 5) << "with those of the geometry";
    EXPECT_FALSE(Exists("GroupCmb"));
}

TEST_F(OrvKvGroupAndGeometrySubTest, CopiesCarryTheWidgetsOfTheOriginal) {
    BuiltPanel();
    OrvKvGroupAndGeometrySub copy(Panel());
    copy.Build(); // has its widgets already
    OrvKvGroupAndGeometrySub other(MainWindow());
    EXPECT_EQ(Observe([&] { return other.SetGeometryText(1, "Point.1", CATDlgShow); }),
              FailureIn(source, noGeometry));
    other = copy;
    copy.DisableGroup(CATDlgDisable);
    EXPECT_EQ(GroupCombo().GetSensitivity(), CATDlgDisable);
    other.DisableGroup(CATDlgEnable);
    EXPECT_EQ(GroupCombo().GetSensitivity(), CATDlgEnable);
    EXPECT_EQ(Observe([&] { return copy.SetGeometryText(1, "Point.1", CATDlgShow); }), ForwardedSuccess());
    EXPECT_EQ(Observe([&] { return other.SetGeometryText(2, "Line.1", CATDlgShow); }), ForwardedSuccess());
    EXPECT_STREQ(Editor("Input1Edt").GetText().ConvertToChar(), "Point.1");
    EXPECT_STREQ(Editor("Input2Edt").GetText().ConvertToChar(), "Line.1");
    EXPECT_TRUE(host::Inspector::Children(copy).empty());
    EXPECT_TRUE(host::Inspector::Children(other).empty());
}

TEST_F(OrvKvGroupAndGeometrySubTest, ADestroyedCopyLeavesTheCallbacksOfTheOriginalAlone) {
    BuiltPanel();
    SetGroups(KeysOf({"Holes"}), 0);
    { const OrvKvGroupAndGeometrySub copy(Panel()); }
    ASSERT_TRUE(host::DialogUser::Choose(GroupCombo(), 0));
    EXPECT_EQ(LastGroup(), 1);
}

TEST_F(OrvKvGroupAndGeometrySubTest, HelpForTheComboIsThereInEveryLanguage) {
    BuiltPanel();
    Lines shortHelps;
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        EXPECT_GT(GroupCombo().GetLongHelp().GetLengthInChar(), 0) << language;
        EXPECT_GT(GroupCombo().GetHelp().GetLengthInChar(), 0) << language;
        shortHelps.emplace_back(GroupCombo().GetShortHelp().ConvertToChar());
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(shortHelps,
              Lines({"Feature group", "Featuregruppe", "Groupe de fonctions", "フィーチャーのグループ"}));
}

} // namespace
