// Errors, short memory, and commands that answer a notification with calls of the panel that sent it.

#include "OrvKvThreadSubTest.h"

#include "support/ParameterWatcher.h"

#include "CATErrorMacros.h"
#include "host/DialogDump.h"
#include "host/FaultPoints.h"
#include "host/LiveObjects.h"

#include <functional>

namespace {

using namespace support;
using namespace threadSub;

// A command that answers each notification in its own way and passes it on to the one that records.
class AnsweringCommand : public CATCommand {
  public:
    explicit AnsweringCommand(RecordingCommand& ioRecorder)
        : CATCommand(nullptr, "AnsweringCommand"), _recorder(ioRecorder) {
        host::Application::SetActiveCommand(this);
    }
    ~AnsweringCommand() override { host::Application::SetActiveCommand(&_recorder); }
    AnsweringCommand(const AnsweringCommand&) = delete;
    AnsweringCommand& operator=(const AnsweringCommand&) = delete;

    std::function<void()> onInit;
    std::function<void()> onType;
    std::function<void()> onDiameter;
    std::function<void()> onTake;

    CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification) override {
        _recorder.AnalyseNotification(iFrom, iNotification);
        const std::string told = Told(iNotification);
        const std::function<void()>& answer = told.starts_with("init")       ? onInit
                                              : told.starts_with("type")     ? onType
                                              : told.starts_with("diameter") ? onDiameter
                                                                             : onTake;
        if (answer)
            answer();
        return CATNotifDontTransmitToFather;
    }

  private:
    RecordingCommand& _recorder;
};

class OrvKvThreadSubFaultsTest : public OrvKvThreadSubTest {
  protected:
    static Report CaughtComboErrorIn(const char* iOperation) {
        return CaughtIn(source, iOperation, "ComboSelection", "CATDialog");
    }
    // What a command does that knows one thread of each type.
    void AnswerType() {
        const bool isStandard = Types().GetSelect() > 0;
        EXPECT_EQ(CallRebuild(_types, Types().GetSelect() - 1, _diameters, isStandard ? 0 : -1), S_OK);
        EXPECT_EQ(CallBind(), S_OK);
        EXPECT_EQ(_panel->SetThreadValues(threadSub::ListOf(Numbers{1.25}), threadSub::ListOf(Numbers{6.75}),
                                          threadSub::ListOf(Numbers{8.0})),
                  S_OK);
    }
};

TEST_F(OrvKvThreadSubFaultsTest, AnErrorInASelectionBecomesTheFailingResult) {
    MakeStandard();
    for (const int type : {-1, 0}) {
        host::FaultPoints::FailCall(1, "combo selection");
        const Report report = SetTypes(_types, type);
        host::FaultPoints::Stop();
        EXPECT_EQ(report, CaughtComboErrorIn("OrvKvThreadSub::SetThreadTypes")) << type;
    }
    host::FaultPoints::FailCall(1, "combo selection");
    EXPECT_EQ(SetDims(_diameters, 0), CaughtComboErrorIn("OrvKvThreadSub::SetThreadDims"));
    host::FaultPoints::Stop();
    EXPECT_EQ(SetTypes(_types, 0), SuccessIn(source));
    EXPECT_EQ(SetDims(_diameters, 0), SuccessIn(source));
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvThreadSubFaultsTest, AnErrorThatTheCommandRaisesBecomesTheFailingResult) {
    MakeStandard();
    RaisingCommand command;
    const auto whileItRaises = [&](const std::function<Report()>& iCall) {
        host::Application::SetActiveCommand(&command);
        const Report report = iCall();
        host::Application::SetActiveCommand(&Command());
        return report;
    };
    EXPECT_EQ(whileItRaises([&] { return SetTypes(_types, 1, 1); }),
              CaughtOfCommandIn(source, "OrvKvThreadSub::SetThreadTypes"));
    EXPECT_EQ(whileItRaises([&] { return SetDims(_diameters, 1, 1); }),
              CaughtOfCommandIn(source, "OrvKvThreadSub::SetThreadDims"));
    EXPECT_EQ(whileItRaises([&] { return SetDirection("LH"); }),
              CaughtOfCommandIn(source, "OrvKvThreadSub::SetThreadDirection"));
    EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
    EXPECT_EQ(Said(), Texts({"take 'M10' P 1.5 DK 8.5 DG 10 'LH' 'UNC'"})) << "what was reached stays";
}

