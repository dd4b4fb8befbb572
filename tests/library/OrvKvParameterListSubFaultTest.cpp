// The parameter list when something fails: unfit lists, null handles, parameters that raise, failing calls.

#include "ParameterListTest.h"
#include "StandInParameter.h"

#include "CATDlgMultiList.h"
#include "CATErrorMacros.h"
#include "CATInputError.h"
#include "CATNotification.h"
#include "host/FaultPoints.h"
#include "host/FeatureParameters.h"
#include "host/Inspector.h"
#include "host/LiveObjects.h"
#include "support/ParameterWatcher.h"

namespace {

using namespace support;

// What a caught error looks like that the panel gives back.
Report CaughtIn(const std::string& iOperation, const std::string& iKey) {
    Report report = PlainFailure();
    report.returns = 1;
    report.source = parameterListSource;
    report.traces = {{"OrvKv9SubFrames", 3, "OrvKvParameterListSub::" + iOperation + " -> caught ERROR"},
                     {"OrvKv9SubFrames", 3, "error message: " + iKey}};
    report.key = iKey;
    return report;
}

Report NullHandleCaughtFor(const std::string& iHandle) {
    Report report = CaughtIn("SetParameters", "NullHandle");
    report.errorClass = "CATInternalError";
    report.catalogue = "CATSystem";
    report.parameters = {iHandle};
    return report;
}

Report RaisedErrorCaughtIn(const std::string& iOperation) {
    Report report = CaughtIn(iOperation, "Error_InShow");
    report.errorClass = "CATInputError";
    report.catalogue = "ShowCatalogue";
    return report;
}

void RaiseError() {
    CATThrow(new CATInputError("Error_InShow", "ShowCatalogue"));
}

void RaiseOther() {
    CATThrow(new CATNotification());
}

class OrvKvParameterListSubFaultTest : public ParameterListTest {
  protected:
    OrvKvParameterListSubFaultTest() { MakeBuilt(); }

    // D, a parameter that is looked at by iMiddle, and T.
    std::vector<Listed> Around(const CATBaseUnknown_var& iMiddle) const {
        return {{.parameter = _diameter, .name = "D"},
                {.parameter = iMiddle, .name = "M"},
                {.parameter = _depth, .name = "T"}};
    }
    // After a list that ended in its second row: the first follows its parameter, nothing is heard twice or
    // left over, and the panel goes on.
    void ExpectToGoOn() {
        EXPECT_EQ(List().GetVisibility(), CATDlgShow);
        EXPECT_EQ(SubscriptionsOn(_diameter), 2);
        EXPECT_EQ(SubscriptionsOn(_depth), 0);
        Change(_diameter, 11);
        EXPECT_EQ(Cell(1, 2), "11mm");
        EXPECT_EQ(TakeReported(), Reported({"changed D"}));
        EXPECT_EQ(SetParameters({{.parameter = _depth, .name = "T"}}), SuccessIn(parameterListSource));
        EXPECT_EQ(SubscriptionsOn(_diameter), 0);
        EXPECT_EQ(SubscriptionsOn(_depth), 2);
        EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth"}));
    }

