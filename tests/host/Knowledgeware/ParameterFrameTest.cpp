// The edition frames of parameters: what they show, what a person does with them, and everything that comes
// and goes meanwhile.

#include "CATCkeGlobalFunctions.h"
#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATDlgFrame.h"
#include "CATICkeParamFrame.h"
#include "CATICkeParmManipulator.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "host/DialogDump.h"
#include "host/DialogObserver.h"
#include "host/DialogUser.h"
#include "host/EventScope.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/LiveObjects.h"
#include "host/Parameters.h"
#include "host/ValueFrame.h"
#include "support/ApplicationTest.h"
#include "support/ParameterWatcher.h"

#include <limits>
#include <memory>

using host::DialogUser;
using host::Parameters;
using host::ValueFrame;
using support::Events;
using support::ParameterWatcher;

namespace {

// Counts how often the content of a frame is told to have changed.
class ContentWatcher : public host::DialogObserver {
  public:
    explicit ContentWatcher(const CATDialog& iWidget) : _widget(iWidget) { Add(*this); }
    ~ContentWatcher() override { Remove(*this); }

    void OnChanges(const host::DialogChanges& iChanges) override {
        for (const auto& [widget, kinds] : iChanges.changed)
            if (widget == &_widget && (kinds & host::ChangeContent) != 0)
                ++_count;
    }
    int Take() {
        host::EventScope::RunIdle();
        return std::exchange(_count, 0);
    }

  private:
    const CATDialog& _widget;
    int _count = 0;
};

class ParameterFrameTest : public support::ApplicationTest {
  protected:
    ParameterFrameTest() { dialog->SetVisibility(CATDlgShow); }

    CATDlgFrame* BuildPlain(const CATICkeParm_var& iParameter, int iOptions, const char* iName = "") {
        return CATICkeParamFrame_var(iParameter)->BuildFrame(NULL_var, dialog, iOptions, iName);
    }
    ValueFrame& Build(const CATICkeParm_var& iParameter, int iOptions = CATCkeWithSpinner) {
        return dynamic_cast<ValueFrame&>(*BuildPlain(iParameter, iOptions));
    }
    static std::string Result(const host::Outcome& iOutcome) { return iOutcome ? "done" : iOutcome.reason; }
    double Stored() { return CATIParmAsStored_var(depth)->GetValue(); }
    static int LiveParameters() { return host::LiveObjects::Count("Parameter"); }

