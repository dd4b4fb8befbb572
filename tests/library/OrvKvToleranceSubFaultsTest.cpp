// Errors inside the callbacks of the panel, short memory, and its end.

#include "OrvKvToleranceSubModelTest.h"

#include "PrivateCallback.h"

#include "support/ParameterWatcher.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"
#include "CATNotification.h"
#include "host/CommandInspection.h"
#include "host/FaultPoints.h"

#include <functional>
#include <utility>

using EventCallback = void (OrvKvToleranceSub::*)(CATCallbackEvent, void*, CATNotification*,
                                                  CATSubscriberData, CATCallback);
static EventCallback onChangeMaxValPMSym = nullptr;
template struct OpenCallback<onChangeMaxValPMSym, &OrvKvToleranceSub::OnChangeMaxValPMSym>;

// A change of a parameter whose events another object publishes.
class ToleranceStandInChanged : public CATNotification {
    CATDeclareClass;
};
CATImplementClass(ToleranceStandInChanged, Implementation, CATNotification, CATNull);

namespace {

using namespace support;
using namespace toleranceSub;

// What a caught error tells: its key in the trace, text and title in a message.
struct CaughtError {
    const char* key;
    std::string text;
    std::string title;
};

const CaughtError noInterface = {"Error_NoInterface",
                                 "The action could not be carried out.\n"
                                 "An object does not offer what this action needs from it.\n"
                                 "Choose another element or update the feature, then try again.",
                                 "Kelvane Feature"};
const CaughtError inModel = {"Error_InModel", "Error_InModel", "CATInternalError"};

CaughtError Described(const std::string& iText) {
    return {"Error_Description", iText, "Kelvane Feature"};
}

void RaiseInModel() {
    CATThrow(new CATInternalError("Error_InModel", "ModelCatalog"));
}

void RaiseNoError() {
    CATThrow(new CATNotification());
}

// Events that another object publishes than the parameter that has them.
class EventsOf : public host::Component<CATIParmEvents> {
  public:
    explicit EventsOf(const CATBaseUnknown_var& iPublisher) : _publisher(iPublisher) {}

    const char* GetValueChangedEvent() override { return ToleranceStandInChanged::ClassName(); }
    const char* GetToleranceChangedEvent() override { return "nothing of the kind"; }
    CATBaseUnknown* GetPublisher() override { return _publisher.Object(); }
    void RaiseChange(int) override {
        ToleranceStandInChanged change;
        DispatchCallbacks(&change, GetPublisher());
    }
    void RaiseToleranceChange() override {}

  private:
    CATBaseUnknown_var _publisher;
};

// A publisher that has a value, or none.
class PublishedValue : public host::Component<CATIParmAsStored> {
  public:
    bool isThere = true;
    double value = 20.0;
    std::function<void()> onGet;

    double GetValue() override {
        if (onGet)
            onGet();
        return value;
    }
    HRESULT SetValue(double iValue) override {
        value = iValue;
        return S_OK;
    }

  protected:
    void* Find(const IID& iInterface) override {
        return isThere ? host::Component<CATIParmAsStored>::Find(iInterface) : nullptr;
    }
};

// A child that looks around when its father's end takes it along.
class LastLook : public CATDlgFrame {
  public:
    LastLook(CATDialog& ioFather, std::function<void()> iLook)
        : CATDlgFrame(&ioFather, "LastLook"), _look(std::move(iLook)) {}
    ~LastLook() override { _look(); }

  private:
    std::function<void()> _look;
};

class OrvKvToleranceSubFaultsTest : public OrvKvToleranceSubModelTest {
  protected:
    // The test has a hand in what publishes the events of the parameter, too.
    void StandInForPublisher() {
        StandInParameter& parameter = StandIn();
        _publisher = host::Adopt(new PublishedValue);
        parameter.events = host::Adopt<CATIParmEvents>(new EventsOf(CATBaseUnknown_var(_publisher.Object())));
    }
    void RaiseChange() { CATIParmEvents_var(_parm)->RaiseChange(1); }

