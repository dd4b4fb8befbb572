// What the panel tells the command when a person chooses a set or double-clicks a parameter.

#include "OrvKvParameterSetListSubTest.h"
#include "PrivateCallback.h"

#include "support/ResourceFolder.h"

#include "host/Application.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/MessageCatalogs.h"

#include <functional>

static PrivateCallback<OrvKvParameterSetListSub> onSelection = nullptr;
static PrivateCallback<OrvKvParameterSetListSub> onEdit = nullptr;
template struct OpenCallback<onSelection, &OrvKvParameterSetListSub::OnParameterSetSelection>;
template struct OpenCallback<onEdit, &OrvKvParameterSetListSub::OnCurrentParameterEdit>;

namespace {

using namespace support;
using namespace parameterSetList;

const TraceLines editTrace = {{"OrvKv9SubFrames", 2, "OrvKvParameterSetListSub::OnCurrentParameterEdit"}};

std::string EditOfValue(const std::string& iName) {
    return "edit '" + iName + "' row -1 value 1 tolerance 1";
}

std::string EditOfTolerance(const std::string& iName) {
    return "edit '" + iName + "' row -1 value 0 tolerance 1";
}

class OrvKvParameterSetListSubEventsTest : public OrvKvParameterSetListSubTest {
  protected:
    void MakeCurrent(const std::vector<Shown>& iParameters) {
        MakeBuilt();
        SetNames(iParameters);
        SetCurrent("set");
    }
    // What is told of a double click on each column in turn.
    Texts ToldOfEachColumn() {
        Texts told;
        for (int column = 0; column < CurrentTable().GetColumnCount(); ++column) {
            EXPECT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, column));
            const Texts ofColumn = TakeTold();
            EXPECT_LE(ofColumn.size(), 1U);
            told.push_back(ofColumn.empty() ? "nothing" : ofColumn[0]);
        }
        return told;
    }
    // The same with a text of one's own for the mark of a tolerance column.
    Texts ToldOfEachColumnWithMark(const std::string& iMark, const std::vector<Shown>& iParameters) {
        const ResourceFolder resources;
        resources.Write("Tests/OrvKvParameterSetListSub.CATNls", "ToleranceString = \"" + iMark + "\";\n");
        host::MessageCatalogs::SetLanguage("Tests");
        MakeCurrent(iParameters);
        const Texts told = ToldOfEachColumn();
        host::MessageCatalogs::SetLanguage("");
        return told;
    }
};

TEST_F(OrvKvParameterSetListSubEventsTest, AChosenSetIsReportedWithItsNameAndThenAsAChange) {
    MakeFilled({"A", "B / 100 % (größer)\nzweite Zeile", ""});
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0}));
    EXPECT_EQ(TakeTold(), ChoiceOf("A"));
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {1}));
    EXPECT_EQ(TakeTold(), ChoiceOf("B / 100 % (größer)\nzweite Zeile"));
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {2}));
    EXPECT_EQ(TakeTold(), ChoiceOf(""));
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {2}));
    EXPECT_EQ(TakeTold(), ChoiceOf("")) << "choosing it again";
    EXPECT_EQ(Traces().Take(), TraceLines());
}

TEST_F(OrvKvParameterSetListSubEventsTest, TheReportsComeFromThePanelAndNothingElseIsHeard) {
    MakeFilled({"A"});
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0}));
    ASSERT_EQ(Command().Heard().size(), 2U);
    for (const HeardNotification& heard : Command().Heard())
        EXPECT_EQ(heard.sender, _panel);
}

TEST_F(OrvKvParameterSetListSubEventsTest, ADoubleClickOnASetReportsItTwice) {
    MakeFilled({"A", "B"});
    ASSERT_TRUE(host::DialogUser::Activate(SetTable(), 1, 1));
    EXPECT_EQ(TakeTold(), Texts({"set 'B'", "modified ''", "set 'B'", "modified ''"}));
    EXPECT_EQ(Traces().Take(), TraceLines()) << "a cell of the sets is not edited";
}

TEST_F(OrvKvParameterSetListSubEventsTest, ASelectionThatIsTakenBackIsReportedWithoutName) {
    MakeFilled({"A"});
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0}));
    Command().Forget();
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {}));
    EXPECT_EQ(TakeTold(), ChoiceOf(""));
}

TEST_F(OrvKvParameterSetListSubEventsTest, ChoosingALineOfTheCurrentParametersReportsNothing) {
    MakeCurrent({Shown{"D"}});
    ASSERT_TRUE(host::DialogUser::Select(CurrentTable(), {0}));
    EXPECT_EQ(TakeTold(), Texts());
    EXPECT_EQ(Traces().Take(), TraceLines());
}

