// The parameter list while its parameters change and the user double-clicks its rows.

#include "ParameterListTest.h"
#include "PrivateCallback.h"
#include "StandInParameter.h"

#include "CATDlgDocument.h"
#include "CATDlgMultiList.h"
#include "host/CommandInspection.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/LiveObjects.h"
#include "host/ParameterEntry.h"
#include "host/Parameters.h"

static PrivateCallback<OrvKvParameterListSub> onActivate = nullptr;
template struct OpenCallback<onActivate, &OrvKvParameterListSub::OnParameterListActivateNotification>;

namespace {

using namespace support;

class OrvKvParameterListSubEventsTest : public ParameterListTest {
  protected:
    OrvKvParameterListSubEventsTest() { MakeBuilt(); }

    void ListBoth() {
        SetParameters({{.parameter = _diameter, .name = "D"}, {.parameter = _depth, .name = "T"}});
    }

    CATICkeParm_var _diameter = Length("D", 10, 0.1, -0.05);
    CATICkeParm_var _depth = Length("T", 20);
};

TEST_F(OrvKvParameterListSubEventsTest, AChangedValueIsShownInItsRowAndReportedOnce) {
    ListBoth();
    const host::Outcome typed = host::ParameterEntry::Type(*_depth, "2,1 cm");
    ASSERT_TRUE(typed) << typed.reason;
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|T|21mm||Depth"}));
    EXPECT_EQ(TakeReported(), Reported({"changed T"}));
}

TEST_F(OrvKvParameterListSubEventsTest, AChangedValueUpdatesMarkerValueAndTolerance) {
    const OrvIKvFeatureParameters_var feature = FeatureWith({});
    Panel().SetFeatureParameters(feature);
    ListBoth();
    feature->SetTemporarilyModified("D", 1);
    feature->SetTemporarilyModified("T", 1);
    SetTolerance(_diameter, 0.2, 0.1);
    Change(_diameter, 12);
    EXPECT_EQ(ShownRows(), Rows({"*|D|12mm|+0.2/0.1|Diameter", "|T|20mm||Depth"}));
    feature->ForgetModifications();
    Change(_diameter, 10);
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.2/0.1|Diameter", "|T|20mm||Depth"}));
}

TEST_F(OrvKvParameterListSubEventsTest, TheMarkerAfterAChangeFollowsTheFeatureAndIsEmptyWithoutOne) {
    SetParameters({{.parameter = _diameter, .name = "D"}});
    Change(_diameter, 11);
    EXPECT_EQ(Cell(1, 0), "");
}

TEST_F(OrvKvParameterListSubEventsTest, AChangedValueStandsInParenthesesUnlessItsEditableFlagIsOneOrMore) {
    const struct {
        int editable;
        const char* value;
    } cases[] = {{-1, "(12mm)"}, {0, "(12mm)"}, {1, "12mm"}, {2, "12mm"}};
    for (const auto& each : cases) {
        SetParameters({{.parameter = _diameter, .name = "D", .valueEditable = each.editable}});
        Change(_diameter, 12);
        EXPECT_EQ(Cell(1, 2), each.value) << each.editable;
    }
}

// The flags decide otherwise than in filling: what is not shown may appear.
TEST_F(OrvKvParameterListSubEventsTest, AChangedValueIsShownEvenWhereTheValueWasNot) {
    SetParameters({{.parameter = _diameter, .name = "D", .valueShown = 0}});
    EXPECT_EQ(Cell(1, 2), "");
    Change(_diameter, 12);
    EXPECT_EQ(Cell(1, 2), "12mm");
    EXPECT_EQ(TakeReported(), Reported({"changed D"}));
}

TEST_F(OrvKvParameterListSubEventsTest, AChangeShowsTheToleranceAsItsFlagsAsk) {
    const struct {
        int shown;
        int editable;
        const char* tolerance;
        const char* withoutTolerance;
    } cases[] = {{1, 1, "+0.1/-0.05", ""},     {1, 2, "+0.1/-0.05", ""},      {1, -1, "+0.1/-0.05", ""},
                 {0, 1, "+0.1/-0.05", ""},     {-1, -1, "+0.1/-0.05", ""},    {1, 0, "(+0.1/-0.05)", "()"},
                 {2, 0, "(+0.1/-0.05)", "()"}, {-1, 0, "(+0.1/-0.05)", "()"}, {0, 0, "", ""}};
    for (const auto& each : cases) {
        SetTolerance(_diameter, 0.1, -0.05);
        SetParameters({{.parameter = _diameter,
                        .name = "D",
                        .toleranceShown = each.shown,
                        .toleranceEditable = each.editable}});
        SetFittingInfo("D", "to be replaced");
        Change(_diameter, 12);
        EXPECT_EQ(Cell(1, 3), each.tolerance) << each.shown << ", " << each.editable;
        SetTolerance(_diameter, 0.0, 0.0);
        RaiseToleranceChange(_diameter);
        EXPECT_EQ(Cell(1, 3), each.withoutTolerance) << each.shown << ", " << each.editable;
    }
}

TEST_F(OrvKvParameterListSubEventsTest, ATextInPlaceOfTheValueGivesWayToTheValue) {
    SetParameters({{.parameter = _diameter, .name = "D", .tolerance = "H7", .toleranceEditable = 0}});
    EXPECT_EQ(ShownRows(), Rows({"|D|(H7)||Diameter"}));
    Change(_diameter, 12);
    EXPECT_EQ(ShownRows(), Rows({"|D|12mm|(+0.1/-0.05)|Diameter"}));
}

TEST_F(OrvKvParameterListSubEventsTest, AChangedToleranceIsMarkedAndShownButNotReported) {
    ListBoth();
    SetTolerance(_diameter, 0.3, 0.2);
    RaiseToleranceChange(_diameter);
    EXPECT_EQ(ShownRows(), Rows({"*|D|10mm|+0.3/0.2|Diameter", "|T|20mm||Depth"}));
    EXPECT_EQ(TakeReported(), Reported());
    Change(_diameter, 10);
    EXPECT_EQ(Cell(1, 0), "") << "no feature: a changed value takes the marker back";
    EXPECT_EQ(TakeReported(), Reported({"changed D"}));
}

TEST_F(OrvKvParameterListSubEventsTest, AChangedToleranceLeavesTheValueColumnAlone) {
    SetParameters({{.parameter = _diameter, .name = "D", .tolerance = "H7", .toleranceEditable = 0}});
    RaiseToleranceChange(_diameter);
    EXPECT_EQ(ShownRows(), Rows({"*|D|(H7)|(+0.1/-0.05)|Diameter"}));
}

TEST_F(OrvKvParameterListSubEventsTest, AStoredValueIsShownWhenItsChangeIsRaised) {
    ListBoth();
    CATIParmEvents_var(_diameter)->RaiseChange(1);
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|T|20mm||Depth"}));
    EXPECT_EQ(TakeReported(), Reported({"changed D"}));
}

TEST_F(OrvKvParameterListSubEventsTest, AChangedSecondParameterOfANameShowsTheValueOfTheFirst) {
    const CATICkeParm_var second = Length("D", 12, 0.4, 0.3);
    SetParameters({{.parameter = _diameter, .name = "D"},
                   {.parameter = second, .name = "D", .valueEditable = 0, .toleranceEditable = 0}});
    EXPECT_EQ(Cell(2, 2), "(12mm)");
    Change(second, 13);
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|D|10mm|+0.1/-0.05|Diameter"}));
    EXPECT_EQ(TakeReported(), Reported({"changed D"}));
}

TEST_F(OrvKvParameterListSubEventsTest, AHiddenParameterOfTheSameNameStandsInForTheShownOne) {
    SetParameters({{.parameter = _depth,
                    .name = "D",
                    .valueShown = 0,
                    .valueEditable = 0,
                    .toleranceShown = 0,
                    .toleranceEditable = 0},
                   {.parameter = _diameter, .name = "D"}});
    Change(_diameter, 11);
    EXPECT_EQ(ShownRows(), Rows({"|D|(20mm)||Diameter"}));
    DoubleClick(1);
    EXPECT_EQ(TakeReported(), Reported({"changed D", "double click on D at 1, value 0, tolerance 0"}));
}

TEST_F(OrvKvParameterListSubEventsTest, AParameterListedTwiceIsShownAndReportedForEachOfItsRows) {
    SetParameters({{.parameter = _diameter, .name = "D"}, {.parameter = _diameter, .name = "E"}});
    EXPECT_EQ(SubscriptionsOn(_diameter), 4);
    Change(_diameter, 11);
    EXPECT_EQ(ShownRows(), Rows({"|D|11mm|+0.1/-0.05|Diameter", "|E|11mm|+0.1/-0.05| "}));
    EXPECT_EQ(TakeReported(), Reported({"changed D", "changed E"}));
    ListBoth();
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
}

TEST_F(OrvKvParameterListSubEventsTest, StoppedNotificationsLeaveTheListUpToDate) {
    ListBoth();
    for (const int stop : {1, 2, 255}) {
        Panel().StopParameterValueChangedNotification(static_cast<unsigned char>(stop));
        Change(_diameter, 10 + stop);
        EXPECT_EQ(Cell(1, 2), std::to_string(10 + stop) + "mm");
        EXPECT_EQ(TakeReported(), Reported()) << stop;
    }
    Panel().StopParameterValueChangedNotification(0);
    Change(_diameter, 10);
    EXPECT_EQ(TakeReported(), Reported({"changed D"}));
}

TEST_F(OrvKvParameterListSubEventsTest, StoppedNotificationsDoNotConcernDoubleClicks) {
    ListBoth();
    Panel().StopParameterValueChangedNotification(1);
    DoubleClick(2);
    EXPECT_EQ(TakeReported(), Reported({"double click on T at 2, value 1, tolerance 1"}));
}

TEST_F(OrvKvParameterListSubEventsTest, ADoubleClickReportsThePositionAmongAllParameters) {
    SetParameters({{.parameter = _depth, .name = "H1", .valueShown = 0, .toleranceShown = 0},
                   {.parameter = _diameter, .name = "D"},
                   {.parameter = _depth, .name = "H2", .valueShown = 0, .toleranceShown = 0},
                   {.parameter = _depth, .name = "T"}});
    DoubleClick(1);
    DoubleClick(2);
    EXPECT_EQ(TakeReported(), Reported({"double click on D at 2, value 1, tolerance 1",
                                        "double click on T at 4, value 1, tolerance 1"}));
}

TEST_F(OrvKvParameterListSubEventsTest, ADoubleClickTellsWhatMayBeEdited) {
    for (const int value : {-1, 0, 1, 2})
        for (const int tolerance : {-1, 0, 1, 2}) {
            SetParameters({{.parameter = _diameter,
                            .name = "D",
                            .valueEditable = value,
                            .toleranceEditable = tolerance}});
            DoubleClick(1);
            EXPECT_EQ(TakeReported(),
                      Reported({std::string("double click on D at 1, value ") + (value >= 1 ? "1" : "0") +
                                ", tolerance " + (tolerance >= 1 ? "1" : "0")}));
        }
}

TEST_F(OrvKvParameterListSubEventsTest, ADoubleClickOnASecondParameterOfANameReportsTheFirst) {
    SetParameters({{.parameter = _depth, .name = "T"},
                   {.parameter = _diameter, .name = "D", .valueEditable = 0},
                   {.parameter = _diameter, .name = "D"}});
    DoubleClick(3);
    EXPECT_EQ(TakeReported(), Reported({"double click on D at 2, value 0, tolerance 1"}));
}

TEST_F(OrvKvParameterListSubEventsTest, SelectingARowReportsNothing) {
    ListBoth();
    ASSERT_TRUE(host::DialogUser::Select(List(), {1}));
    EXPECT_EQ(TakeReported(), Reported());
}

TEST_F(OrvKvParameterListSubEventsTest, ANotificationOfTheListWithoutASelectedRowReportsNothing) {
    SetParameters({{.parameter = _diameter, .name = ""}});
    CATNotification* const event = List().GetListActivateNotification();
    event->AddRef();
    List().SendNotification(&Panel(), event);
    EXPECT_EQ(TakeReported(), Reported());
    DoubleClick(1);
    EXPECT_EQ(TakeReported(), Reported({"double click on  at 1, value 1, tolerance 1"}));
}

TEST_F(OrvKvParameterListSubEventsTest, AnEventThatDoesNotComeFromAListIsTracedAndReportsNothing) {
    const TraceLines badSource = {
        {"OrvKv9SubFrames", 2, "OrvKvParameterListSub::OnParameterListSelectNotification bad event source"}};
    ListBoth();
    DoubleClick(1);
    TakeReported();
    EXPECT_EQ(Traces().Take(), TraceLines());
    (Panel().*onActivate)(&Panel(), nullptr, nullptr);
    EXPECT_EQ(Traces().Take(), badSource);
    (Panel().*onActivate)(nullptr, nullptr, nullptr);
    EXPECT_EQ(Traces().Take(), badSource);
    EXPECT_EQ(TakeReported(), Reported());
    (Panel().*onActivate)(&List(), nullptr, nullptr);
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(TakeReported(), Reported({"double click on D at 1, value 1, tolerance 1"}));
}

TEST_F(OrvKvParameterListSubEventsTest, ThePanelItselfSendsToItsFather) {
    ListBoth();
    Change(_diameter, 11);
    DoubleClick(1);
    for (const HeardNotification& heard : Command().Heard())
        if (heard.className.rfind("OrvKv", 0) == 0) {
            EXPECT_EQ(heard.sender, &Panel()) << heard.className;
        }
    EXPECT_EQ(TakeReported().size(), 2U);
}

TEST_F(OrvKvParameterListSubEventsTest, WithoutMemoryForTheNotificationNothingIsSentAndThePanelGoesOn) {
    ListBoth();
    host::FaultPoints::FailCall(1, "notification allocation");
    Change(_diameter, 11);
    host::FaultPoints::Stop();
    EXPECT_EQ(Cell(1, 2), "11mm");
    EXPECT_EQ(TakeReported(), Reported());
    DoubleClick(1);
    TakeReported();
    host::FaultPoints::FailCall(1, "notification allocation");
    DoubleClick(1);
    host::FaultPoints::Stop();
    EXPECT_EQ(TakeReported(), Reported());
    Change(_diameter, 12);
    DoubleClick(1);
    EXPECT_EQ(TakeReported(), Reported({"changed D", "double click on D at 1, value 1, tolerance 1"}));
}

// A command that does something when it hears one kind of notification, and tells how often it did.
class AnsweringCommand : public CATCommand {
  public:
    AnsweringCommand(const char* iClass, std::function<void()> iAnswer)
        : CATCommand(nullptr, "AnsweringCommand"), _class(iClass), _answer(std::move(iAnswer)) {
        host::Application::SetActiveCommand(this);
    }

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification* iNotification) override {
        if (iNotification->IsAKindOf(_class) == 0)
            return CATNotifTransmitToFather;
        ++_heard;
        _answer();
        return CATNotifDontTransmitToFather;
    }
    int Heard() const { return _heard; }