    // The panel has traced and shown these errors, and nothing else, since the last call.
    void ExpectShown(const std::vector<std::pair<const char*, CaughtError>>& iErrors) {
        TraceLines traces;
        ShownMessages messages;
        for (const auto& [operation, error] : iErrors) {
            traces.push_back(
                {"OrvKv9SubFrames", 3, std::string("OrvKvToleranceSub::") + operation + " -> caught ERROR"});
            traces.push_back({"OrvKv9SubFrames", 3, std::string("error message: ") + error.key});
            messages.push_back({0x10000000, "Error", error.text, error.title, 0x400});
        }
        EXPECT_EQ(Traces().Take(), traces);
        EXPECT_EQ(TakeMessages(), messages);
        RunIdle(); // the message windows go
    }
    void ExpectShown(const char* iOperation, const CaughtError& iError) {
        ExpectShown({{iOperation, iError}});
    }
    void ExpectNothingShown() { ExpectShown({}); }

    // By how much one step of its arrows raises the maximum.
    static std::string StepOfMaximum() {
        Maximum().SetSensitivity(CATDlgEnable);
        const double before = Stored(MaxLiteral());
        Spin(Maximum(), 1);
        std::ostringstream text;
        text << Stored(MaxLiteral()) - before;
        return text.str();
    }

    // What the act raises when the command answers all that it hears with iRaise.
    template<class Act>
    std::string RaisedByAnswer(void (*iRaise)(), const Act& iAct) {
        AnsweringCommand command(Command());
        command.onHeard = [iRaise](const std::string&) { iRaise(); };
        const std::string raised = ErrorRaisedBy(iAct);
        Command().Forget();
        return raised;
    }

    CATHandle<PublishedValue> _publisher;
};

// ---- modes

TEST_F(OrvKvToleranceSubFaultsTest, ARaisedObjectThatIsNoErrorLeavesTheModes) {
    StandIn();
    for (CATDlgRadioButton& (*const radio)() : {+[]() -> CATDlgRadioButton& { return PlusMinus(); },
                                                +[]() -> CATDlgRadioButton& { return Symmetric(); }}) {
        MakeBuilt();
        _tolerance->onSet = RaiseNoError;
        EXPECT_EQ(ErrorRaisedBy([&] { Choose(radio()); }), "CATNotification");
        _tolerance->onSet = nullptr;
        Destroy();
    }
    MakeBuilt();
    EXPECT_EQ(RaisedByAnswer(RaiseNoError, [&] { Choose(Fit()); }), "CATNotification");
    ExpectNothingShown();
    Change(30.0);
    EXPECT_EQ(Said(), Texts({"update '' '' at 30"})) << "the mode holds here too";
}

// An entry that fails leaves what it has done until then, and nothing else.
TEST_F(OrvKvToleranceSubFaultsTest, AnEntryThatFailsOnItsWayHasComeThisFar) {
    constexpr int atDeviations = 0; // where the first one is set; else at that interface that it asks for
    const struct {
        const char* left;
        const char* entered;
        int failing;
        const char* reached;
    } cases[] = {{"", "PlusMinusRdb", atDeviations,
                  "H|; fit hidden, max enabled, min enabled; parm 1, max 0, min 0; step 0.05"},
                 {"", "PlusMinusSymmetricalRdb", atDeviations,
                  "H|; fit hidden, max disabled, min enabled; parm 1, max 1, min 0; step 1"},
                 {"", "ISOFittingRdb", 3,
                  "H|; fit shown, max disabled, min disabled; parm 1, max 0, min 0; step 0.05"},
                 {"PlusMinusRdb", "PlusMinusSymmetricalRdb", 5,
                  "H|; fit hidden, max disabled, min enabled; parm 1, max 1, min 0; step 0.05"},
                 {"PlusMinusRdb", "ISOFittingRdb", 3,
                  "H|; fit shown, max disabled, min disabled; parm 1, max 0, min 0; step 0.05"},
                 {"PlusMinusSymmetricalRdb", "PlusMinusRdb", 2,
                  "H|; fit hidden, max enabled, min disabled; parm 1, max 0, min 0; step 0.05"},
                 {"PlusMinusSymmetricalRdb", "ISOFittingRdb", 2,
                  "H|; fit shown, max disabled, min disabled; parm 1, max 0, min 0; step 0.05"},
                 {"ISOFittingRdb", "PlusMinusRdb", atDeviations,
                  "H|; fit shown, max disabled, min disabled; parm 1, max 0, min 0; step 0.05"},
                 {"ISOFittingRdb", "PlusMinusSymmetricalRdb", atDeviations,
                  "H|; fit shown, max enabled, min disabled; parm 1, max 1, min 0; step 0.05"}};
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.left) + " to " + each.entered);
        StandIn();
        MakeBuilt();
        if (*each.left != '\0')
            Enter(Widget<CATDlgRadioButton>(each.left));
        if (Minimum().GetSensitivity() == CATDlgEnable)
            Maximum().SetSensitivity(CATDlgDisable); // for once it does not have what the mode gives it
        _panel->SetTolGroupAndField("H", "");
        if (each.failing == atDeviations)
            _tolerance->onSet = RaiseInModel;
        else
            host::FaultPoints::FailCall(each.failing, "interface query");
        Choose(Widget<CATDlgRadioButton>(each.entered));
        host::FaultPoints::Stop();
        EXPECT_EQ(TakeMessages().size(), 1U);
        Traces().Take();
        RunIdle();
        _tolerance->onSet = nullptr;
        EXPECT_EQ(Said(), Texts());
        const std::string reached = Fitting() + "; " + WidgetStates() + "; " + Subscriptions();
        EXPECT_EQ(reached + "; step " + StepOfMaximum(), each.reached);
    }
}