TEST_F(OrvKvParameterSetListSubEventsTest, TheReportsGoToTheFatherAndNotThroughThePanelItself) {
    auto* const panel = new ListeningPanel<OrvKvParameterSetListSub>(MainWindow());
    _panel = panel;
    _panel->Build();
    AddSet("A");
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0}));
    EXPECT_EQ(TakeTold(), ChoiceOf("A"));
    EXPECT_EQ(panel->Count(), 0);
    SetTable().SendNotification(panel, new OrvKvModifiedParameterInMultiListNotification("A"));
    EXPECT_EQ(panel->Count(), 1) << "one that is sent to the panel is counted";
}

TEST_F(OrvKvParameterSetListSubEventsTest, ADoubleClickOnAValueOrToleranceAsksToEditIt) {
    MakeCurrent({{"D", 1, 1, 1, 1}, {"T", 1, 1, 1, 1}});
    EXPECT_EQ(ToldOfEachColumn(), Texts({"nothing", EditOfValue("D"), EditOfTolerance("D"), EditOfValue("T"),
                                         EditOfTolerance("T")}));
}

TEST_F(OrvKvParameterSetListSubEventsTest, TheColumnOfTheNamesIsNoParameterWhateverItsTitle) {
    MakeCurrent({Shown{"Parameter Set Name"}});
    EXPECT_EQ(ToldOfEachColumn(), Texts({"nothing", EditOfValue("Parameter Set Name")}));
}

TEST_F(OrvKvParameterSetListSubEventsTest, EveryDoubleClickOnTheCurrentParametersIsTraced) {
    MakeCurrent({Shown{"D"}});
    for (const int column : {0, 1}) {
        ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, column));
        EXPECT_EQ(Traces().Take(), editTrace) << column;
    }
}

TEST_F(OrvKvParameterSetListSubEventsTest, WhatCannotBeEditedIsNotAskedFor) {
    MakeCurrent({{"A", 1, 0, 1, 0}, {"B", 1, -1, 1, 1}, {"C", 1, 2, 1, -1}, {"D", 1, 0, 1, 5}});
    EXPECT_EQ(ToldOfEachColumn(), Texts({"nothing", "nothing", "nothing", "nothing", EditOfTolerance("B"),
                                         EditOfValue("C"), "nothing", "nothing", EditOfTolerance("D")}));
}

TEST_F(OrvKvParameterSetListSubEventsTest, OfParametersWithOneNameTheFirstDecides) {
    MakeCurrent({{"D", 1, 0, 1, 1}, {"D", 1, 1, 1, 0}, {"T", 1, 1, 0, 0}});
    EXPECT_EQ(ToldOfEachColumn(), Texts({"nothing", "nothing", EditOfTolerance("D"), "nothing",
                                         EditOfTolerance("D"), EditOfValue("T")}));
}

TEST_F(OrvKvParameterSetListSubEventsTest, NamesArePassedOnAsTheyAre) {
    const Texts names = {
        "größer", "100 %d", "(a)/b", "zwei\nZeilen", "", "表 \U0001F529", std::string(100000, 'x')};
    std::vector<Shown> shown;
    Texts expected = {"nothing"};
    for (const std::string& name : names) {
        shown.push_back({name, 1, 1, 1, 1});
        expected.push_back(EditOfValue(name));
        expected.push_back(EditOfTolerance(name));
    }
    MakeCurrent(shown);
    EXPECT_EQ(ToldOfEachColumn(), expected);
}

TEST_F(OrvKvParameterSetListSubEventsTest, ValueColumnsThatLookLikeToleranceColumnsAreTakenForSome) {
    MakeCurrent({{"A", 0, 1, 0, 1}, {"A_Tol", 1, 1, 1, 1}, {"_TolB", 1, 1, 1, 1}, {"C_Tol", 1, 1, 0, 1}});
    EXPECT_EQ(ToldOfEachColumn(), Texts({"nothing",
                                         EditOfTolerance("A"),     // "A_Tol"
                                         EditOfTolerance("A_Tol"), // "A_Tol_Tol"
                                         "nothing",                // "_TolB", of which "_" is left
                                         EditOfTolerance("_TolB"), // "_TolB_Tol"
                                         "nothing"}));             // "C_Tol": there is no "C"
}

TEST_F(OrvKvParameterSetListSubEventsTest, AsManyCharactersAsTheMarkHasAreTakenOffTheEnd) {
    MakeCurrent({{"_", 0, 1, 0, 1}, {"_TolB", 1, 1, 0, 1}, {"_TolBCDE", 1, 1, 0, 1}});
    EXPECT_EQ(ToldOfEachColumn(), Texts({"nothing", EditOfTolerance("_"), "nothing"}));
}