  private:
    const char* _class;
    std::function<void()> _answer;
    int _heard = 0;
};

constexpr char valueChanged[] = "OrvKvModifiedParameterInMultiListNotification";
constexpr char doubleClicked[] = "OrvKvParameterListDoubleClickedNotification";
constexpr char visibilityChanged[] = "CATDlgVisibilityNotification";

class AnsweredParameterListTest : public OrvKvParameterListSubEventsTest {
  protected:
    void TearDown() override {
        host::Application::SetActiveCommand(&Command());
        OrvKvParameterListSubEventsTest::TearDown();
    }

    ParameterLists _both =
        ParameterLists::Of({{.parameter = _diameter, .name = "D"}, {.parameter = _depth, .name = "T"}});
    ParameterLists _depthAlone = ParameterLists::Of({{.parameter = _depth, .name = "T"}});
};

TEST_F(AnsweredParameterListTest, ACommandMayListOtherParametersWhileItHearsOfAChange) {
    _both.HandTo(Panel());
    const AnsweringCommand command(valueChanged, [this] { _depthAlone.HandTo(Panel()); });
    Change(_diameter, 11);
    EXPECT_EQ(command.Heard(), 1);
    EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth"}));
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
    EXPECT_EQ(SubscriptionsOn(_depth), 2);
    Change(_depth, 21);
    EXPECT_EQ(command.Heard(), 2);
    EXPECT_EQ(ShownRows(), Rows({"|T|21mm||Depth"}));
}