TEST_F(OrvKvToleranceSubFaultsTest, TheFirstThingInSymmetricModeIsToMirrorTheMaximumThatIsShown) {
    StandInParameter& parameter = StandIn();
    MakeBuilt();
    Type(Maximum(), "0.7");
    parameter.missing = {IID_CATIParmTolerance};
    Choose(Symmetric());
    ExpectShown("OnPMSymSelect", noInterface);
    EXPECT_EQ(ShownDeviations(), "0.7mm/-0.7mm");
    parameter.missing = {};
}

// ---- combos

TEST_F(OrvKvToleranceSubFaultsTest, AnErrorOfTheCommandThatHearsOfAGroupOrAFieldIsShown) {
    MakeChosen();
    EXPECT_EQ(RaisedByAnswer(RaiseInModel, [&] { EXPECT_TRUE(host::DialogUser::Choose(Groups(), 0)); }), "");
    ExpectShown("OnFittingGroupSelNotif", inModel);
    EXPECT_EQ(RaisedByAnswer(RaiseInModel, [&] { EXPECT_TRUE(host::DialogUser::Choose(Fields(), 0)); }), "");
    ExpectShown("OnFittingFieldSelNotif", inModel);
    EXPECT_EQ(RaisedByAnswer(RaiseInModel, [&] { EXPECT_EQ(SetGroups({"G"}, "G", "").result, "S_OK"); }), "");
    ExpectShown("OnFittingGroupSelNotif", inModel);
    EXPECT_EQ(RaisedByAnswer(RaiseInModel, [&] { EXPECT_EQ(SetFields({"G6"}).result, "S_OK"); }), "");
    ExpectShown("OnFittingFieldSelNotif", inModel);
}

TEST_F(OrvKvToleranceSubFaultsTest, AParameterWithoutAStoredValueIsShownAndNothingIsSent) {
    StandInParameter& parameter = StandIn();
    MakeChosen();
    parameter.missing = {IID_CATIParmAsStored};
    ASSERT_TRUE(host::DialogUser::Choose(Groups(), 0));
    ExpectShown("OnFittingGroupSelNotif", noInterface);
    ASSERT_TRUE(host::DialogUser::Choose(Fields(), 0));
    ExpectShown("OnFittingFieldSelNotif", noInterface);
    RaiseChange(); // its publisher has one
    ExpectShown("OnChangeParmVal", noInterface);
    EXPECT_EQ(Said(), Texts());
    EXPECT_EQ(Fitting(), "G|H6") << "the choice is remembered";
}