TEST_F(OrvKvThreadSubFaultsTest, ARaisedObjectThatIsNoErrorPassesThrough) {
    MakeStandard();
    AnsweringCommand command(Command());
    command.onType = command.onDiameter = command.onTake = [] { CATThrow(new CATNotification()); };
    EXPECT_EQ(ErrorRaisedBy([&] { SetTypes(_types, 1, 1); }), "CATNotification");
    EXPECT_EQ(ErrorRaisedBy([&] { SetDims(_diameters, 1, 1); }), "CATNotification");
    EXPECT_EQ(ErrorRaisedBy([&] { SetDirection("LH"); }), "CATNotification");
    CATError::CATCleanLastError();
}

TEST_F(OrvKvThreadSubFaultsTest, OtherOperationsLetAnErrorOfTheCommandThrough) {
    MakeStandard();
    RaisingCommand command;
    host::Application::SetActiveCommand(&command);
    EXPECT_EQ(ErrorRaisedBy([&] { _panel->SetAsStandardThread(); }), "Error_InCommand");
    const CATRawColldouble one = threadSub::ListOf(Numbers{1.0});
    EXPECT_EQ(ErrorRaisedBy([&] { _panel->SetThreadValues(one, one, one); }), "Error_InCommand");
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(Values(), Numbers({1.0, 1.0, 20.0, 1.0}));
}

TEST_F(OrvKvThreadSubFaultsTest, ACommandMayFillThePanelWhileItIsBuilt) {
    Make();
    AnsweringCommand command(Command());
    command.onInit = [&] {
        EXPECT_EQ(CallRebuild(_types, 0, _diameters, 1), S_OK);
        EXPECT_EQ(CallBind(), S_OK);
        EXPECT_EQ(_panel->SetThreadDirection("Right_Threaded"), S_OK);
    };
    _panel->Build();
    EXPECT_EQ(Said(), Texts({"init 1 0 '' '' 0", "take '' P 1.5 DK 8.5 DG 10 'RH' 'Metric'"}));
    EXPECT_EQ(DiameterControl(), combo);
    RunIdle();
    EXPECT_EQ(DiameterControl(), combo);
}

TEST_F(OrvKvThreadSubFaultsTest, TheUsualAnswerToATypeRebuildsThePanelInsideTheChoice) {
    MakeBound();
    SetTypes(_types, -1);
    AnsweringCommand command(Command());
    command.onType = [&] { AnswerType(); };
    ASSERT_TRUE(host::DialogUser::ChooseText(Types(), "Metric"));
    const std::string metric = "take '' P 1.25 DK 6.75 DG 8 '' 'Metric'";
    EXPECT_EQ(Said(), Texts({"type 'Metric' init 1", metric, metric}));
    EXPECT_EQ(DiameterControl(), combo);
    EXPECT_EQ(AccessModes(), std::vector<int>({1, 1, 3, 1}));
    ASSERT_TRUE(host::DialogUser::ChooseText(Types(), "No Standard"));
    const std::string free = "take '' P 1.25 DK 6.75 DG 8 '' 'No Standard'";
    EXPECT_EQ(Said(), Texts({"type '' init 1", free, free}));
    EXPECT_EQ(DiameterControl(), editor);
    EXPECT_EQ(AccessModes(), std::vector<int>({3, 3, 3, 3}));
    EXPECT_EQ(Types().GetSelect(), 0);
    ASSERT_TRUE(host::DialogUser::Type(EditorIn("ThreadDiaFrm"), "9"));
    EXPECT_EQ(Values()[0], 9.0);
}

