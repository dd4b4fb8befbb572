// Errors: parameters that lack something, raised errors, short memory, and listeners that act inside.

#include "OrvKvParameterEditPanelTest.h"
#include "PrivateCallback.h"
#include "StandInParameter.h"

#include "CATDlgDocument.h"
#include "CATDlgNotify.h"
#include "CATDlgRadioButton.h"
#include "CATErrorMacros.h"
#include "CATInternalError.h"
#include "host/CommandInspection.h"
#include "host/FaultPoints.h"

#include <set>

static PrivateCallback<OrvKvParameterEditPanel> onCheck = nullptr;
template struct OpenCallback<onCheck, &OrvKvParameterEditPanel::COMToleranceOnOffCheck>;

namespace {

using namespace support;
using namespace editPanel;

const char build[] = "OrvKvParameterEditPanel::Build";
const char onOff[] = "OrvKvParameterEditPanel::COMToleranceOnOffCheck";

const char noInterface[] = "The action could not be carried out.\n"
                           "An object does not offer what this action needs from it.\n"
                           "Choose another element or update the feature, then try again.";
const char unknown[] = "The action could not be carried out.\n"
                       "An operation failed without saying why.\n"
                       "Check the input and try again.";

TraceLines CaughtLines(const std::string& iOperation, const std::string& iKey) {
    return {{"OrvKv9SubFrames", 3, iOperation + " -> caught ERROR"},
            {"OrvKv9SubFrames", 3, "error message: " + iKey}};
}

class OrvKvParameterEditPanelFaultsTest : public OrvKvParameterEditPanelTest {
  protected:
    // As a command does it.
    void Build(const Opened& iOpened) {
        const host::EventScope event;
        Make(iOpened).Build();
    }
    void SetFittingVals(double iMax, double iMin) {
        const host::EventScope event;
        Panel().SetFittingVals(iMax, iMin);
    }
    // What a caught error that is shown looks like: the traces and one message of that text.
    void ExpectErrorShown(const std::string& iOperation, const std::string& iKey, const std::string& iText) {
        EXPECT_EQ(Traces().Take(), CaughtLines(iOperation, iKey));
        const ShownMessages messages = TakeMessages();
        ASSERT_EQ(messages.size(), 1U);
        EXPECT_EQ(messages[0].style, CATDlgNfyError);
        EXPECT_EQ(messages[0].name, "Error");
        EXPECT_EQ(messages[0].text, iText);
        EXPECT_EQ(CATError::CATGetLastError(E_FAIL), nullptr);
    }
    void ExpectSilence() {
        EXPECT_EQ(Traces().Take(), TraceLines());
        EXPECT_EQ(TakeMessages(), ShownMessages());
    }
    CATHandle<StandInParameter> Lacking(const IID& iInterface) {
        auto parameter = host::Adopt(new StandInParameter(_length));
        parameter->missing = {iInterface};
        return parameter;
    }
    [[noreturn]] static CATICkeType_var RaiseError() {
        CATThrow(new CATInternalError("Error_InType", "TypeCatalogue"));
    }
    [[noreturn]] static CATICkeType_var RaiseOther() { CATThrow(new CATNotification()); }
};

// Build

TEST_F(OrvKvParameterEditPanelFaultsTest, ANullParameterIsTracedAndShown) {
    Build({.parameter = CATICkeParm_var()});
    OrvKvParameterEditPanel& panel = Panel();
    ExpectErrorShown(build, "NullHandle", "CATICkeParm");
    EXPECT_STREQ(panel.GetTitle().ConvertToChar(), "Edit Parameter D");
    EXPECT_STREQ(Label().GetTitle().ConvertToChar(), "Diameter");
    EXPECT_EQ(host::Inspector::Children(panel).size(), 1U);
    EXPECT_EQ(HasTolerance(), 0);
    panel.Build();
    EXPECT_EQ(host::Inspector::Children(panel).size(), 1U);
    ExpectSilence();
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AParameterWithoutEditorIsTracedAndShown) {
    const auto parameter = Lacking(IID_CATICkeParamFrame);
    Build({.parameter = CATICkeParm_var(parameter)});
    ExpectErrorShown(build, "Error_NoInterface", noInterface);
    EXPECT_EQ(host::Inspector::Children(Panel()).size(), 1U);
    EXPECT_EQ(host::Inspector::PowerInputOwner(), nullptr);
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AParameterWithoutTypeIsTracedAndShown) {
    const auto parameter = host::Adopt(new StandInParameter(_length));
    parameter->onType = [] { return CATICkeType_var(); };
    Build({.parameter = CATICkeParm_var(parameter)});
    ExpectErrorShown(build, "NullHandle", "CATICkeType");
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AnErrorThatIsRaisedInBuildIsTracedAndShown) {
    const auto parameter = host::Adopt(new StandInParameter(_length));
    parameter->onType = RaiseError;
    Build({.parameter = CATICkeParm_var(parameter)});
    ExpectErrorShown(build, "Error_InType", "Error_InType");
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 0);
    EXPECT_EQ(HasTolerance(), 0);
    EXPECT_EQ(Observed([](auto& panel) { return panel.SetToleranceValues(0.1, -0.1); }), PlainFailure());
}