    CATICkeParm_var _diameter = Length("D", 10, 0.1, -0.05);
    CATICkeParm_var _depth = Length("T", 20);
    CATHandle<StandInParameter> _middle = host::Adopt(new StandInParameter(Length("M", 15)));
};

TEST_F(OrvKvParameterListSubFaultTest, ListsOfDifferentLengthsAreRefusedAndChangeNothing) {
    SetParameters({{.parameter = _diameter, .name = "D"}});
    const ParameterLists good = ParameterLists::Of({{.parameter = _depth, .name = "T"}});
    const std::vector<std::function<void(ParameterLists&)>> spoilers = {
        [](ParameterLists& lists) { lists.parameters.RemoveAll(); },
        [](ParameterLists& lists) { lists.names.RemoveAll(); },
        [](ParameterLists& lists) { lists.tolerances.RemoveAll(); },
        [](ParameterLists& lists) { lists.valueShown.RemoveAll(); },
        [](ParameterLists& lists) { lists.valueEditable.RemoveAll(); },
        [](ParameterLists& lists) { lists.toleranceShown.RemoveAll(); },
        [](ParameterLists& lists) { lists.toleranceEditable.RemoveAll(); },
        [](ParameterLists& lists) { lists.parameters.Append(nullptr); },
        [](ParameterLists& lists) { lists.names.Append("T"); },
        [](ParameterLists& lists) { lists.tolerances.Append(""); },
        [](ParameterLists& lists) { lists.valueShown.Append(1); },
        [](ParameterLists& lists) { lists.valueEditable.Append(1); },
        [](ParameterLists& lists) { lists.toleranceShown.Append(1); },
        [](ParameterLists& lists) { lists.toleranceEditable.Append(1); }};
    for (const auto& spoil : spoilers) {
        ParameterLists lists = good;
        spoil(lists);
        EXPECT_EQ(Observe([&] { return lists.HandTo(Panel()); }),
                  FailureIn(parameterListSource, "The lists of the parameters differ in length."));
        EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter"}));
        EXPECT_EQ(SubscriptionsOn(_diameter), 2);
        EXPECT_EQ(SubscriptionsOn(_depth), 0);
    }
    DoubleClick(1);
    EXPECT_EQ(TakeReported(), Reported({"double click on D at 1, value 1, tolerance 1"}));
    EXPECT_EQ(Observe([&] { return good.HandTo(Panel()); }), SuccessIn(parameterListSource));
}

TEST_F(OrvKvParameterListSubFaultTest, ANullHandleBecomesTheFailingResultAndTheRowsBeforeItStay) {
    EXPECT_EQ(SetParameters(Around(nullptr)), NullHandleCaughtFor("CATICkeParm"));
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|M|||"}));
    ExpectToGoOn();
}

TEST_F(OrvKvParameterListSubFaultTest, AnObjectThatIsNoParameterBecomesTheFailingResult) {
    EXPECT_EQ(SetParameters(Around(host::NewFeatureParameters())), NullHandleCaughtFor("CATICkeParm"));
    ExpectToGoOn();
}

TEST_F(OrvKvParameterListSubFaultTest, ANullHandleOfWhichTheToleranceAloneIsShownFailsWhenItIsToBeFollowed) {
    std::vector<Listed> listed = Around(nullptr);
    listed[1].valueShown = 0;
    EXPECT_EQ(SetParameters(listed), NullHandleCaughtFor("CATIParmEvents"));
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|M||| "}));
    ExpectToGoOn();
}

TEST_F(OrvKvParameterListSubFaultTest, AHiddenNullHandleIsNotTouched) {
    std::vector<Listed> listed = Around(nullptr);
    listed[1].valueShown = 0;
    listed[1].toleranceShown = -1;
    EXPECT_EQ(SetParameters(listed), SuccessIn(parameterListSource));
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|T|20mm||Depth"}));
    EXPECT_EQ(SetParameters({}), SuccessIn(parameterListSource));
}

TEST_F(OrvKvParameterListSubFaultTest, APanelThatWasFilledInPartGoesWithoutATrace) {
    SetParameters(Around(nullptr));
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
    Destroy();
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
}

TEST_F(OrvKvParameterListSubFaultTest, TheRowThatFailedCanBeDoubleClickedAndTakesAFit) {
    SetParameters(Around(nullptr));
    EXPECT_EQ(SetFittingInfo("M", "H7"), SuccessIn(parameterListSource));
    DoubleClick(2);
    EXPECT_EQ(Cell(2, 3), "H7");
    EXPECT_EQ(TakeReported(), Reported({"double click on M at 2, value 1, tolerance 1"}));
}

TEST_F(OrvKvParameterListSubFaultTest, AParameterThatRaisesAnErrorBecomesTheFailingResult) {
    _middle->onShow = RaiseError;
    EXPECT_EQ(SetParameters(Around(_middle)), RaisedErrorCaughtIn("SetParameters"));
    EXPECT_EQ(SubscriptionsOn(_middle), 0);
    EXPECT_EQ(host::LiveObjects::Count("CATInputError"), 0);
    ExpectToGoOn();
}

TEST_F(OrvKvParameterListSubFaultTest, AMessageWithFormatSignsIsTracedAsItIs) {
    _middle->onShow = [] { CATThrow(new CATInputError("100 %s %n", "ShowCatalogue")); };
    Report expected = CaughtIn("SetParameters", "100 %s %n");
    expected.errorClass = "CATInputError";
    expected.catalogue = "ShowCatalogue";
    EXPECT_EQ(SetParameters(Around(_middle)), expected);
}

TEST_F(OrvKvParameterListSubFaultTest, ARaisedObjectThatIsNoErrorEndsTheFillingWithASuccess) {
    _middle->onShow = RaiseOther;
    EXPECT_EQ(SetParameters(Around(_middle)), SuccessIn(parameterListSource));
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|M|||"}));
    EXPECT_EQ(host::LiveObjects::Count("CATNotification"), 0);
    ExpectToGoOn();
}

TEST_F(OrvKvParameterListSubFaultTest, AParameterThatRaisesWhileItsChangeIsShownIsTracedAndNotReported) {
    SetParameters(Around(_middle));
    _middle->onShow = RaiseError;
    ParameterWatcher later(_middle);
    Change(CATICkeParm_var(_middle), 16);
    EXPECT_EQ(Traces().Take(), TraceLines({{"OrvKv9SubFrames", 3,
                                            "OrvKvParameterListSub::OnParameterValueChanged -> caught ERROR"},
                                           {"OrvKv9SubFrames", 3, "error message: Error_InShow"}}));
    EXPECT_EQ(later.Take(), Events({"value of M"})) << "the subscribers after the panel hear the change";
    EXPECT_EQ(Cell(2, 2), "15mm");
    EXPECT_EQ(TakeReported(), Reported());
    _middle->onShow = RaiseOther;
    Change(CATICkeParm_var(_middle), 17);
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(TakeReported(), Reported());
    EXPECT_EQ(host::LiveObjects::Count("CATNotification") + host::LiveObjects::Count("CATInputError"), 0);
    _middle->onShow = nullptr;
    Change(CATICkeParm_var(_middle), 18);
    EXPECT_EQ(Cell(2, 2), "18mm");
    EXPECT_EQ(TakeReported(), Reported({"changed M"}));
}

TEST_F(OrvKvParameterListSubFaultTest, OtherParametersListedWhileAValueIsReadForItsRowTakeTheirPlace) {
    const ParameterLists others = ParameterLists::Of({{.parameter = _depth, .name = "T"},
                                                      {.parameter = _depth, .name = "U"},
                                                      {.parameter = _depth, .name = "V"}});
    _middle->onShow = [&] { EXPECT_EQ(others.HandTo(Panel()), S_OK); };
    EXPECT_EQ(SetParameters(Around(_middle)).result, "S_OK");
    EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth", "|U|20mm|| ", "|V|20mm|| "}));
    EXPECT_EQ(List().GetVisibility(), CATDlgShow);
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
    EXPECT_EQ(SubscriptionsOn(_middle), 0);
    EXPECT_EQ(SubscriptionsOn(_depth), 6);
}

TEST_F(OrvKvParameterListSubFaultTest, OtherParametersListedWhileAChangedValueIsReadTakeTheirPlace) {
    const ParameterLists others = ParameterLists::Of({{.parameter = _depth, .name = "T"}});
    SetParameters({{.parameter = _middle, .name = "M"}});
    _middle->onShow = [&] { EXPECT_EQ(others.HandTo(Panel()), S_OK); };
    Change(CATICkeParm_var(_middle), 16);
    EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth"}));
    EXPECT_EQ(TakeReported(), Reported({"changed M"}));
    EXPECT_EQ(SubscriptionsOn(_middle), 0);
    EXPECT_EQ(SubscriptionsOn(_depth), 2);
}

TEST_F(OrvKvParameterListSubFaultTest, AFailingCellBecomesTheFailingResultOfAFit) {
    SetParameters(Around(_middle));
    host::FaultPoints::FailCall(1, "list cell");
    Report expected = CaughtIn("SetFittingInfo", "ListCell");
    expected.errorClass = "CATInternalError";
    expected.catalogue = "CATDialog";
    EXPECT_EQ(SetFittingInfo("D", "H7"), expected);
    host::FaultPoints::Stop();
    EXPECT_EQ(Cell(1, 3), "+0.1/-0.05");
    EXPECT_EQ(SetFittingInfo("D", "H7"), SuccessIn(parameterListSource));
    EXPECT_EQ(Cell(1, 3), "H7");
}

TEST_F(OrvKvParameterListSubFaultTest, AFailingCellIsTracedWhileATolerancesChangeIsShown) {
    SetParameters({{.parameter = _diameter, .name = "D"}});
    host::FaultPoints::FailCall(1, "list cell");
    RaiseToleranceChange(_diameter);
    host::FaultPoints::Stop();
    EXPECT_EQ(Traces().Take(),
              TraceLines({{"OrvKv9SubFrames", 3, "OrvKvParameterListSub::OnToleranceValue -> caught ERROR"},
                          {"OrvKv9SubFrames", 3, "error message: ListCell"}}));
    RaiseToleranceChange(_diameter);
    EXPECT_EQ(Cell(1, 0), "*");
}

// A command that raises whenever the list is hidden or shown.
class RaisingCommand : public CATCommand {
  public:
    explicit RaisingCommand(void (*iRaise)()) : CATCommand(nullptr, "RaisingCommand"), _raise(iRaise) {
        host::Application::SetActiveCommand(this);
    }
    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification*) override {
        _raise();
        return CATNotifDontTransmitToFather;
    }