TEST_F(AnsweredParameterListTest, ACommandMayListTheSameParametersAgainWhileItHearsOfAChange) {
    _both.HandTo(Panel());
    const AnsweringCommand command(valueChanged, [this] { _both.HandTo(Panel()); });
    Change(_diameter, 11);
    EXPECT_EQ(command.Heard(), 1);
    EXPECT_EQ(ShownRows(), Rows({"|D|11mm|+0.1/-0.05|Diameter", "|T|20mm||Depth"}));
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
}

TEST_F(AnsweredParameterListTest, ACommandMayListOtherParametersWhileItHearsOfADoubleClick) {
    _both.HandTo(Panel());
    const AnsweringCommand command(doubleClicked, [this] { _depthAlone.HandTo(Panel()); });
    DoubleClick(2);
    EXPECT_EQ(command.Heard(), 1);
    EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth"}));
    EXPECT_EQ(SubscriptionsOn(_depth), 2);
}

TEST_F(AnsweredParameterListTest, ACommandMayDestroyThePanelWhileItHearsOfAChange) {
    _both.HandTo(Panel());
    const AnsweringCommand command(valueChanged, [this] { Panel().RequestDelayedDestruction(); });
    Change(_diameter, 11);
    Change(_diameter, 12);
    EXPECT_EQ(command.Heard(), 1) << "a panel that is to be destroyed reports nothing more";
    RunIdle();
    _panel = nullptr;
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
    Change(_diameter, 13);
    EXPECT_EQ(command.Heard(), 1);
}