TEST_F(OrvKvToleranceSubFaultsTest, ARaisedObjectThatIsNoErrorLeavesTheCombos) {
    MakeChosen();
    EXPECT_EQ(RaisedByAnswer(RaiseNoError, [&] { EXPECT_TRUE(host::DialogUser::Choose(Groups(), 0)); }),
              "CATNotification");
    EXPECT_EQ(RaisedByAnswer(RaiseNoError, [&] { EXPECT_TRUE(host::DialogUser::Choose(Fields(), 0)); }),
              "CATNotification");
    ExpectNothingShown();
}

// ---- changes of the parameter

TEST_F(OrvKvToleranceSubFaultsTest, APublisherWithoutAStoredValueIsShownByBothThatListen) {
    StandInForPublisher();
    MakeChosen();
    ExpectNothingShown();
    _publisher->isThere = false;
    RaiseChange();
    ExpectShown({{"OnChangeParmValFitting", noInterface}, {"OnChangeParmVal", noInterface}});
    EXPECT_EQ(Said(), Texts());
    _publisher->isThere = true;
    RaiseChange();
    ExpectNothingShown();
    EXPECT_EQ(Said(), Texts({"update 'H' 'H7' at 20"}));
}

TEST_F(OrvKvToleranceSubFaultsTest, OutsideOfFitModeThePublisherIsAskedOnce) {
    StandInForPublisher();
    MakeBuilt();
    Choose(PlusMinus());
    _publisher->isThere = false;
    RaiseChange();
    ExpectShown("OnChangeParmValFitting", noInterface);
    EXPECT_EQ(Checked(), "PlusMinusRdb");
    _publisher->isThere = true;
    _publisher->value = 700.0;
    RaiseChange();
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb") << "the size of the publisher counts";
    _publisher->value = -3.0;
    RaiseChange();
    EXPECT_EQ(_publisher->value, 0.0);
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubFaultsTest, AnErrorOfTheCommandThatHearsOfAnUpdateIsShown) {
    MakeChosen();
    EXPECT_EQ(RaisedByAnswer(RaiseInModel, [&] { Change(30.0); }), "");
    ExpectShown("OnChangeParmVal", inModel);
    EXPECT_EQ(Stored(_parm), 30.0);
}

TEST_F(OrvKvToleranceSubFaultsTest, ARaisedObjectThatIsNoErrorLeavesTheChangeOfTheParameter) {
    StandInForPublisher();
    MakeChosen();
    _publisher->onGet = RaiseInModel;
    RaiseChange();
    ExpectShown({{"OnChangeParmValFitting", inModel}, {"OnChangeParmVal", inModel}});
    _publisher->onGet = RaiseNoError;
    EXPECT_EQ(ErrorRaisedBy([&] { RaiseChange(); }), "CATNotification");
    _publisher->onGet = nullptr;
    EXPECT_EQ(RaisedByAnswer(RaiseNoError, [&] { RaiseChange(); }), "CATNotification");
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubFaultsTest, AnErrorInTheModeThatTheSizeAsksForIsShownByThatMode) {
    StandIn();
    MakeChosen();
    _tolerance->onSet = RaiseInModel;
    Change(0.5);
    ExpectShown("OnPMSymSelect", inModel);
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
    EXPECT_EQ(Fit().GetVisibility(), CATDlgHide) << "the rule goes on";
    _tolerance->onSet = nullptr;
}

// ---- changes of the deviations

TEST_F(OrvKvToleranceSubFaultsTest, AnErrorInSymmetricModeIsTracedUnderTheNameOfTheFieldCallback) {
    StandInParameter& parameter = StandIn();
    MakeBuilt();
    Choose(Symmetric());
    _tolerance->onSet = RaiseInModel;
    Type(Maximum(), "0.3");
    ExpectShown("OnFittingFieldSelNotif", inModel);
    EXPECT_EQ(State(), "0.3/-0.3 in 0.1/-0.1");
    _tolerance->onSet = RaiseNoError;
    EXPECT_EQ(ErrorRaisedBy([&] { Type(Maximum(), "0.4"); }), "CATNotification");
    ExpectNothingShown();
    _tolerance->onSet = nullptr;
    parameter.missing = {IID_CATIParmTolerance};
    Type(Maximum(), "0.5");
    ExpectShown("OnFittingFieldSelNotif", noInterface);
    parameter.missing = {};
}