TEST_F(OrvKvParameterEditPanelFaultsTest, ARaisedObjectThatIsNoErrorPassesThrough) {
    const auto parameter = host::Adopt(new StandInParameter(_length));
    MakeBuilt({.parameter = CATICkeParm_var(parameter)});
    parameter->onType = RaiseOther;
    EXPECT_EQ(ErrorRaisedBy([&] { CheckAnew(); }), "CATNotification");
    Make({.parameter = CATICkeParm_var(parameter)});
    EXPECT_EQ(ErrorRaisedBy([&] { Panel().Build(); }), "CATNotification");
    ExpectSilence();
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AnErrorOfTheCommandThatHearsTheFirstCheckIsTracedAndShown) {
    RaisingCommand command;
    host::Application::SetActiveCommand(&command);
    Build({.parameter = Length("D", 10, 0.1, -0.1)});
    host::Application::SetActiveCommand(&Command());
    ExpectErrorShown(build, "Error_InCommand", "Error_InCommand");
    EXPECT_EQ(HasTolerance(), 1);
    EXPECT_EQ(Area().GetVisibility(), CATDlgHide) << "it was hidden before";
}

TEST_F(OrvKvParameterEditPanelFaultsTest, ALengthThatCannotHaveAToleranceIsBuiltAndOpensUnchecked) {
    const auto parameter = Lacking(IID_CATIParmTolerance);
    MakeBuilt({.parameter = CATICkeParm_var(parameter)});
    ExpectErrorShown("OrvKvToleranceSub::Build", "Error_NoInterface", noInterface);
    EXPECT_EQ(HasTolerance(), 0);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 1);
    EXPECT_EQ(host::Inspector::PowerInputOwner(), &Panel());
    EXPECT_TRUE(host::DialogUser::Type(ValueEditor(), "12"));
    EXPECT_EQ(_length->AsReal(), 0.012);
    ExpectSilence();
}

// The check button

TEST_F(OrvKvParameterEditPanelFaultsTest, AnAreaThatCouldNotBeBuiltSaysSoAtEachCheck) {
    const auto parameter = Lacking(IID_CATIParmTolerance);
    MakeBuilt({.parameter = CATICkeParm_var(parameter)});
    Traces().Take();
    TakeMessages();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    EXPECT_EQ(TakeMessages().size(), 1U);
    Traces().Take();
    EXPECT_EQ(Area().GetVisibility(), CATDlgShow);
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    ExpectErrorShown(onOff, "Error_NoInterface", noInterface);
    EXPECT_EQ(Area().GetVisibility(), CATDlgHide);
    EXPECT_EQ(HasTolerance(), 0);
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AnErrorThatIsRaisedAtACheckIsTracedAndShown) {
    const auto parameter = host::Adopt(new StandInParameter(_length));
    MakeBuilt({.parameter = CATICkeParm_var(parameter)});
    parameter->onType = RaiseError;
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ExpectErrorShown(onOff, "Error_InType", "Error_InType");
    EXPECT_EQ(Area().GetVisibility(), CATDlgShow);
    EXPECT_EQ(PiecesOf(Panel()).back().rows, "2(1)");
    EXPECT_EQ(HasTolerance(), 1);
    parameter->onType = nullptr;
    CheckAnew();
    ExpectSilence();
    EXPECT_EQ(ToleranceOf(_length), "+0.1/-0.1");
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AnUncheckWithoutEventsRemovesTheToleranceAndShowsWhatIsMissing) {
    const auto parameter = host::Adopt(new StandInParameter(_length));
    MakeBuilt({.parameter = CATICkeParm_var(parameter)});
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    parameter->missing = {IID_CATIParmEvents};
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    ExpectErrorShown(onOff, "Error_NoInterface", noInterface);
    EXPECT_EQ(ToleranceOf(_length), "none");
    EXPECT_EQ(Area().GetVisibility(), CATDlgHide);
    parameter->missing.clear();
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AToleranceThatStaysIsShownWithAFreshErrorAndTellsOfNoChange) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ParameterWatcher watcher(_length);
    CATError::GetReturn(2, new CATInternalError("Error_Older", "OlderCatalogue"), nullptr, "elsewhere", 1);
    host::FaultPoints::FailCall(1, "parameter write");
    EXPECT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    host::FaultPoints::Stop();
    ExpectErrorShown(onOff, "Error_UnknownError", unknown);
    EXPECT_EQ(ToleranceOf(_length), "+0.1/-0.1");
    EXPECT_EQ(watcher.Take(), Events());
    EXPECT_EQ(Area().GetVisibility(), CATDlgHide);
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    EXPECT_EQ(ToleranceOf(_length), "none");
    EXPECT_EQ(watcher.Take(), Events({"value of D"}));
    ExpectSilence();
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AnErrorOfAListenerThatHearsTheUncheckIsTracedAndShown) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ParameterWatcher watcher(_length);
    watcher.onEvent = [] { RaiseError(); };
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    ExpectErrorShown(onOff, "Error_InType", "Error_InType");
    EXPECT_EQ(ToleranceOf(_length), "none");
}