TEST_F(AnsweredParameterListTest, ACommandMayDestroyThePanelWhileItHearsOfADoubleClick) {
    _both.HandTo(Panel());
    const AnsweringCommand command(doubleClicked, [this] { Panel().RequestDelayedDestruction(); });
    DoubleClick(1);
    _panel = nullptr;
    EXPECT_EQ(command.Heard(), 1);
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
}

TEST_F(AnsweredParameterListTest, ACommandMayCorrectTheValueWhileItHearsOfItsChange) {
    _both.HandTo(Panel());
    const AnsweringCommand command(valueChanged, [this] {
        if (_diameter->AsReal() > 0.0125)
            Change(_diameter, 12.5);
    });
    Change(_diameter, 13);
    EXPECT_EQ(command.Heard(), 2);
    EXPECT_EQ(Cell(1, 2), "12.5mm");
}

TEST_F(AnsweredParameterListTest, AParameterThatThePanelAloneHoldsStaysUntilItIsNotListedAnyMore) {
    const int others = host::LiveObjects::Count("Parameter");
    CATICkeParm* alone = nullptr;
    {
        const CATICkeParm_var made = Length("A", 10);
        alone = made;
        ParameterLists::Of({{.parameter = made, .name = "A"}}).HandTo(Panel());
    }
    EXPECT_EQ(alone->Valuate(0.011), S_OK);
    DoubleClick(1);
    EXPECT_EQ(TakeReported(), Reported({"changed A", "double click on A at 1, value 1, tolerance 1"}));
    const AnsweringCommand command(valueChanged, [this] { _depthAlone.HandTo(Panel()); });
    EXPECT_EQ(alone->Valuate(0.012), S_OK);
    EXPECT_EQ(command.Heard(), 1);
    EXPECT_EQ(host::LiveObjects::Count("Parameter"), others);
    EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth"}));
}