TEST_F(OrvKvToleranceSubFaultsTest, AMissingEndOfTheSymmetryIsNamed) {
    MakeBuilt();
    Choose(Symmetric());
    CATBaseUnknown* const maximum = MaxLiteral().Object();
    CATBaseUnknown* const minimum = MinLiteral().Object();
    for (const auto& [from, info] : {std::pair<CATBaseUnknown*, CATBaseUnknown*>(nullptr, minimum),
                                     std::pair<CATBaseUnknown*, CATBaseUnknown*>(maximum, nullptr),
                                     std::pair<CATBaseUnknown*, CATBaseUnknown*>(nullptr, nullptr)}) {
        (_panel->*onChangeMaxValPMSym)("", from, nullptr, info, 0);
        ExpectShown("OnFittingFieldSelNotif", Described("(NULL == iInfo) or (NULL == iFrom)"));
        EXPECT_EQ(State(), "0.1/-0.1 in 0.1/-0.1");
    }
    (_panel->*onChangeMaxValPMSym)("", maximum, nullptr, minimum, 0);
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubFaultsTest, InPlusMinusAnErrorLeavesTheCallbackUntraced) {
    StandInParameter& parameter = StandIn();
    MakeBuilt();
    Choose(PlusMinus());
    const auto typeBoth = [&](const char* iMaximum, const char* iMinimum, const char* iRaised) {
        EXPECT_EQ(ErrorRaisedBy([&] { Type(Maximum(), iMaximum); }), iRaised);
        EXPECT_EQ(ErrorRaisedBy([&] { Type(Minimum(), iMinimum); }), iRaised);
        ExpectNothingShown();
    };
    _tolerance->onSet = RaiseInModel;
    typeBoth("0.3", "-0.3", "Error_InModel");
    _tolerance->onSet = RaiseNoError;
    typeBoth("0.4", "-0.4", "CATNotification");
    _tolerance->onSet = nullptr;
    parameter.missing = {IID_CATIParmTolerance};
    typeBoth("0.5", "-0.5", "Error_NoInterface");
    parameter.missing = {};
    EXPECT_EQ(State(), "0.5/-0.5 in 0.1/-0.1");
    typeBoth("0.6", "-0.6", "");
    EXPECT_EQ(State(), "0.6/-0.6 in 0.6/-0.6");
}

TEST_F(OrvKvToleranceSubFaultsTest, SettersLetAnErrorOfTheModelThrough) {
    StandIn();
    MakeBuilt();
    _tolerance->onSet = RaiseInModel;
    EXPECT_EQ(ErrorRaisedBy([&] { _panel->SetToleranceValues(0.1, -0.1, 1, 1, 1); }), "Error_InModel");
    EXPECT_EQ(ErrorRaisedBy([&] { _panel->SetFittingVals(0.1, 0.0); }), "Error_InModel");
    _tolerance->onSet = nullptr;
    ExpectNothingShown();
}

// ---- short memory

TEST_F(OrvKvToleranceSubFaultsTest, WithoutMemoryForANotificationItIsNotSentAndThePanelGoesOn) {
    MakeChosen();
    const auto withoutMemory = [&](const std::function<void()>& iAct) {
        host::FaultPoints::FailCall(1, "notification allocation");
        iAct();
        host::FaultPoints::Stop();
        EXPECT_EQ(Said(), Texts());
        ExpectNothingShown();
    };
    withoutMemory([] { EXPECT_TRUE(host::DialogUser::Choose(Groups(), 0)); });
    withoutMemory([] { EXPECT_TRUE(host::DialogUser::Choose(Fields(), 0)); });
    withoutMemory([&] { Change(30.0); });
    Choose(PlusMinus());
    withoutMemory([] { Choose(Fit()); });
    Change(31.0);
    EXPECT_EQ(Said(), Texts({"update 'G' 'H6' at 31"}));
}

// Goes through all modes.
class ToleranceSubRecoveryTest : public OrvKvToleranceSubFaultsTest {
  protected:
    void Live() {
        _panel->Build();
        EXPECT_EQ(_panel->InitTolerance(), S_OK);
        for (const char* radio : {"PlusMinusSymmetricalRdb", "ISOFittingRdb", "PlusMinusRdb", "ISOFittingRdb",
                                  "PlusMinusSymmetricalRdb", "PlusMinusRdb"})
            Press(radio);
        for (const double metres : {0.0007, 0.02})
            _parm->Valuate(metres);
    }
    static void Press(const char* iRadio) { Choose(Widget<CATDlgRadioButton>(iRadio)); }
};