// Setters

TEST_F(OrvKvParameterEditPanelFaultsTest, AnErrorInASelectionBecomesTheFailingResult) {
    MakeBuilt();
    const auto setGroups = [this] {
        return Observed([](auto& panel) { return panel.SetToleranceGroups(TextsOf({"H"}), "H", "H7"); });
    };
    const auto setFields = [this] {
        return Observed([](auto& panel) { return panel.SetToleranceFields(TextsOf({"H7"})); });
    };
    host::FaultPoints::FailCall(1, "combo selection");
    EXPECT_EQ(setGroups(),
              CaughtIn(source, "OrvKvParameterEditPanel::SetToleranceGroups", "ComboSelection", "CATDialog"));
    host::FaultPoints::FailCall(1, "combo selection");
    EXPECT_EQ(setFields(),
              CaughtIn(source, "OrvKvParameterEditPanel::SetToleranceFields", "ComboSelection", "CATDialog"));
    host::FaultPoints::Stop();
    EXPECT_EQ(setGroups().result, "S_OK");
    EXPECT_EQ(setFields().result, "S_OK");
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AToleranceThatIsGoneFailsToBeSetAndIsShownForAFit) {
    const auto parameter = host::Adopt(new StandInParameter(_length));
    MakeBuilt({.parameter = CATICkeParm_var(parameter)});
    parameter->missing = {IID_CATIParmTolerance};
    EXPECT_EQ(Observed([](auto& panel) { return panel.SetToleranceValues(0.1, -0.1); }),
              CaughtIn(source, "OrvKvParameterEditPanel::SetToleranceValues", "Error_NoInterface",
                       "OrvKv_ErrorCatalog"));
    Traces().Take();
    EXPECT_EQ(TakeMessages(), ShownMessages());
    SetFittingVals(0.1, -0.1);
    ExpectErrorShown("OrvKvParameterEditPanel::SetFittingVals", "Error_NoInterface", noInterface);
    parameter->missing.clear();
    SetFittingVals(0.1, -0.1);
    EXPECT_EQ(ToleranceOf(_length), "+0.1/-0.1");
    ExpectSilence();
}

// Short memory

TEST_F(OrvKvParameterEditPanelFaultsTest, AnAreaWithoutWidgetsFailsToTakeGroupsAndFields) {
    constexpr int firstRadio = 6; // after label, editor, check button, separator and the area itself
    Make();
    host::FaultPoints::FailCall(firstRadio, "widget allocation");
    Panel().Build();
    host::FaultPoints::Stop();
    ASSERT_TRUE(host::Inspector::Children(Area()).empty());
    EXPECT_EQ(TakeMessages().size(), 1U);
    Traces().Take();
    EXPECT_EQ(Observed([](auto& panel) { return panel.SetToleranceGroups(TextsOf({"H"}), "H", "H7"); }),
              FailureIn(source, "Error in setting the tolerances to the group."));
    EXPECT_EQ(Observed([](auto& panel) { return panel.SetToleranceFields(TextsOf({"H7"})); }),
              PlainFailure());
    EXPECT_EQ(Observed([](auto& panel) { return panel.SetToleranceValues(0.1, -0.1); }).result, "S_OK");
    SetFittingVals(0.1, -0.1);
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EXPECT_EQ(ToleranceOf(_length), "none");
    CATError::CATCleanLastError();
    Panel().SetVisibility(CATDlgShow);
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    const ShownMessages messages = TakeMessages();
    ASSERT_EQ(messages.size(), 1U) << "the check does not do what it says";
    EXPECT_NE(messages[0].text.find("The tolerance area is not built."), std::string::npos);
}