TEST_F(AnsweredParameterListTest, ACommandMayLetGoOfTheFeatureWhileItHearsOfAChange) {
    _both.HandTo(Panel());
    const AnsweringCommand command(valueChanged, [this] { Panel().SetFeatureParameters(nullptr); });
    Change(_diameter, 11);
    EXPECT_EQ(command.Heard(), 1);
    EXPECT_EQ(Cell(1, 2), "11mm");
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
}

// Runs its steps one after the other, each time it is asked; afterwards it does nothing.
std::function<void()> OneByOne(std::vector<std::function<void()>> iSteps) {
    return [steps = std::move(iSteps), next = std::size_t{0}]() mutable {
        const std::size_t step = next++;
        if (step < steps.size())
            steps[step]();
    };
}

const std::function<void()> nothing = [] {};

TEST_F(AnsweredParameterListTest, AChangeWhileTheListIsHiddenForFillingIsNotHeardAndItsValueShown) {
    _both.HandTo(Panel());
    List().GetVisibilityNotification();
    const AnsweringCommand command(visibilityChanged, OneByOne({[this] { Change(_diameter, 11); }}));
    EXPECT_EQ(_both.HandTo(Panel()), S_OK);
    EXPECT_EQ(command.Heard(), 2);
    EXPECT_EQ(ShownRows(), Rows({"|D|11mm|+0.1/-0.05|Diameter", "|T|20mm||Depth"}));
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
}