    CATDlgDialog* const dialog = new CATDlgDialog(MainWindow(), "Dlg");
    CATICkeParm_var depth = Parameters::NewLength("DEPTH", 12.5);
};

TEST_F(ParameterFrameTest, ShowsTheValueWithItsUnit) {
    EXPECT_EQ(Build(depth).Text(), "12.5mm");
    EXPECT_EQ(Build(Parameters::NewAngle("TIP", 118.0)).Text(), "118deg");
    EXPECT_EQ(Build(Parameters::NewReal("RATIO", 0.25)).Text(), "0.25");
    EXPECT_EQ(Build(Parameters::NewInteger("COUNT", -3)).Text(), "-3");
    EXPECT_EQ(Build(Parameters::NewBoolean("FLAG", true)).Text(), "true");
    EXPECT_EQ(Build(Parameters::NewString("THREAD", "M10")).Text(), "M10");
}

TEST_F(ParameterFrameTest, IsAFrameWithoutBorderCalledLikeItsParameterUnlessItIsGivenAName) {
    const CATDlgFrame* const frame = BuildPlain(depth, 0);
    EXPECT_STREQ(frame->GetName().ConvertToChar(), "DEPTH");
    EXPECT_EQ(host::Inspector::Parent(*frame), dialog);
    EXPECT_FALSE(host::Inspector::ShowsTitle(*frame));
    EXPECT_STREQ(BuildPlain(depth, 0, "MaxFrm")->GetName().ConvertToChar(), "MaxFrm");
}

TEST_F(ParameterFrameTest, ShowsTheNameOfTheParameterUnlessToldOtherwise) {
    EXPECT_EQ(Build(depth, 0).Label(), "DEPTH");
    EXPECT_EQ(Build(depth, CATCkeNoRename | CATCkeNoFormula).Label(), "DEPTH");
    EXPECT_EQ(Build(depth, CATCkeNoLabel).Label(), "");
}

TEST_F(ParameterFrameTest, HasArrowsWhereTheyAreAskedForAndTheValueHasSteps) {
    EXPECT_FALSE(Build(depth, CATCkeNoLabel | CATCkeNoRename | CATCkeNoFormula).HasSpinner());
    EXPECT_TRUE(Build(depth).HasSpinner());
    EXPECT_TRUE(Build(Parameters::NewAngle("TIP", 118.0)).HasSpinner());
    EXPECT_TRUE(Build(Parameters::NewReal("RATIO", 0.25)).HasSpinner());
    EXPECT_TRUE(Build(Parameters::NewInteger("COUNT", -3)).HasSpinner());
    ValueFrame& flag = Build(Parameters::NewBoolean("FLAG", true));
    EXPECT_FALSE(flag.HasSpinner());
    EXPECT_EQ(Result(DialogUser::Spin(flag, 1)), "Dlg/FLAG has no arrows");
    EXPECT_FALSE(Build(Parameters::NewString("THREAD", "M10")).HasSpinner());
}

TEST_F(ParameterFrameTest, IsDumped) {
    EXPECT_EQ(host::DialogDump::Of(Build(depth, CATCkeNoLabel | CATCkeWithSpinner)),
              "ParameterFrame DEPTH spinner text=\"12.5mm\"\n");
}

TEST_F(ParameterFrameTest, FollowsEveryWayInWhichTheValueChanges) {
    const ValueFrame& frame = Build(depth);
    ContentWatcher watcher(frame);
    EXPECT_EQ(depth->Valuate(0.02), S_OK);
    EXPECT_EQ(frame.Text(), "20mm");
    EXPECT_EQ(watcher.Take(), 1);
    EXPECT_EQ(CATIParmAsStored_var(depth)->SetValue(30.0), S_OK);
    EXPECT_EQ(frame.Text(), "30mm") << "though no event was raised";
    EXPECT_EQ(watcher.Take(), 1);
    depth->SetUserAccessMode(1);
    EXPECT_FALSE(frame.IsEditable());
    EXPECT_EQ(watcher.Take(), 1);
}

TEST_F(ParameterFrameTest, FollowsAText) {
    const CATICkeParm_var thread = Parameters::NewString("THREAD", "M10");
    const ValueFrame& frame = Build(thread);
    ContentWatcher watcher(frame);
    EXPECT_EQ(thread->Valuate(CATUnicodeString("M12")), S_OK);
    EXPECT_EQ(frame.Text(), "M12");
    EXPECT_EQ(watcher.Take(), 1);
}

TEST_F(ParameterFrameTest, StaysAsItIsWhereNothingChanges) {
    ValueFrame& frame = Build(depth);
    ContentWatcher unrefused(frame);
    EXPECT_EQ(CATIParmAsStored_var(depth)->SetValue(12.5), S_OK);
    EXPECT_EQ(unrefused.Take(), 0);
    ASSERT_TRUE(DialogUser::Type(frame, "wide"));
    ContentWatcher watcher(frame);
    EXPECT_EQ(CATIParmAsStored_var(depth)->SetValue(std::numeric_limits<double>::infinity()), E_FAIL);
    CATIParmEvents_var(depth)->RaiseChange(1);
    depth->SetUserAccessMode(3);
    depth->SetUserAccessMode(2);
    EXPECT_EQ(watcher.Take(), 0);
    EXPECT_EQ(frame.Text(), "wide");
}

TEST_F(ParameterFrameTest, WhatIsTypedIsGivenToTheParameterWithItsEvent) {
    ValueFrame& frame = Build(depth);
    ParameterWatcher watcher(depth);
    EXPECT_EQ(Result(DialogUser::Type(frame, "(1 + 1/2) in")), "done");
    EXPECT_EQ(Stored(), 38.1);
    EXPECT_EQ(frame.Text(), "38.1mm");
    EXPECT_EQ(watcher.Take(), Events({"value of DEPTH"}));
}

TEST_F(ParameterFrameTest, AWrongTextStaysWithItsReasonAndTheLastValueStaysInForce) {
    ValueFrame& frame = Build(depth);
    ParameterWatcher watcher(depth);
    EXPECT_EQ(Result(DialogUser::Type(frame, "3 deg")), "done");
    EXPECT_EQ(frame.Text(), "3 deg");
    EXPECT_EQ(frame.Problem(), "'deg' is not a unit of LENGTH, which has mm, cm, m, in");
    EXPECT_EQ(Stored(), 12.5);
    EXPECT_EQ(watcher.Take(), Events());
    EXPECT_EQ(CATIParmAsStored_var(depth)->SetValue(13.0), S_OK);
    EXPECT_EQ(frame.Text(), "13mm");
    EXPECT_EQ(frame.Problem(), "");
    ASSERT_TRUE(DialogUser::Type(frame, "3 deg"));
    depth->SetUserAccessMode(1);
    EXPECT_EQ(frame.Text(), "13mm") << "nobody could put the text right";
}

TEST_F(ParameterFrameTest, AWrongTextGivesWayToAStoredValueThatIsTheSameAgain) {
    ValueFrame& frame = Build(depth);
    ASSERT_TRUE(DialogUser::Type(frame, "wide"));
    ASSERT_EQ(frame.Text(), "wide");
    EXPECT_EQ(CATIParmAsStored_var(depth)->SetValue(12.5), S_OK);
    EXPECT_EQ(frame.Text(), "12.5mm");
    EXPECT_EQ(frame.Problem(), "");
}

TEST_F(ParameterFrameTest, TypingTheShownValueKeepsTheDigitsThatAreNotShown) {
    ASSERT_EQ(CATIParmAsStored_var(depth)->SetValue(12.34567891), S_OK);
    ValueFrame& frame = Build(depth);
    ParameterWatcher watcher(depth);
    ASSERT_EQ(frame.Text(), "12.3457mm");
    EXPECT_EQ(Result(DialogUser::Type(frame, "12.3457mm")), "done");
    EXPECT_EQ(Stored(), 12.34567891);
    EXPECT_EQ(watcher.Take(), Events());
    EXPECT_EQ(Result(DialogUser::Type(frame, "12.3457")), "done");
    EXPECT_EQ(Stored(), 12.3457);
    EXPECT_EQ(watcher.Take(), Events({"value of DEPTH"}));
}

TEST_F(ParameterFrameTest, IsReadOnlyWhereTheUserMayNotEditTheParameter) {
    ValueFrame& frame = Build(depth);
    depth->SetUserAccessMode(1);
    EXPECT_EQ(Result(DialogUser::Type(frame, "8")), "Dlg/DEPTH is read-only");
    EXPECT_EQ(Result(DialogUser::Spin(frame, 1)), "Dlg/DEPTH is read-only");
    EXPECT_EQ(Stored(), 12.5);
    depth->SetUserAccessMode(3);
    EXPECT_EQ(Result(DialogUser::Type(frame, "8")), "done");
    EXPECT_EQ(Stored(), 8.0);
}

TEST_F(ParameterFrameTest, HonoursItsSensitivity) {
    ValueFrame& frame = Build(depth);
    frame.SetSensitivity(CATDlgDisable);
    EXPECT_EQ(Result(DialogUser::Type(frame, "8")), "Dlg/DEPTH is disabled");
    EXPECT_EQ(Result(DialogUser::Spin(frame, 1)), "Dlg/DEPTH is disabled");
    EXPECT_EQ(Stored(), 12.5);
    EXPECT_EQ(CATIParmAsStored_var(depth)->SetValue(13.0), S_OK);
    EXPECT_EQ(frame.Text(), "13mm") << "it still follows";
    frame.SetSensitivity(CATDlgEnable);
    EXPECT_EQ(Result(DialogUser::Spin(frame, 1)), "done");
    EXPECT_EQ(Stored(), 14.0);
}

TEST_F(ParameterFrameTest, StepsByOneOfWhatIsShown) {
    ValueFrame& frame = Build(depth);
    ParameterWatcher watcher(depth);
    EXPECT_EQ(Result(DialogUser::Spin(frame, 1)), "done");
    EXPECT_EQ(frame.Text(), "13.5mm");
    EXPECT_EQ(Result(DialogUser::Spin(frame, -20)), "done");
    EXPECT_EQ(frame.Text(), "-6.5mm");
    EXPECT_EQ(watcher.Take(), Events({"value of DEPTH", "value of DEPTH"}));
    ValueFrame& tip = Build(Parameters::NewAngle("TIP", 118.0));
    EXPECT_EQ(Result(DialogUser::Spin(tip, 2)), "done");
    EXPECT_EQ(tip.Text(), "120deg");
}

TEST_F(ParameterFrameTest, StepsByTheIncrementThatWasSetBeforeOrAfterItWasBuilt) {
    CATICkeParmManipulator_var(depth)->SetIncrement(0.05);
    ASSERT_EQ(CATIParmAsStored_var(depth)->SetValue(0.0), S_OK);
    ValueFrame& frame = Build(depth);
    EXPECT_EQ(Result(DialogUser::Spin(frame, 3)), "done");
    EXPECT_EQ(frame.Text(), "0.15mm");
    EXPECT_EQ(Stored(), 0.15);
    CATICkeParmManipulator_var(depth)->SetIncrement(0.5);
    EXPECT_EQ(Result(DialogUser::Spin(frame, 1)), "done");
    EXPECT_EQ(Stored(), 0.65);
}

TEST_F(ParameterFrameTest, TakesNoIncrementThatMakesNoSense) {
    ValueFrame& frame = Build(depth);
    for (const double increment :
         {0.0, -1.0, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        CATICkeParmManipulator_var(depth)->SetIncrement(increment);
    EXPECT_EQ(Result(DialogUser::Spin(frame, 1)), "done");
    EXPECT_EQ(Stored(), 13.5);
}

TEST_F(ParameterFrameTest, OnlyWhatHasStepsHasAManipulator) {
    EXPECT_FALSE(!CATICkeParmManipulator_var(Parameters::NewInteger("COUNT", 1)));
    EXPECT_TRUE(!CATICkeParmManipulator_var(Parameters::NewBoolean("FLAG", true)));
    EXPECT_TRUE(!CATICkeParmManipulator_var(Parameters::NewString("THREAD", "M10")));
}

TEST_F(ParameterFrameTest, ARefusedStepSaysWhyAndLeavesTheValue) {
    ValueFrame& count = Build(Parameters::NewInteger("COUNT", 2147483647));
    EXPECT_EQ(Result(DialogUser::Spin(count, 1)), "COUNT does not take 2147483648");
    EXPECT_EQ(count.Text(), "2147483647");
    EXPECT_EQ(Result(DialogUser::Spin(count, -1)), "done");
    EXPECT_EQ(count.Text(), "2147483646");
}

TEST_F(ParameterFrameTest, AStepStartsFromTheValueInForce) {
    ValueFrame& frame = Build(depth);
    ASSERT_TRUE(DialogUser::Type(frame, "99 deg"));
    EXPECT_EQ(Result(DialogUser::Spin(frame, 1)), "done");
    EXPECT_EQ(frame.Text(), "13.5mm");
    EXPECT_EQ(frame.Problem(), "");
}

TEST_F(ParameterFrameTest, SeveralFramesShowOneParameter) {
    ValueFrame& first = Build(depth);
    const ValueFrame& second = Build(depth);
    EXPECT_TRUE(DialogUser::Type(first, "8"));
    EXPECT_EQ(first.Text(), "8mm");
    EXPECT_EQ(second.Text(), "8mm");
    delete &first;
    EXPECT_EQ(CATIParmAsStored_var(depth)->SetValue(9.0), S_OK);
    EXPECT_EQ(second.Text(), "9mm");
}

TEST_F(ParameterFrameTest, KeepsItsParameterAliveAndLetsItGo) {
    const int before = LiveParameters();
    ValueFrame& frame = Build(depth);
    depth = CATICkeParm_var();
    EXPECT_EQ(LiveParameters(), before);
    EXPECT_EQ(frame.Text(), "12.5mm");
    EXPECT_EQ(Result(DialogUser::Type(frame, "8")), "done");
    EXPECT_EQ(frame.Text(), "8mm");
    delete &frame;
    EXPECT_EQ(LiveParameters(), before - 1);
}

TEST_F(ParameterFrameTest, AParameterChangesWhenItsFrameIsGone) {
    delete &Build(depth);
    EXPECT_EQ(depth->Valuate(0.02), S_OK);
    depth->SetUserAccessMode(1);
    EXPECT_STREQ(depth->Show().ConvertToChar(), "20mm");
}

TEST_F(ParameterFrameTest, SurvivesThatACallbackDestroysItAndLetsGoOfTheParameter) {
    const int before = LiveParameters();
    for (const bool isTyped : {true, false}) {
        depth = Parameters::NewLength("DEPTH", 12.5);
        ValueFrame& frame = Build(depth);
        ParameterWatcher watcher(depth);
        watcher.onEvent = [&] {
            delete &frame;
            depth = CATICkeParm_var();
        };
        EXPECT_EQ(Result(isTyped ? DialogUser::Type(frame, "8") : DialogUser::Spin(frame, 1)), "done");
        EXPECT_EQ(watcher.Take(), Events({"value of DEPTH"}));
        EXPECT_TRUE(host::Inspector::Children(*dialog).empty());
    }
    EXPECT_EQ(LiveParameters(), before - 1);
}

TEST_F(ParameterFrameTest, SurvivesThatACallbackReplacesItByAnother) {
    ValueFrame& frame = Build(depth);
    ParameterWatcher watcher(depth);
    watcher.onEvent = [&] {
        frame.RequestDelayedDestruction();
        Build(depth);
    };
    EXPECT_EQ(Result(DialogUser::Type(frame, "8")), "done");
    const std::vector<CATDialog*> left = host::Inspector::Children(*dialog);
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(dynamic_cast<ValueFrame&>(*left[0]).Text(), "8mm");
}

TEST_F(ParameterFrameTest, ShowsWhatACallbackMakesOfTheTypedValue) {
    ValueFrame& frame = Build(depth);
    ParameterWatcher watcher(depth);
    watcher.onEvent = [&] { CATIParmAsStored_var(depth)->SetValue(10.0); };
    EXPECT_EQ(Result(DialogUser::Type(frame, "99")), "done");
    EXPECT_EQ(frame.Text(), "10mm");
    EXPECT_EQ(frame.Problem(), "");
}

TEST_F(ParameterFrameTest, NeedsAParentAndMemory) {
    const CATICkeParamFrame_var builder(depth);
    EXPECT_EQ(builder->BuildFrame(NULL_var, nullptr, 0, ""), nullptr);
    host::FaultPoints::FailCall(1, "widget allocation");
    EXPECT_EQ(builder->BuildFrame(NULL_var, dialog, 0, ""), nullptr);
    host::FaultPoints::Stop();
    EXPECT_TRUE(host::Inspector::Children(*dialog).empty());
    EXPECT_EQ(depth->Valuate(0.02), S_OK) << "no frame is left behind";
    EXPECT_NE(builder->BuildFrame(NULL_var, dialog, 0, ""), nullptr);
}

TEST_F(ParameterFrameTest, ItsInterfacesAreQueriesThatCanFail) {
    for (const int call : {1, 2}) {
        host::FaultPoints::FailCall(call, "interface query");
        EXPECT_EQ(!CATICkeParamFrame_var(depth), call == 1);
        EXPECT_EQ(!CATICkeParmManipulator_var(depth), call == 2);
        host::FaultPoints::Stop();
    }
}

TEST_F(ParameterFrameTest, AFailedWriteIsAProblemOfTheTextAndCanBeTriedAgain) {
    ValueFrame& frame = Build(depth);
    host::FaultPoints::FailCall(1, "parameter write");
    EXPECT_EQ(Result(DialogUser::Type(frame, "8")), "done");
    host::FaultPoints::Stop();
    EXPECT_EQ(frame.Text(), "8");
    EXPECT_EQ(frame.Problem(), "DEPTH does not take the value");
    EXPECT_EQ(Result(DialogUser::Type(frame, "8")), "done");
    EXPECT_EQ(frame.Text(), "8mm");
}

} // namespace