TEST_F(OrvKvParameterSetListSubEventsTest, ATitleOfTheMarkAloneIsTheToleranceOfTheEmptyName) {
    MakeCurrent({{"", 0, 1, 0, 1}, {"_Tol", 1, 1, 0, 1}});
    EXPECT_EQ(ToldOfEachColumn(), Texts({"nothing", EditOfTolerance("")}));
}

TEST_F(OrvKvParameterSetListSubEventsTest, TheMarkOfTheResourceFileCounts) {
    EXPECT_EQ(ToldOfEachColumnWithMark(" ±公差", {{"Länge", 1, 1, 1, 1}, {"A_Tol", 1, 1, 1, 1}}),
              Texts({"nothing", EditOfValue("Länge"), EditOfTolerance("Länge"), EditOfValue("A_Tol"),
                     EditOfTolerance("A_Tol")}));
}

TEST_F(OrvKvParameterSetListSubEventsTest, AnEmptyMarkMarksNoColumn) {
    EXPECT_EQ(ToldOfEachColumnWithMark("", {{"D", 1, 1, 1, 1}, {"T", 0, 0, 1, 1}}),
              Texts({"nothing", EditOfValue("D"), EditOfValue("D"), "nothing"}));
}

TEST_F(OrvKvParameterSetListSubEventsTest, WithoutAMarkInTheResourceFileTheDefaultCounts) {
    MakeCurrent({{"D", 1, 1, 1, 1}});
    host::FaultPoints::FailCall(1, "message look-up");
    ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 2));
    host::FaultPoints::Stop();
    EXPECT_EQ(TakeTold(), Texts({EditOfTolerance("D")}));
}

TEST_F(OrvKvParameterSetListSubEventsTest, OtherWidgetsAreNotListenedTo) {
    MakeFilled({"A"});
    auto* const other = new CATDlgMultiList(_panel, "Other");
    other->SetColumnItem(0, "x");
    ASSERT_TRUE(host::DialogUser::Activate(*other, 0, 0));
    CATNotification* const event = SetTable().GetListSelectNotification();
    event->AddRef();
    other->SendNotification(_panel, event);
    EXPECT_EQ(TakeTold(), Texts());
    EXPECT_EQ(Traces().Take(), TraceLines());
    event->AddRef();
    SetTable().SendNotification(_panel, event);
    EXPECT_EQ(TakeTold(), ChoiceOf("")) << "the table's own one is answered";
}

TEST_F(OrvKvParameterSetListSubEventsTest, AChoiceThatDoesNotComeFromAListIsTracedAndReportsNothing) {
    const TraceLines badSource = {
        {"OrvKv9SubFrames", 2, "OrvKvParameterSetListSub::OnParameterSetSelection bad event source"}};
    MakeFilled({"A"});
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0}));
    EXPECT_EQ(TakeTold(), ChoiceOf("A"));
    for (CATCommand* const from : std::initializer_list<CATCommand*>{_panel, nullptr}) {
        (_panel->*onSelection)(from, nullptr, nullptr);
        EXPECT_EQ(Traces().Take(), badSource);
        EXPECT_EQ(TakeTold(), Texts());
    }
    (_panel->*onSelection)(&SetTable(), nullptr, nullptr);
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(TakeTold(), ChoiceOf("A"));
}

TEST_F(OrvKvParameterSetListSubEventsTest, ADoubleClickThatDoesNotComeFromAListReportsNothing) {
    MakeCurrent({Shown{"D"}});
    ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 1));
    EXPECT_EQ(TakeTold(), Texts({EditOfValue("D")}));
    Traces().Take();
    for (CATCommand* const from : std::initializer_list<CATCommand*>{_panel, nullptr}) {
        (_panel->*onEdit)(from, nullptr, nullptr);
        EXPECT_EQ(Traces().Take(), editTrace) << "it is traced all the same";
        EXPECT_EQ(TakeTold(), Texts());
    }
    (_panel->*onEdit)(&CurrentTable(), nullptr, nullptr);
    EXPECT_EQ(TakeTold(), Texts({EditOfValue("D")}));
}

TEST_F(OrvKvParameterSetListSubEventsTest, AListThatWasNeverDoubleClickedReportsNothing) {
    MakeCurrent({Shown{"D"}});
    (_panel->*onEdit)(&CurrentTable(), nullptr, nullptr);
    EXPECT_EQ(Traces().Take(), editTrace);
    EXPECT_EQ(TakeTold(), Texts());
}