// The life of a panel, in which each call that can fail fails once.
class ParameterEditPanelSweepTest : public OrvKvParameterEditPanelFaultsTest {
  protected:
    // The results of the operations in between.
    std::set<std::string> Live(const CATICkeParm_var& iParameter) {
        const host::EventScope event;
        std::set<std::string> results;
        Panel().Build();
        auto* const button = Child<CATDlgCheckButton>();
        const auto check = [button](CATULong iState) {
            if (button != nullptr)
                button->SetState(iState, CATDlgWithNotification);
        };
        check(CATDlgUncheck);
        check(CATDlgCheck);
        CATICkeParm_var parameter;
        CATString key;
        CATString group;
        CATString field;
        unsigned char state = 7;
        const auto note = [&results](long iResult) {
            results.insert(iResult == S_OK ? "S_OK" : iResult == E_FAIL ? "E_FAIL" : "other");
        };
        note(Panel().SetToleranceGroups(TextsOf({"G", "H"}), "H", "H7"));
        note(Panel().SetToleranceFields(TextsOf({"H6", "H7"})));
        Panel().SetFittingVals(0.015, 0);
        note(Panel().SetToleranceValues(0.2, -0.1));
        note(Panel().HasTolerance(&state));
        note(Panel().GetModifiedParameter(&parameter, &key, nullptr, nullptr, &group, &field));
        EXPECT_TRUE(parameter == iParameter);
        check(CATDlgUncheck);
        EXPECT_EQ(HasTolerance(), 0);
        CATError::CATCleanLastError();
        return results;
    }
};

TEST_F(ParameterEditPanelSweepTest, WhateverCallFailsNothingIsRaisedAndAResultIsGiven) {
    const auto parameter = [] { return Length("D", 10, 0.2, -0.1); };
    const CATICkeParm_var first = parameter();
    Make({.parameter = first, .group = "H", .field = "H7"});
    host::FaultPoints::StartCounting();
    EXPECT_EQ(Live(first), std::set<std::string>({"S_OK"}));
    const int calls = host::FaultPoints::Passed();
    host::FaultPoints::Stop();
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EXPECT_GT(calls, 50);
    std::size_t shown = 0;
    for (int call = 1; call <= calls; ++call) {
        const CATICkeParm_var edited = parameter();
        Make({.parameter = edited, .group = "H", .field = "H7"});
        host::FaultPoints::FailCall(call);
        const std::set<std::string> results = Live(edited);
        host::FaultPoints::Stop();
        EXPECT_FALSE(results.contains("other")) << call;
        shown += TakeMessages().size();
        Panel().Build();
        Destroy();
        EXPECT_EQ(SubscriptionsOn(edited), 0) << call;
    }
    EXPECT_GT(shown, 0U);
    Allow(Leftover::MissingTexts, "texts are among what fails");
    Traces().Take();
    Command().Forget();
}

// Listeners that act inside

TEST_F(OrvKvParameterEditPanelFaultsTest, APanelMayBeGivenUpWhileTheUncheckIsTold) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ParameterWatcher watcher(_length);
    watcher.onEvent = [this] { GiveUp(); };
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    EXPECT_EQ(host::Inspector::Windows().size(), 0U);
    EXPECT_EQ(SubscriptionsOn(_length), 2) << "those of the watcher";
    EXPECT_EQ(ToleranceOf(_length), "none");
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AListenerMayCheckAgainWhileTheUncheckIsTold) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ParameterWatcher watcher(_length);
    watcher.onEvent = [&] {
        watcher.onEvent = nullptr;
        CheckButton().SetState(CATDlgCheck, CATDlgWithNotification);
    };
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    EXPECT_EQ(HasTolerance(), 1);
    EXPECT_EQ(Area().GetVisibility(), CATDlgShow);
    EXPECT_EQ(PiecesOf(Panel()).back().rows, "2(1)");
    ExpectSilence();
}

TEST_F(OrvKvParameterEditPanelFaultsTest, AListenerMayUncheckWhileTheCheckSetsTheTolerance) {
    MakeBuilt();
    ParameterWatcher watcher(_length);
    watcher.onEvent = [&] {
        watcher.onEvent = nullptr;
        CheckButton().SetState(CATDlgUncheck, CATDlgWithNotification);
    };
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    EXPECT_EQ(HasTolerance(), 0);
    EXPECT_EQ(Area().GetVisibility(), CATDlgHide);
    EXPECT_EQ(ToleranceOf(_length), "none");
    ExpectSilence();
}

// A sender that no user can bring about.

TEST_F(OrvKvParameterEditPanelFaultsTest, TheCallbackHearsCheckButtonsAlone) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    (Panel().*onCheck)(nullptr, nullptr, nullptr);
    (Panel().*onCheck)(&Label(), nullptr, nullptr);
    EXPECT_EQ(ToleranceOf(_length), "+0.1/-0.1");
    CATDlgFrame frame(MainWindow(), "Frame");
    auto& other = *new CATDlgCheckButton(&frame, "ToleranceCkb");
    (Panel().*onCheck)(&other, nullptr, nullptr);
    EXPECT_EQ(ToleranceOf(_length), "none") << "the button that notifies counts";
    EXPECT_EQ(Area().GetVisibility(), CATDlgHide);
    ExpectSilence();
}

} // namespace