TEST_F(OrvKvThreadSubFaultsTest, TheTypeOfTheCallCountsWhateverTheCommandListsMeanwhile) {
    MakeBound();
    AnsweringCommand command(Command());
    command.onType = [&] { EXPECT_EQ(CallRebuild({"G", "R"}, -1, {}, -1), S_OK); };
    EXPECT_EQ(SetTypes(_types, 1, 1).result, "S_OK");
    EXPECT_EQ(LinesOf(Types()), Lines({"No Standard", "G", "R"}));
    EXPECT_EQ(Types().GetSelect(), 0);
    EXPECT_EQ(DiameterControl(), editor);
    Said();
    EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
    EXPECT_EQ(Said(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'UNC'"}));
    EXPECT_EQ(Bind(), SuccessIn(source));
    EXPECT_EQ(DiameterControl(), combo) << "one control is there, that of the type";
}

TEST_F(OrvKvThreadSubFaultsTest, AListOfTheCommandMayChangeWhileItsTypeIsReported) {
    MakeBound();
    CATListValCATUnicodeString types = threadSub::ListOf(_types);
    AnsweringCommand command(Command());
    command.onType = [&] { types = CATListValCATUnicodeString(); };
    {
        const host::EventScope event;
        EXPECT_EQ(_panel->SetThreadTypes(types, 1, 1), S_OK);
    }
    EXPECT_EQ(types.Size(), 0);
    Said();
    EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
    EXPECT_EQ(Said(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'UNC'"}));
}

TEST_F(OrvKvThreadSubFaultsTest, TheDiametersMayGoWhileOneOfThemIsReported) {
    for (const bool isByUser : {true, false}) {
        MakeStandard();
        {
            AnsweringCommand command(Command());
            command.onDiameter = [&] { EXPECT_EQ(CallRebuild(_types, -1, {}, -1), S_OK); };
            if (isByUser)
                EXPECT_TRUE(host::DialogUser::ChooseText(Diameters(), "M12"));
            else
                EXPECT_EQ(SetDims(_diameters, 2, 1).result, "S_OK");
        }
        EXPECT_EQ(Said(), Texts({"diameter 'M12' of 'Metric' init 1"}));
        EXPECT_EQ(DiameterControl(), editor);
        EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
        EXPECT_EQ(Said(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'No Standard'"}));
        delete _panel;
    }
}

TEST_F(OrvKvThreadSubFaultsTest, AnEditorMayGoWhileItsParameterTellsOfTheChange) {
    MakeBound();
    ParameterWatcher watcher(_diameter);
    watcher.onEvent = [&] {
        CallRebuild(_types, 0, _diameters, 0);
        CallBind();
    };
    EXPECT_TRUE(host::DialogUser::Type(EditorIn("ThreadDiaFrm"), "14"));
    EXPECT_EQ(watcher.Take(), Events({"value of DG"}));
    EXPECT_EQ(DiameterControl(), combo);
    EXPECT_EQ(Values()[0], 14.0);
    RunIdle();
    EXPECT_EQ(DiameterControl(), combo);
}

TEST_F(OrvKvThreadSubFaultsTest, ACommandMayBindOtherParametersWhileItTakesTheThread) {
    MakeBound();
    AnsweringCommand command(Command());
    command.onTake = [&] {
        _pitch = host::Parameters::NewLength("P", 2.0);
        EXPECT_EQ(CallBind(), S_OK);
    };
    ASSERT_TRUE(host::DialogUser::Check(LeftHanded()));
    EXPECT_EQ(EditorIn("PitchFrm").Text(), "2mm");
    EXPECT_EQ(Said(), Texts({"take '' P 1.5 DK 8.5 DG 10 'LH' ''"}));
}

TEST_F(OrvKvThreadSubFaultsTest, APanelThatIsGivenUpWhileItReportsATypeSaysNothingMore) {
    MakeBound();
    SetTypes(_types, -1);
    AnsweringCommand command(Command());
    command.onType = [&] { _panel->RequestDelayedDestruction(); };
    EXPECT_TRUE(host::DialogUser::ChooseText(Types(), "Metric"));
    EXPECT_EQ(Said(), Texts({"type 'Metric' init 1"}));
    EXPECT_FALSE(Exists("ThreadTypeCmb"));
}

TEST_F(OrvKvThreadSubFaultsTest, APanelThatIsGivenUpTakesCallsUntilItGoesAndSaysNothing) {
    for (const int type : {-1, 0}) {
        MakeStandard();
        const host::EventScope event;
        _panel->RequestDelayedDestruction();
        EXPECT_EQ(CallRebuild(_types, type, _diameters, 0), S_OK);
        EXPECT_EQ(CallBind(), S_OK);
        EXPECT_EQ(_panel->SetThreadTypes(threadSub::ListOf(_types), 1, 1), S_OK);
        EXPECT_EQ(_panel->SetThreadDims(threadSub::ListOf(_diameters), 1, 1), S_OK);
        EXPECT_EQ(_panel->SetThreadDirection("LH"), S_OK);
        const CATRawColldouble one = threadSub::ListOf(Numbers{1.0});
        EXPECT_EQ(_panel->SetThreadValues(one, one, one), S_OK);
        EXPECT_EQ(_panel->SetAsStandardThread(), S_OK);
        EXPECT_EQ(Said(), Texts()) << type;
    }
    EXPECT_FALSE(Exists("ThreadTypeCmb"));
}

TEST_F(OrvKvThreadSubFaultsTest, WithoutMemoryForANotificationItIsNotSentAndThePanelGoesOn) {
    MakeStandard();
    host::FaultPoints::FailCall(1, "notification allocation");
    EXPECT_TRUE(host::DialogUser::ChooseText(Types(), "UNC"));
    EXPECT_EQ(Said(), Texts({"take '' P 1.5 DK 8.5 DG 10 '' 'UNC'"}));
    host::FaultPoints::FailCall(1, "notification allocation");
    EXPECT_TRUE(host::DialogUser::ChooseText(Diameters(), "M12"));
    EXPECT_EQ(Said(), Texts());
    host::FaultPoints::FailCall(1, "notification allocation");
    EXPECT_TRUE(host::DialogUser::Check(LeftHanded()));
    EXPECT_EQ(Said(), Texts());
    host::FaultPoints::Stop();
    EXPECT_TRUE(host::DialogUser::Check(RightHanded()));
    EXPECT_EQ(Said(), Texts({"take 'M12' P 1.5 DK 8.5 DG 10 'RH' 'UNC'"}));
}

TEST_F(OrvKvThreadSubFaultsTest, WithoutMemoryForAnotherControlTheOneThatIsThereStays) {
    MakeBound();
    host::FaultPoints::FailCall(1, "widget allocation");
    EXPECT_EQ(Rebuild(_types, 0, _diameters, 0).result, "S_OK");
    host::FaultPoints::Stop();
    EXPECT_EQ(DiameterControl(), editor);
    Rebuild(_types, 0, _diameters, 0);
    EXPECT_EQ(DiameterControl(), combo);
    host::FaultPoints::FailCall(1, "widget allocation");
    EXPECT_EQ(Rebuild(_types, -1, {}, -1).result, "S_OK");
    host::FaultPoints::Stop();
    EXPECT_EQ(DiameterControl(), combo);
    Rebuild(_types, -1, {}, -1);
    EXPECT_EQ(DiameterControl(), editor);
    for (int control = 1; control <= 4; ++control) {
        host::FaultPoints::FailCall(control, "widget allocation");
        EXPECT_EQ(Bind(), SuccessIn(source));
        host::FaultPoints::Stop();
        for (const char* frame : {"ThreadDiaFrm", "InternalDiaFrm", "ThreadLengthFrm", "PitchFrm"})
            EXPECT_EQ(host::Inspector::Children(Widget<CATDialog>(frame)).size(), 1U) << control << frame;
    }
}

// The life of a panel, in which each call that can fail fails once.
class ThreadSubSweepTest : public OrvKvThreadSubFaultsTest {
  protected:
    void Live() {
        const host::EventScope event;
        _results.clear();
        _panel->Build();
        Do([this] { return _panel->SetThreadTypes(threadSub::ListOf(_types), 0, 1); });
        Do([this] { return CallBind(); });
        Do([this] { return _panel->SetThreadDims(threadSub::ListOf(_diameters), 1, 1); });
        Do([this] { return _panel->SetThreadDirection("LH"); });
        Do([this] { return CallRebuild(_types, -1, {}, -1); });
        Do([this] { return CallBind(); });
        Do([this] { return CallRebuild(_types, 1, _diameters, 1); });
        const CATRawColldouble one = threadSub::ListOf(Numbers{1.0});
        Do([&] { return _panel->SetThreadValues(one, one, one); });
        Do([this] { return _panel->SetAsStandardThread(); });
        CATError::CATCleanLastError();
    }

    // The panel works as before with the widgets that it has.
    void ExpectToGoOn(int iCall) {
        _panel->Build();
        if (!Exists("ThreadDiaFrm") || !Exists("ThreadTypeCmb"))
            return;
        EXPECT_EQ(Bind().result, "S_OK") << iCall;
        EXPECT_EQ(Rebuild(_types, 0, _diameters, 0).result, "S_OK") << iCall;
        EXPECT_EQ(DiameterControl(), combo) << iCall;
        EXPECT_EQ(Rebuild(_types, -1, {}, -1).result, "S_OK") << iCall;
        EXPECT_EQ(DiameterControl(), editor) << iCall;
    }

    std::vector<std::string> _results;

  private:
    template<class Call>
    void Do(const Call& iCall) {
        std::string result;
        const std::string raised = ErrorRaisedBy([&] {
            const long code = iCall();
            result = code == S_OK ? "S_OK" : code == E_FAIL ? "E_FAIL" : std::to_string(code);
        });
        _results.push_back(raised.empty() ? result : raised);
    }
};

TEST_F(ThreadSubSweepTest, WhateverCallFailsThePanelGivesAResultAndGoesOn) {
    Make();
    host::FaultPoints::StartCounting();
    Live();
    const int calls = host::FaultPoints::Passed();
    host::FaultPoints::Stop();
    EXPECT_EQ(_results, Texts(9, "S_OK"));
    EXPECT_GT(calls, 50);
    delete _panel;
    for (int call = 1; call <= calls; ++call) {
        Make();
        host::FaultPoints::FailCall(call);
        Live();
        host::FaultPoints::Stop();
        for (const std::string& result : _results)
            EXPECT_TRUE(result == "S_OK" || result == "E_FAIL" || result == "NullHandle")
                << call << ": " << result;
        ExpectToGoOn(call);
        delete _panel;
    }
    Make();
    Live();
    EXPECT_EQ(_results, Texts(9, "S_OK"));
    Command().Forget();
    Traces().Take();
}

} // namespace