TEST_F(OrvKvParameterSetListSubEventsTest, WithoutMemoryForAReportTheOtherOneIsSent) {
    MakeFilled({"A"});
    for (const int failing : {1, 2}) {
        host::FaultPoints::FailCall(failing, "notification allocation");
        ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0}));
        host::FaultPoints::Stop();
        EXPECT_EQ(TakeTold(), failing == 1 ? Texts({"modified ''"}) : Texts({"set 'A'"}));
    }
}

TEST_F(OrvKvParameterSetListSubEventsTest, WithoutMemoryForTheReportOfADoubleClickNothingIsSent) {
    MakeCurrent({Shown{"D"}});
    host::FaultPoints::FailCall(1, "notification allocation");
    ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 1));
    host::FaultPoints::Stop();
    EXPECT_EQ(TakeTold(), Texts());
    ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 1));
    EXPECT_EQ(TakeTold(), Texts({EditOfValue("D")}));
}

// A command that does something as soon as it hears of a chosen set, and writes down what it hears.
class AnsweringCommand : public CATCommand {
  public:
    explicit AnsweringCommand(std::function<void()> iAnswer)
        : CATCommand(nullptr, "AnsweringCommand"), _answer(std::move(iAnswer)) {}

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification* iNotification) override {
        told.push_back(Told(iNotification));
        if (dynamic_cast<OrvKvParameterSetSelectedNotification*>(iNotification) != nullptr)
            _answer();
        return CATNotifDontTransmitToFather;
    }
    Texts told;

  private:
    std::function<void()> _answer;
};

class OrvKvParameterSetListSubAnswersTest : public OrvKvParameterSetListSubEventsTest {
  protected:
    // What a command is told of an action when it answers a chosen set with iAnswer.
    Texts ToldWhenAnswered(const std::function<void()>& iAnswer, const std::function<void()>& iAction) {
        AnsweringCommand command(iAnswer);
        host::Application::SetActiveCommand(&command);
        iAction();
        host::Application::SetActiveCommand(&Command());
        return command.told;
    }
    void ShowOtherColumns() {
        CallSetNames(ValuesOf({"X", "Y"}));
        CallAddSet("New", {Length(1), Length(2)}, {});
        CallSetCurrent("New", {Length(1), Length(2)}, {});
    }
    void ExpectOtherColumnsWork() {
        EXPECT_EQ(LineOf(SetTable(), 0), Texts({"New", "1mm", "2mm"}));
        EXPECT_EQ(SelectedName(), "New");
        ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 2));
        EXPECT_EQ(TakeTold(), Texts({EditOfValue("Y")}));
        ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0}));
        EXPECT_EQ(TakeTold(), ChoiceOf("New"));
    }
};

TEST_F(OrvKvParameterSetListSubAnswersTest, AChosenSetMayBeAnsweredByNewColumns) {
    MakeFilled({"A", "B"});
    EXPECT_EQ(ToldWhenAnswered([this] { ShowOtherColumns(); },
                               [] { ASSERT_TRUE(host::DialogUser::Select(SetTable(), {1})); }),
              ChoiceOf("B"));
    ExpectOtherColumnsWork();
}

TEST_F(OrvKvParameterSetListSubAnswersTest, ADoubleClickedSetMayBeAnsweredByNewColumns) {
    MakeFilled({"A", "B"});
    EXPECT_EQ(ToldWhenAnswered([this] { ShowOtherColumns(); },
                               [] { ASSERT_TRUE(host::DialogUser::Activate(SetTable(), 1, 0)); }),
              ChoiceOf("B"))
        << "the old table is on its way out and reports nothing more";
    ExpectOtherColumnsWork();
}

TEST_F(OrvKvParameterSetListSubAnswersTest, AChosenSetMayBeAnsweredByShowingIt) {
    MakeFilled({"A", "B"});
    EXPECT_EQ(ToldWhenAnswered([this] { CallSetCurrent("B", {Length(5)}, {}); },
                               [] { ASSERT_TRUE(host::DialogUser::Select(SetTable(), {1})); }),
              ChoiceOf("B"));
    EXPECT_EQ(LineOf(CurrentTable(), 0), Texts({"B", "5mm"}));
    EXPECT_EQ(SelectedName(), "B");
}

TEST_F(OrvKvParameterSetListSubAnswersTest, AChosenSetMayBeAnsweredByTakingThePanelAway) {
    MakeFilled({"A"});
    EXPECT_EQ(ToldWhenAnswered([this] { _panel->RequestDelayedDestruction(); },
                               [] { ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0})); }),
              Texts({"set 'A'"}))
        << "a panel on its way out reports nothing more";
    EXPECT_FALSE(Exists("OrvKvParameterListSub"));
}

} // namespace