TEST_F(OrvKvParameterListSubEventsTest, AChangeWhileALaterRowIsWrittenIsShownInItsOwnRowAndReported) {
    const auto middle = host::Adopt(new StandInParameter(Length("M", 15)));
    middle->onShow = [&] {
        middle->onShow = nullptr;
        Change(_diameter, 11);
        SetTolerance(_diameter, 0.3, 0.2);
        RaiseToleranceChange(_diameter);
        Change(CATICkeParm_var(middle), 16);
        Change(_depth, 21);
    };
    EXPECT_EQ(SetParameters({{.parameter = _diameter, .name = "D"},
                             {.parameter = middle, .name = "M"},
                             {.parameter = _depth, .name = "T"}}),
              SuccessIn(parameterListSource));
    EXPECT_EQ(ShownRows(), Rows({"*|D|11mm|+0.3/0.2|Diameter", "|M|16mm|| ", "|T|21mm||Depth"}));
    EXPECT_EQ(TakeReported(), Reported({"changed D"})) << "the rows that are not written yet are not heard";
}

TEST_F(AnsweredParameterListTest, AChangeWhenTheFilledListIsShownAgainIsShownInItsRow) {
    List().GetVisibilityNotification();
    const AnsweringCommand command(visibilityChanged, OneByOne({nothing, [this] { Change(_diameter, 11); }}));
    EXPECT_EQ(_both.HandTo(Panel()), S_OK);
    EXPECT_EQ(command.Heard(), 2);
    EXPECT_EQ(ShownRows(), Rows({"|D|11mm|+0.1/-0.05|Diameter", "|T|20mm||Depth"}));
}

TEST_F(AnsweredParameterListTest, OtherParametersListedWhileTheListIsHiddenForFillingTakeItsPlace) {
    List().GetVisibilityNotification();
    const AnsweringCommand command(visibilityChanged,
                                   OneByOne({[this] { EXPECT_EQ(_depthAlone.HandTo(Panel()), S_OK); }}));
    EXPECT_EQ(_both.HandTo(Panel()), S_OK);
    EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth"}));
    EXPECT_EQ(List().GetVisibility(), CATDlgShow);
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
    EXPECT_EQ(SubscriptionsOn(_depth), 2);
    DoubleClick(1);
    EXPECT_EQ(Cell(1, 1), "T");
}

TEST_F(AnsweredParameterListTest, OtherParametersListedWhenTheFilledListIsShownAgainTakeItsPlace) {
    List().GetVisibilityNotification();
    const AnsweringCommand command(
        visibilityChanged, OneByOne({nothing, [this] { EXPECT_EQ(_depthAlone.HandTo(Panel()), S_OK); }}));
    EXPECT_EQ(_both.HandTo(Panel()), S_OK);
    EXPECT_EQ(command.Heard(), 4);
    EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth"}));
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
    EXPECT_EQ(SubscriptionsOn(_depth), 2);
}

TEST_F(AnsweredParameterListTest, AFeatureGivenWhileTheListIsHiddenForFillingLeavesItEmpty) {
    List().GetVisibilityNotification();
    const AnsweringCommand command(visibilityChanged,
                                   OneByOne({[this] { Panel().SetFeatureParameters(nullptr); }}));
    EXPECT_EQ(_both.HandTo(Panel()), S_OK);
    EXPECT_EQ(ShownRows(), Rows());
    EXPECT_EQ(List().GetVisibility(), CATDlgShow);
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
}

} // namespace