  private:
    void (*_raise)();
};

TEST_F(OrvKvParameterListSubFaultTest, AnErrorRaisedWhenTheListIsHiddenOrShownBecomesTheFailingResult) {
    List().GetVisibilityNotification();
    const RaisingCommand command(RaiseError);
    const Report report = SetParameters({{.parameter = _diameter, .name = "D"}});
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(report.result, "E_FAIL");
    EXPECT_EQ(report.key, "Error_InShow");
    EXPECT_EQ(List().GetVisibility(), CATDlgShow);
    EXPECT_EQ(SetParameters({{.parameter = _diameter, .name = "D"}}).result, "S_OK");
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
}

TEST_F(OrvKvParameterListSubFaultTest, AnObjectRaisedWhenTheListIsHiddenOrShownCountsForNothing) {
    List().GetVisibilityNotification();
    const RaisingCommand command(RaiseOther);
    const Report report = SetParameters({{.parameter = _diameter, .name = "D"}});
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(report.result, "S_OK");
    EXPECT_EQ(List().GetVisibility(), CATDlgShow);
    EXPECT_EQ(host::LiveObjects::Count("CATNotification"), 0);
}

TEST_F(OrvKvParameterListSubFaultTest, ACommandThatFailsWhileItHearsOfAChangeIsNotSilenced) {
    SetParameters({{.parameter = _diameter, .name = "D"}});
    const RaisingCommand command(RaiseError);
    CATBaseUnknown* caught = nullptr;
    try {
        Change(_diameter, 11);
    } catch (CATBaseUnknown* raised) {
        caught = raised;
    }
    host::Application::SetActiveCommand(&Command());
    ASSERT_NE(caught, nullptr);
    EXPECT_STREQ(caught->IsA(), "CATInputError");
    caught->Release();
    EXPECT_EQ(Cell(1, 2), "11mm");
}

