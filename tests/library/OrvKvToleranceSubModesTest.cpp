// How the tolerance panel goes from one mode to another: what a person sees, who listens to what, what the
// command hears, and what an error leaves.

#include "OrvKvToleranceSubModesTest.h"

#include "PrivateCallback.h"
#include "StandInParameter.h"

#include "CATError.h"
#include "CATErrorMacros.h"
#include "CATInternalError.h"
#include "host/FaultPoints.h"

using Subscribing = void (OrvKvToleranceSub::*)(unsigned char);
static Subscribing followDeviations = nullptr;
template struct OpenCallback<followDeviations, &OrvKvToleranceSub::ReactOnPMModifications>;
static Subscribing followParameter = nullptr;
template struct OpenCallback<followParameter, &OrvKvToleranceSub::UpdateFittingValuesOnChangeParmEvent>;

namespace {

using namespace support;
using namespace toleranceSub;

// From none

TEST_F(OrvKvToleranceSubModesTest, PlusMinusTakesTheDeviationsOfTheParameter) {
    MakeTolerated(0.3, 0.2);
    _panel->SetTolGroupAndField("H", "");
    Choose(PlusMinus());
    ExpectPlusMinus();
    EXPECT_EQ(ShownDeviations(), "0.3mm/0.2mm");
    EXPECT_EQ(Tolerance(), "0.3/0.2");
    EXPECT_EQ(Said(), Texts());
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubModesTest, PlusMinusWithoutAToleranceStartsWithTheDefaultDeviations) {
    MakeBuilt();
    Choose(PlusMinus());
    ExpectPlusMinus();
    EXPECT_EQ(ShownDeviations(), "0.1mm/-0.1mm");
    EXPECT_EQ(Tolerance(), "0.1/-0.1");
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvToleranceSubModesTest, SymmetricTakesTheMaximumOfTheParameterForBothDirections) {
    MakeTolerated(0.3, 0.2);
    _panel->SetTolGroupAndField("", "H7");
    Choose(Symmetric());
    ExpectSymmetric();
    EXPECT_EQ(ShownDeviations(), "0.3mm/-0.3mm");
    EXPECT_EQ(Tolerance(), "0.3/-0.3");
    EXPECT_EQ(Said(), Texts());
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubModesTest, SymmetricWithoutAToleranceStartsWithTheDefaultDeviations) {
    MakeBuilt();
    Choose(Symmetric());
    ExpectSymmetric();
    EXPECT_EQ(ShownDeviations(), "0.1mm/-0.1mm");
    EXPECT_EQ(Tolerance(), "0.1/-0.1");
}

TEST_F(OrvKvToleranceSubModesTest, AZeroToleranceThatIsSetStaysZero) {
    MakeTolerated(0.0, 0.0);
    Choose(Symmetric());
    EXPECT_EQ(Tolerance(), "0/0");
    EXPECT_EQ(ShownDeviations(), "0mm/0mm");
    MakeTolerated(0.0, 0.0);
    Choose(PlusMinus());
    EXPECT_EQ(Tolerance(), "0/0");
}

TEST_F(OrvKvToleranceSubModesTest, AFitKeepsTheDeviationsAndAsksTheCommandWithGroupAndField) {
    MakeTolerated(0.3, 0.2);
    _panel->SetTolGroupAndField("H", "H7");
    Choose(Fit());
    ExpectFit();
    EXPECT_EQ(Fitting(), "H|H7");
    EXPECT_EQ(ShownDeviations(), "0.3mm/0.2mm");
    EXPECT_EQ(Tolerance(), "0.3/0.2");
    ASSERT_EQ(Command().Classes(), Classes({"OrvKvParameterEditISOFittingNotification"}));
    EXPECT_EQ(Command().Heard().front().sender, _panel);
    EXPECT_EQ(Said(), Texts({"fit of D 'H' 'H7'"}));
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubModesTest, AFitForAParameterWithoutToleranceSetsNone) {
    MakeBuilt();
    Choose(Fit());
    EXPECT_EQ(Tolerance(), "none");
    EXPECT_EQ(Said(), Texts({"fit of D '' ''"}));
}

TEST_F(OrvKvToleranceSubModesTest, InEveryFirstModeTheArrowsStepByFiveHundredths) {
    MakeBuilt();
    Spin(Maximum(), 1);
    EXPECT_EQ(Stored(MaxLiteral()), 1.0) << "the platform's step";
    for (const char* name : {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "ISOFittingRdb"}) {
        MakeBuilt();
        Choose(Widget<CATDlgRadioButton>(name));
        Maximum().SetSensitivity(CATDlgEnable);
        const double maximum = Stored(MaxLiteral());
        Spin(Maximum(), 2);
        EXPECT_NEAR(Stored(MaxLiteral()), maximum + 0.1, 1e-12) << name;
        Minimum().SetSensitivity(CATDlgEnable);
        const double minimum = Stored(MinLiteral());
        Spin(Minimum(), -1);
        EXPECT_NEAR(Stored(MinLiteral()), minimum - 0.05, 1e-12) << name;
    }
}

// From plus/minus

TEST_F(OrvKvToleranceSubModesTest, FromPlusMinusSymmetricKeepsTheMaximumAndMirrorsIt) {
    MakePlusMinus();
    Type(Maximum(), "0.2");
    Type(Minimum(), "-0.5");
    EXPECT_EQ(Tolerance(), "0.2/-0.5");
    _panel->SetTolGroupAndField("H", "H7");
    Choose(Symmetric());
    ExpectSymmetric();
    EXPECT_EQ(ShownDeviations(), "0.2mm/-0.2mm");
    EXPECT_EQ(Tolerance(), "0.2/-0.2");
    EXPECT_EQ(Said(), Texts());
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubModesTest, FromPlusMinusANegligibleMaximumBecomesTheDefaultOne) {
    const struct {
        const char* maximum;
        const char* tolerance;
    } cases[] = {{"0.000005", "0.1/-0.1"},         {"-0.000005", "0.1/-0.1"},   {"0", "0.1/-0.1"},
                 {"0.0000099", "0.1/-0.1"},        {"0.00001", "1e-05/-1e-05"}, {"-0.00001", "-1e-05/1e-05"},
                 {"0.000011", "1.1e-05/-1.1e-05"}, {"-0.3", "-0.3/0.3"}};
    for (const auto& each : cases) {
        MakePlusMinus();
        Type(Maximum(), each.maximum);
        Choose(Symmetric());
        EXPECT_EQ(Tolerance(), each.tolerance) << each.maximum;
        EXPECT_EQ(Stored(MinLiteral()), -Stored(MaxLiteral())) << each.maximum;
    }
}

TEST_F(OrvKvToleranceSubModesTest, FromPlusMinusSymmetricLeavesTheEditorOfTheMaximumAsItIs) {
    MakePlusMinus();
    SetValues(0.2, -0.3, 0, 0, 1);
    EXPECT_EQ(WidgetStates(), "fit hidden, max disabled, min disabled");
    Choose(Symmetric());
    EXPECT_EQ(WidgetStates(), "fit hidden, max disabled, min disabled");
}

TEST_F(OrvKvToleranceSubModesTest, FromPlusMinusAFitKeepsTheDeviationsAndAsks) {
    MakePlusMinus();
    Type(Maximum(), "0.2");
    Choose(Fit());
    ExpectFit();
    EXPECT_EQ(ShownDeviations(), "0.2mm/-0.1mm");
    EXPECT_EQ(Tolerance(), "0.2/-0.1");
    EXPECT_EQ(Said(), Texts({"fit of D '' ''"})) << "plus/minus has forgotten the fit";
    ExpectNothingShown();
}

// From symmetric

TEST_F(OrvKvToleranceSubModesTest, FromSymmetricPlusMinusKeepsBothDeviationsUntilOneIsEdited) {
    MakeSymmetric();
    Type(Maximum(), "0.25");
    _panel->SetTolGroupAndField("H", "H7");
    Choose(PlusMinus());
    ExpectPlusMinus();
    EXPECT_EQ(ShownDeviations(), "0.25mm/-0.25mm");
    EXPECT_EQ(Tolerance(), "0.25/-0.25");
    Type(Maximum(), "0.4");
    EXPECT_EQ(Tolerance(), "0.4/-0.25");
    Type(Minimum(), "0.2");
    EXPECT_EQ(Tolerance(), "0.4/0.2");
    EXPECT_EQ(Said(), Texts());
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubModesTest, FromSymmetricAFitKeepsTheDeviationsAndAsks) {
    MakeSymmetric();
    _panel->SetTolGroupAndField("H", "H8");
    Choose(Fit());
    ExpectFit();
    EXPECT_EQ(Tolerance(), "0.1/-0.1");
    EXPECT_EQ(Said(), Texts({"fit of D 'H' 'H8'"}));
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubModesTest, FromSymmetricAFitLeavesTheEditorOfTheMinimumAsItIs) {
    MakeSymmetric();
    Minimum().SetSensitivity(CATDlgEnable);
    Choose(Fit());
    EXPECT_EQ(WidgetStates(), "fit shown, max disabled, min enabled");
}

// From a fit

TEST_F(OrvKvToleranceSubModesTest, AFitIsLeftForPlusMinusWithTheDefaultDeviations) {
    MakeFit();
    _panel->SetTolGroupAndField("H", "H7");
    SetFittingVals(0.021, 0.0);
    Command().Forget();
    Choose(PlusMinus());
    ExpectPlusMinus();
    EXPECT_EQ(ShownDeviations(), "0.1mm/-0.1mm");
    EXPECT_EQ(Tolerance(), "0.1/-0.1");
    EXPECT_EQ(Said(), Texts());
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubModesTest, AFitIsLeftForSymmetricWithTheDefaultDeviations) {
    MakeFit();
    _panel->SetTolGroupAndField("H", "H7");
    SetFittingVals(0.021, 0.0);
    Command().Forget();
    Choose(Symmetric());
    ExpectSymmetric();
    EXPECT_EQ(ShownDeviations(), "0.1mm/-0.1mm");
    EXPECT_EQ(Tolerance(), "0.1/-0.1");
    EXPECT_EQ(Said(), Texts());
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubModesTest, EachModeCanBeReachedAgainAndAgain) {
    MakeBuilt();
    for (int round = 0; round < 3; ++round) {
        Choose(PlusMinus());
        ExpectPlusMinus();
        Choose(Symmetric());
        ExpectSymmetric();
        Choose(Fit());
        ExpectFit();
        Choose(Symmetric());
        ExpectSymmetric();
        Choose(PlusMinus());
        ExpectPlusMinus();
        Choose(Fit());
        ExpectFit();
    }
    EXPECT_EQ(Said(), Texts(6, "fit of D '' ''"));
    ExpectNothingShown();
}

// The mode that is there already

TEST_F(OrvKvToleranceSubModesTest, AButtonThatIsUncheckedDoesNothing) {
    MakePlusMinus();
    Type(Maximum(), "0.2");
    PlusMinus().SetState(CATDlgUncheck, 1);
    EXPECT_EQ(WidgetStates(), plusMinusStates);
    EXPECT_EQ(Subscriptions(), plusMinusSubscriptions);
    EXPECT_EQ(Tolerance(), "0.2/-0.1");
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubModesTest, PlusMinusModesTakeANewChoiceOfThemselvesWithoutHarm) {
    for (const char* name : {"PlusMinusRdb", "PlusMinusSymmetricalRdb"}) {
        MakeBuilt();
        Choose(Widget<CATDlgRadioButton>(name));
        SetValues(0.2, -0.2, 1, 1, 1);
        _panel->SetTolGroupAndField("H", "H7");
        const std::string states = WidgetStates();
        const std::string subscriptions = Subscriptions();
        UncheckSilently(Widget<CATDlgRadioButton>(name));
        Traces().Take();
        Choose(Widget<CATDlgRadioButton>(name));
        EXPECT_EQ(WidgetStates(), states) << name;
        EXPECT_EQ(Subscriptions(), subscriptions) << name;
        EXPECT_EQ(Tolerance(), "0.2/-0.2") << name;
        EXPECT_EQ(Fitting(), "H|H7") << name;
        ExpectNothingShown();
    }
}

TEST_F(OrvKvToleranceSubModesTest, AFitRefusesANewChoiceOfItselfWithAFreshError) {
    MakeFit();
    CATError::GetReturn(CATReturnKindError, new CATInternalError("AnOlderError", "Older"), nullptr, "older",
                        1);
    UncheckSilently(Fit());
    Choose(Fit());
    EXPECT_EQ(Traces().Take(), CaughtTraces("OrvKvToleranceSub::OnFittingSelect", "Error_UnknownError"));
    const ShownMessages messages = TakeMessages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_NE(messages.front().text.find("An operation failed without saying why."), std::string::npos)
        << messages.front().text;
    ExpectFit();
    EXPECT_EQ(Said(), Texts()) << "nothing is asked again";
    Choose(PlusMinus());
    ExpectPlusMinus();
}

TEST_F(OrvKvToleranceSubModesTest, TheCommandSeesTheFitWidgetsAndTheWatchWhenItIsAsked) {
    for (const char* before : {"", "PlusMinusRdb", "PlusMinusSymmetricalRdb"}) {
        MakeBuilt();
        if (*before != '\0')
            Choose(Widget<CATDlgRadioButton>(before));
        AnsweringCommand command(Command());
        std::string seen;
        command.onHeard = [&](const std::string&) { seen = WidgetStates() + "; " + Subscriptions(); };
        Choose(Fit());
        EXPECT_EQ(seen, std::string(fitStates) + "; " + fitSubscriptions) << before;
        Said();
    }
}

// Subscriptions that are there already

TEST_F(OrvKvToleranceSubModesTest, AFitThatFindsAWatchOfTheParameterEndsIt) {
    MakePlusMinus();
    (_panel->*followParameter)(1);
    EXPECT_EQ(Subscriptions(), "parm 2, max 1, min 1");
    Choose(Fit());
    EXPECT_EQ(Subscriptions(), "parm 1, max 0, min 0");
    EXPECT_EQ(Said(), Texts({"fit of D '' ''"}));
    TypeValue("30");
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvToleranceSubModesTest, PlusMinusThatFindsItsSubscriptionsEndsThem) {
    MakeSymmetric();
    (_panel->*followDeviations)(1);
    EXPECT_EQ(Subscriptions(), "parm 1, max 2, min 1");
    Choose(PlusMinus());
    EXPECT_EQ(Subscriptions(), "parm 1, max 0, min 0");
    Type(Maximum(), "0.2");
    EXPECT_EQ(Tolerance(), "0.1/-0.1") << "nobody listens";
}

TEST_F(OrvKvToleranceSubModesTest, ARequestTogglesAndTheOppositeAlwaysEnds) {
    MakeBuilt();
    const struct {
        Subscribing follow;
        const char* subscribed;
    } cases[] = {{followDeviations, "parm 1, max 1, min 1"}, {followParameter, "parm 2, max 0, min 0"}};
    const std::string none = "parm 1, max 0, min 0";
    for (const auto& each : cases) {
        (_panel->*each.follow)(0);
        EXPECT_EQ(Subscriptions(), none);
        (_panel->*each.follow)(1);
        EXPECT_EQ(Subscriptions(), each.subscribed);
        (_panel->*each.follow)(1);
        EXPECT_EQ(Subscriptions(), none);
        (_panel->*each.follow)(1);
        (_panel->*each.follow)(0);
        EXPECT_EQ(Subscriptions(), none);
    }
}

// Errors within an entry

TEST_F(OrvKvToleranceSubModesTest, AnErrorOfTheCommandIsShownAndTheModeCountsAllTheSame) {
    for (const char* before : {"", "PlusMinusRdb", "PlusMinusSymmetricalRdb"}) {
        MakeBuilt();
        if (*before != '\0')
            Choose(Widget<CATDlgRadioButton>(before));
        RaisingCommand command;
        host::Application::SetActiveCommand(&command);
        Choose(Fit());
        host::Application::SetActiveCommand(&Command());
        EXPECT_EQ(Traces().Take(), CaughtTraces("OrvKvToleranceSub::OnFittingSelect", "Error_InCommand"));
        EXPECT_EQ(TakeMessages().size(), 1U);
        ExpectFit();
        TypeValue("30");
        EXPECT_EQ(Said(), Texts({"update '' '' at 30"})) << "the mode is that of a fit";
        Choose(PlusMinus());
        ExpectPlusMinus();
    }
}

TEST_F(OrvKvToleranceSubModesTest, AnErrorOfTheParameterIsShownUnderTheNameOfTheChosenMode) {
    const struct {
        const char* name;
        const char* operation;
    } cases[] = {{"PlusMinusRdb", "OrvKvToleranceSub::OnPMSelect"},
                 {"PlusMinusSymmetricalRdb", "OrvKvToleranceSub::OnPMSymSelect"},
                 {"ISOFittingRdb", "OrvKvToleranceSub::OnFittingSelect"}};
    for (const auto& each : cases) {
        const auto stand = host::Adopt(new StandInParameter(host::Parameters::NewLength("D", 20)));
        MakeFor(stand).Build();
        stand->missing = {IID_CATIParmTolerance, IID_CATIParmEvents};
        auto& radio = Widget<CATDlgRadioButton>(each.name);
        Choose(radio);
        EXPECT_EQ(Traces().Take(), CaughtTraces(each.operation, "Error_NoInterface")) << each.name;
        EXPECT_EQ(TakeMessages().size(), 1U) << each.name;
        stand->missing = {};
        // The mode is the new one: it is there already.
        UncheckSilently(radio);
        Choose(radio);
        EXPECT_EQ(TakeMessages().size(), each.name == std::string("ISOFittingRdb") ? 1U : 0U) << each.name;
        Traces().Take();
        Said();
    }
}

// The first interface that a transition asks for is the one by which it ends what the old mode listens to.
TEST_F(OrvKvToleranceSubModesTest, ASubscriptionThatCannotBeEndedIsShownAndTheModesWorkAllTheSame) {
    const struct {
        const char* left;
        const char* entered;
        const char* operation;
        const char* subscriptions;
    } cases[] = {
        {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "OrvKvToleranceSub::OnPMSymSelect",
         "parm 1, max 1, min 0"},
        {"PlusMinusRdb", "ISOFittingRdb", "OrvKvToleranceSub::OnFittingSelect", "parm 1, max 1, min 0"},
        {"PlusMinusSymmetricalRdb", "PlusMinusRdb", "OrvKvToleranceSub::OnPMSelect", "parm 1, max 1, min 0"},
        {"PlusMinusSymmetricalRdb", "ISOFittingRdb", "OrvKvToleranceSub::OnFittingSelect",
         "parm 1, max 1, min 0"},
        {"ISOFittingRdb", "PlusMinusRdb", "OrvKvToleranceSub::OnPMSelect", "parm 2, max 0, min 0"},
        {"ISOFittingRdb", "PlusMinusSymmetricalRdb", "OrvKvToleranceSub::OnPMSymSelect",
         "parm 2, max 0, min 0"}};
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.left) + " to " + each.entered);
        MakeBuilt();
        Choose(Widget<CATDlgRadioButton>(each.left));
        Said();
        host::FaultPoints::FailCall(1, "interface query");
        Choose(Widget<CATDlgRadioButton>(each.entered));
        host::FaultPoints::Stop();
        EXPECT_EQ(Traces().Take(), CaughtTraces(each.operation, "Error_NoInterface"));
        EXPECT_EQ(TakeMessages().size(), 1U);
        EXPECT_EQ(Said(), Texts()) << "the transition stops there";
        EXPECT_EQ(Subscriptions(), each.subscriptions) << "the other deviation is let go of";
        for (const char* name :
             {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "PlusMinusRdb", "ISOFittingRdb", "PlusMinusRdb"})
            Widget<CATDlgRadioButton>(name).SetState(CATDlgCheck, 1);
        EXPECT_EQ(WidgetStates(), plusMinusStates);
        Type(Maximum(), "0.4");
        Type(Minimum(), "0.2");
        EXPECT_EQ(Tolerance(), "0.4/0.2");
        Said();
        ExpectNothingShown();
    }
}

TEST_F(OrvKvToleranceSubModesTest, ARaisedObjectThatIsNoErrorPassesThrough) {
    MakeBuilt();
    AnsweringCommand command(Command());
    command.onHeard = [](const std::string&) { CATThrow(new CATNotification()); };
    EXPECT_EQ(ErrorRaisedBy([] {
                  const host::EventScope event;
                  CheckByProgram(Fit());
              }),
              "CATNotification");
    ExpectNothingShown();
    command.onHeard = nullptr;
    Said();
    TypeValue("30");
    EXPECT_EQ(Said(), Texts({"update '' '' at 30"})) << "the mode is that of a fit";
}

} // namespace