TEST_F(ToleranceSubRecoveryTest, AfterAnyFailedWriteOrNotificationEveryModeCanBeEnteredAndWorksAgain) {
    for (const char* name : {"parameter write", "notification allocation"}) {
        Make();
        host::FaultPoints::StartCounting();
        Live();
        const int calls = host::FaultPoints::PassedByName()[name];
        host::FaultPoints::Stop();
        ExpectNothingShown();
        EXPECT_GE(calls, 2) << name;
        for (int call = 1; call <= calls; ++call) {
            SCOPED_TRACE(name + std::to_string(call));
            Make();
            host::FaultPoints::FailCall(call, name);
            Live();
            host::FaultPoints::Stop();
            ExpectNothingShown();
            Change(20.0);
            for (const char* radio : {"ISOFittingRdb", "PlusMinusSymmetricalRdb", "PlusMinusRdb"})
                Press(radio);
            EXPECT_EQ(Editable(), "max min");
            Type(Maximum(), "0.5");
            Type(Minimum(), "-0.4");
            EXPECT_EQ(State(), "0.5/-0.4 in 0.5/-0.4");
        }
    }
    Said();
}

// ---- the end

TEST_F(OrvKvToleranceSubFaultsTest, ThePanelUnsubscribesBeforeItsWidgetsGoExceptFromTheSymmetry) {
    for (const auto& [mode, left] : {std::pair("PlusMinusRdb", 0), std::pair("PlusMinusSymmetricalRdb", 1),
                                     std::pair("ISOFittingRdb", 0)}) {
        Make();
        std::vector<int> counts;
        CATICkeParm_var maximum;
        CATICkeParm_var minimum;
        const auto look = [&] {
            counts = {host::CommandInspection::AnalyseCallbacks(*_panel), SubscriptionsOn(_parm),
                      SubscriptionsOn(maximum), SubscriptionsOn(minimum)};
        };
        new LastLook(*_panel, look);
        _panel->Build();
        Choose(Widget<CATDlgRadioButton>(mode));
        maximum = MaxLiteral();
        minimum = MinLiteral();
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 5);
        Destroy();
        EXPECT_EQ(counts, std::vector<int>({0, 0, left, 0})) << mode;
        EXPECT_EQ(SubscriptionsOn(maximum), 0) << "the platform ends what is left";
    }
    Said();
}

TEST_F(OrvKvToleranceSubFaultsTest, AfterItsEndNothingOfThePanelHearsOfAnything) {
    for (const char* mode : {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "ISOFittingRdb"}) {
        MakeBuilt();
        Choose(Widget<CATDlgRadioButton>(mode));
        Said();
        const CATICkeParm_var maximum = MaxLiteral();
        const CATICkeParm_var minimum = MinLiteral();
        Destroy();
        SetTolerance(0.3, -0.2);
        for (const CATICkeParm_var& literal : {maximum, minimum})
            EXPECT_EQ(literal->Valuate(0.0005), S_OK);
        Change(700.0);
        Change(-5.0);
        EXPECT_EQ(Stored(_parm), -5.0) << mode;
        EXPECT_EQ(Tolerance(), "0.3/-0.2") << mode;
        EXPECT_EQ(Said(), Texts());
        ExpectNothingShown();
        Change(20.0);
    }
}

TEST_F(OrvKvToleranceSubFaultsTest, ThePanelMayGoWhileItsParameterTellsOfAChange) {
    MakeChosen();
    ParameterWatcher watcher(_parm);
    {
        const host::EventScope event;
        watcher.onEvent = [&] { _panel->RequestDelayedDestruction(); };
        Change(30.0);
    }
    watcher.onEvent = nullptr;
    _panel = nullptr;
    EXPECT_FALSE(Exists("ISOFittingRdb"));
    EXPECT_EQ(Said(), Texts({"update 'H' 'H7' at 30"}));
    Change(31.0);
    EXPECT_EQ(Said(), Texts());
}

} // namespace