// The life of a panel, in which each call that can fail fails once.
class ParameterListSweepTest : public OrvKvParameterListSubFaultTest {
  protected:
    void Live() {
        Panel().SetFeatureParameters(_feature);
        Panel().Build();
        _results = {_lists.HandTo(Panel()), _lists.HandTo(Panel()), Panel().SetFittingInfo("D", "H7")};
        _diameter->Valuate(0.011);
        _depthEvents->RaiseToleranceChange();
        if (host::Inspector::FirstChild(Panel()) != nullptr && List().GetLineCount() > 0)
            DoubleClick(1);
        CATError::CATCleanLastError();
    }

    OrvIKvFeatureParameters_var _feature = FeatureWith({"D"});
    CATIParmEvents_var _depthEvents = _depth;
    ParameterLists _lists = ParameterLists::Of(Around(_middle));
    std::vector<long> _results;
};

TEST_F(ParameterListSweepTest, WhateverCallFailsThePanelGivesAResultAndGoesOn) {
    Make();
    host::FaultPoints::StartCounting();
    Live();
    const int calls = host::FaultPoints::Passed();
    host::FaultPoints::Stop();
    EXPECT_EQ(_results, std::vector<long>(3, S_OK));
    EXPECT_GT(calls, 30);
    for (int call = 1; call <= calls; ++call) {
        Make();
        host::FaultPoints::FailCall(call);
        Live();
        host::FaultPoints::Stop();
        for (const long result : _results)
            EXPECT_TRUE(result == S_OK || result == E_FAIL) << call << ": " << result;
        Panel().Build();
        EXPECT_EQ(_lists.HandTo(Panel()), S_OK) << call;
        EXPECT_EQ(ShownRows().size(), 3U) << call;
        for (const CATBaseUnknown_var& parameter :
             {CATBaseUnknown_var(_diameter), CATBaseUnknown_var(_middle), CATBaseUnknown_var(_depth)})
            EXPECT_EQ(SubscriptionsOn(parameter), 2) << call;
    }
    CATError::CATCleanLastError();
    Traces().Take();
    Command().Forget();
}

} // namespace
