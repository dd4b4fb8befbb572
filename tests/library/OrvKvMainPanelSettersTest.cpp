// What the main panel hands on to its panels, and what it makes of their failures.

#include "OrvKvMainPanelTest.h"

#include "CATDlgDocument.h"
#include "CATDlgMultiList.h"
#include "CATDlgRadioButton.h"
#include "CATError.h"
#include "CATPixelImage.h"
#include "CATViewer.h"
#include "OrvKvGroupChangedNotification.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvTypeSelectedNotification.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/ViewerInspector.h"

#include <map>
#include <regex>

namespace {

using namespace support;
using namespace mainPanel;

const char groupSource[] = "OrvKv9SubFrames.m/src/OrvKvGroupAndGeometrySub";
const char typeSource[] = "OrvKv9SubFrames.m/src/OrvKvTypeAndParameterSetSub";
const char noGroups[] = "Group and geometry sub panel doesn't exist.";
const char noTypes[] = "_pTypeAndParameterSetSub panel doesn't exist.";
const char badParameters[] = "Error in setting the parameters to the parameters list sub panel.";
const char badNames[] = "Error in setting the parameter names to the parameters list sub panel.";
const char badFitting[] = "Error in setting the fitting infor to the parameters list sub panel.";

// How many results the panels further down have given meanwhile, and in which lines they failed, is their own
// affair.
Report Essence(Report iReport) {
    iReport.returns = 0;
    for (host::TraceLine& trace : iReport.traces)
        trace.text = std::regex_replace(trace.text, std::regex(" at line [0-9]+ in"), " at line LINE in");
    return iReport;
}

const Report success = Essence(SuccessIn(source));

Report FailureWith(const char* iMessage) {
    return Essence(FailureIn(source, iMessage));
}

// What is told when the main panel fails after a panel further down has: the traces of both, and the error of
// that panel.
Report FailureAfter(Report iCallee, const char* iMessage) {
    const Report own = FailureIn(source, iMessage);
    iCallee.source = own.source;
    iCallee.traces.insert(iCallee.traces.end(), own.traces.begin(), own.traces.end());
    return Essence(iCallee);
}

using Rows = std::vector<Lines>;

class OrvKvMainPanelSettersTest : public OrvKvMainPanelTest {
  protected:
    Report Told(const std::function<long(OrvKvMainPanel&)>& iCall) { return Essence(Observed(iCall)); }
    // What the call tells while the command fails whenever it hears something.
    Report ToldWhileTheCommandFails(const std::function<long(OrvKvMainPanel&)>& iCall) {
        RaisingCommand raising;
        host::Application::SetActiveCommand(&raising);
        Report report = Told(iCall);
        host::Application::SetActiveCommand(&Command());
        return report;
    }
    // The traces of a call that gives no result; no error is left.
    TraceLines TracesOf(const std::function<void(OrvKvMainPanel&)>& iCall) {
        return Observed([&](OrvKvMainPanel& ioPanel) -> long {
                   iCall(ioPanel);
                   return S_OK;
               })
            .traces;
    }

    static long SetParameters(OrvKvMainPanel& ioPanel, const ParameterLists& iLists) {
        return ioPanel.SetParameters("M6", iLists.names, iLists.parameters, iLists.tolerances,
                                     iLists.valueShown, iLists.valueEditable, iLists.toleranceShown,
                                     iLists.toleranceEditable);
    }
    static long SetParameterNames(OrvKvMainPanel& ioPanel, const ParameterLists& iLists) {
        return ioPanel.SetParameterNames(iLists.parameters, iLists.names, iLists.valueShown,
                                         iLists.valueEditable, iLists.toleranceShown,
                                         iLists.toleranceEditable);
    }
    static long AddSet(OrvKvMainPanel& ioPanel, const char* iName, const ParameterLists& iLists) {
        return ioPanel.SetParameterSet(iName, iLists.names, iLists.parameters, iLists.tolerances);
    }
    Rows RowsOf(const char* iList) {
        const auto& list = Part<CATDlgMultiList>(iList);
        Rows rows;
        for (int line = 0; line < list.GetLineCount(); ++line) {
            rows.emplace_back();
            for (int column = 0; column < list.GetColumnCount(); ++column) {
                CATUnicodeString text;
                list.GetColumnItem(column, text, line);
                rows.back().emplace_back(text.ConvertToChar());
            }
        }
        return rows;
    }
    // Has columns for both parameters and the sets M6 and M8.
    void FillSets() {
        MakeBuilt(setMode);
        const ParameterLists lists = TwoParameters();
        ASSERT_EQ(SetParameterNames(Panel(), lists), S_OK);
        ASSERT_EQ(AddSet(Panel(), "M6", lists), S_OK);
        ASSERT_EQ(AddSet(Panel(), "M8", lists), S_OK);
    }
    std::string SelectedSet() { return Panel().GetSelectedParameterSetName().ConvertToChar(); }
};

// Groups and types

TEST_F(OrvKvMainPanelSettersTest, GroupsAreListedAndOneIsChosen) {
    MakeBuilt();
    const CATListValCATString keys = KeysOf({"Holes", "Shafts", "Grooves"});
    EXPECT_EQ(Told([&](auto& ioPanel) { return ioPanel.SetGroups(&keys, 2); }), success);
    EXPECT_EQ(LinesOf(Part<CATDlgCombo>("GroupCmb")), Lines({"Holes", "Shafts", "Grooves"}));
    EXPECT_EQ(Part<CATDlgCombo>("GroupCmb").GetSelect(), 1);
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvGroupChangedNotification"}));
}

TEST_F(OrvKvMainPanelSettersTest, AFailureToListGroupsIsThatOfTheirPanel) {
    MakeBuilt();
    Fill();
    const std::string before = Dump();
    EXPECT_EQ(Told([](auto& ioPanel) { return ioPanel.SetGroups(nullptr, 1); }),
              Essence(FailureIn(groupSource, "Invalid data memeber _pGroupCmb .")));
    EXPECT_EQ(Dump(), before);
    const CATListValCATString keys = KeysOf({"Holes"});
    EXPECT_EQ(ToldWhileTheCommandFails([&](auto& ioPanel) { return ioPanel.SetGroups(&keys, 1); }),
              Essence(CaughtOfCommandIn(groupSource, "OrvKvGroupAndGeometrySub::SetGroupKeys")));
}

TEST_F(OrvKvMainPanelSettersTest, TypesAreListedUnderTheirGroupAndOneIsChosen) {
    MakeBuilt();
    const CATListValCATString keys = KeysOf({"Counterbore", "Countersink"});
    EXPECT_EQ(Told([&](auto& ioPanel) { return ioPanel.SetFeatureTypes(3, 2, &keys); }), success);
    EXPECT_EQ(LinesOf(Part<CATDlgCombo>("TypeSelectCombo")), Lines({"Counterbore", "Countersink"}));
    auto* const chosen = Command().Last<OrvKvTypeSelectedNotification>();
    ASSERT_NE(chosen, nullptr);
    int group = 0;
    int type = 0;
    CATString key;
    CATUnicodeString name;
    chosen->GetFeatureInformation(&group, &type, &key, &name);
    EXPECT_EQ(group, 3);
    EXPECT_EQ(type, 2);
    EXPECT_STREQ(key.ConvertToChar(), "Countersink");
    Command().Forget();
}

TEST_F(OrvKvMainPanelSettersTest, AFailureToListTypesIsThatOfTheirPanel) {
    MakeBuilt();
    Fill();
    const std::string before = Dump();
    const CATListValCATString keys = KeysOf({"Counterbore"});
    EXPECT_EQ(Told([&](auto& ioPanel) { return ioPanel.SetFeatureTypes(0, 1, &keys); }),
              Essence(FailureIn(typeSource, "Invalid data members _pTypeSub, iGroupNo, iTypeNo ")));
    EXPECT_EQ(Dump(), before);
    EXPECT_EQ(Told([](auto& ioPanel) { return ioPanel.SetFeatureTypes(1, 1, nullptr); }), success)
        << "no list is no failure of that panel";
}

TEST_F(OrvKvMainPanelSettersTest, GroupAndTypeCanBeLocked) {
    MakeBuilt();
    for (const CATULong what : {CATDlgDisable, CATDlgEnable, CATDlgDisable}) {
        Panel().DisableGroupAndType(what);
        EXPECT_EQ(Part<CATDialog>("GroupCmb").GetSensitivity(), what);
        EXPECT_EQ(Part<CATDialog>("TypeSelectCombo").GetSensitivity(), what);
        EXPECT_EQ(Part<CATDialog>("ParameterSetCmb").GetSensitivity(), CATDlgEnable);
    }
}

// Geometry

TEST_F(OrvKvMainPanelSettersTest, AnInputIsShownWithItsTextOrHidden) {
    MakeBuilt();
    const Report report =
        Observed([](auto& ioPanel) { return ioPanel.SetInputGeometryUI(2, CATDlgHide, "Line.7"); });
    EXPECT_EQ(report.result, "S_OK");
    EXPECT_EQ(report.traces, TraceLines());
    EXPECT_STREQ(Part<CATDlgEditor>("Input2Edt").GetText().ConvertToChar(), "Line.7");
    EXPECT_EQ(Part<CATDialog>("Input2Edt").GetVisibility(), CATDlgHide);
    EXPECT_EQ(Part<CATDialog>("Input2Pbt").GetVisibility(), CATDlgHide);
    EXPECT_EQ(Panel().SetInputGeometryUI(2, CATDlgShow, "Line.8"), 0);
    EXPECT_STREQ(Part<CATDlgEditor>("Input2Edt").GetText().ConvertToChar(), "Line.8");
    EXPECT_EQ(Part<CATDialog>("Input2Edt").GetVisibility(), CATDlgShow);
}

TEST_F(OrvKvMainPanelSettersTest, AnInputThatIsNotThereIsNoFailure) {
    MakeBuilt();
    const std::string before = Dump();
    for (const int index : {-1, 0, 4, 1000})
        EXPECT_EQ(Observed([&](auto& ioPanel) {
                      return ioPanel.SetInputGeometryUI(index, CATDlgShow, "X");
                  }).result,
                  "S_OK")
            << index;
    EXPECT_EQ(Dump(), before);
}

TEST_F(OrvKvMainPanelSettersTest, TheOtherOperationForTheTextOfAnInputChangesNothingAndSucceeds) {
    MakeBuilt();
    Fill();
    const std::string before = Dump();
    EXPECT_EQ(Observed([](auto& ioPanel) { return ioPanel.SetGeometryText(1, "Point.9"); }),
              SuccessIn(source));
    EXPECT_EQ(Dump(), before);
    EXPECT_EQ(Panel().SetInputGeometryUI(1, CATDlgShow, "Point.9"), 0);
    EXPECT_NE(Dump(), before);
}

TEST_F(OrvKvMainPanelSettersTest, TheDirectionOfTheInsertionCanBeLocked) {
    MakeBuilt();
    EXPECT_EQ(Part<CATDialog>("InvertPbt").GetSensitivity(), CATDlgEnable);
    Panel().DisableInsertionDirection();
    EXPECT_EQ(Part<CATDialog>("InvertPbt").GetSensitivity(), CATDlgDisable);
}

// Names of parameter sets

TEST_F(OrvKvMainPanelSettersTest, NamesOfSetsGoToTheSelectorInBothModes) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        MakeBuilt(mode);
        EXPECT_EQ(Told([](auto& ioPanel) {
                      return ioPanel.SetParameterSetNames(TextsOf({"M6", "M8"}), 1);
                  }),
                  success);
        EXPECT_EQ(LinesOf(Part<CATDlgCombo>("ParameterSetCmb")), Lines({"M6", "M8"}));
        EXPECT_EQ(Part<CATDlgCombo>("ParameterSetCmb").GetSelect(), 1) << "lines count from 0";
        EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvParameterSetSelectedNotification"}));
    }
}

TEST_F(OrvKvMainPanelSettersTest, AFailureToListNamesOfSetsIsThatOfTheSelector) {
    MakeBuilt();
    EXPECT_EQ(ToldWhileTheCommandFails(
                  [](auto& ioPanel) { return ioPanel.SetParameterSetNames(TextsOf({"M6"}), 0); }),
              Essence(CaughtOfCommandIn(typeSource, "OrvKvTypeAndParameterSetSub::SetParameterSetNames")));
}

// Calls setters while the panel is built: its list is there then, group and type are not.
class EarlyCommand : public CATCommand {
  public:
    explicit EarlyCommand(std::function<void()> iCall)
        : CATCommand(nullptr, "EarlyCommand"), _call(std::move(iCall)) {}

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification*) override {
        _call();
        return CATNotifDontTransmitToFather;
    }

  private:
    std::function<void()> _call;
};

TEST_F(OrvKvMainPanelSettersTest, WithoutSelectorNamesOfSetsGoToTheTableOfSetsAndSucceedThere) {
    for (const int selected : {-3, 0, 1, 2, 3, 1000}) {
        Make(setMode);
        Report report;
        EarlyCommand early([&] {
            report = Told([&](auto& ioPanel) {
                return ioPanel.SetParameterSetNames(TextsOf({"M6", "M8"}), selected);
            });
        });
        host::Application::SetActiveCommand(&early);
        Panel().Build();
        host::Application::SetActiveCommand(&Command());
        EXPECT_EQ(report, success) << selected;
    }
}

TEST_F(OrvKvMainPanelSettersTest, WithoutSelectorAndTableNamesOfSetsFail) {
    Make(parameterMode);
    std::vector<Report> reports;
    const CATListValCATString keys = KeysOf({"Holes"});
    EarlyCommand early([&] {
        reports.push_back(
            Told([](auto& ioPanel) { return ioPanel.SetParameterSetNames(TextsOf({"M6"}), 1); }));
        reports.push_back(Told([&](auto& ioPanel) { return ioPanel.SetGroups(&keys, 1); }));
    });
    host::Application::SetActiveCommand(&early);
    Panel().Build();
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(reports, std::vector<Report>({FailureWith(noTypes), FailureWith(noGroups)}));
}

TEST_F(OrvKvMainPanelSettersTest, TheChosenSetCanBeUnselectedWithoutTellingAnybody) {
    MakeBuilt();
    EXPECT_EQ(Panel().SetParameterSetNames(TextsOf({"M6", "M8"}), 1), S_OK);
    Command().Forget();
    EXPECT_EQ(Told([](auto& ioPanel) { return ioPanel.UnselectParameterSet(1); }), success);
    EXPECT_EQ(SelectedSet(), "M6");
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvMainPanelSettersTest, WhatTheSelectorAnswersToUnselectingIsNotLookedAt) {
    MakeBuilt();
    EXPECT_EQ(Panel().SetParameterSetNames(TextsOf({"M6", "M8"}), 1), S_OK);
    Command().Forget();
    host::FaultPoints::FailCall(1, "combo selection");
    const Report report = Told([](auto& ioPanel) { return ioPanel.UnselectParameterSet(1); });
    host::FaultPoints::Stop();
    EXPECT_EQ(report.result, "S_OK");
    EXPECT_EQ(report.source, source);
    EXPECT_EQ(report.traces.size(), 2U) << "that it failed is traced by the selector";
    EXPECT_EQ(SelectedSet(), "M8");
}

TEST_F(OrvKvMainPanelSettersTest, InParameterModeTheSelectorTellsTheChosenSetFoldedOrNot) {
    MakeBuilt(parameterMode);
    EXPECT_EQ(SelectedSet(), "");
    EXPECT_EQ(Panel().SetParameterSetNames(TextsOf({"M6", "M8"}), 1), S_OK);
    EXPECT_EQ(SelectedSet(), "M8");
    PressMoreLess();
    EXPECT_EQ(SelectedSet(), "M8");
    Command().Forget();
}

TEST_F(OrvKvMainPanelSettersTest, InParameterSetModeTheTableTellsTheChosenSetUnfoldedAndTheSelectorFolded) {
    FillSets();
    EXPECT_EQ(Panel().SetParameterSetNames(TextsOf({"M6", "M8", "M10"}), 2), S_OK);
    EXPECT_EQ(SelectedSet(), "") << "no row is selected";
    ASSERT_TRUE(host::DialogUser::Select(Part<CATDlgMultiList>("ParameterSetMul"), {0}));
    EXPECT_EQ(SelectedSet(), "M6");
    PressMoreLess();
    EXPECT_EQ(SelectedSet(), "M10");
    PressMoreLess();
    EXPECT_EQ(SelectedSet(), "M6");
    Command().Forget();
}

// Parameters

TEST_F(OrvKvMainPanelSettersTest, InParameterModeParametersAreListedUnderTheirFlags) {
    MakeBuilt(parameterMode);
    const auto lists =
        ParameterLists::Of({{.parameter = Length("D", 10, 0.1, -0.05), .name = "D"},
                            {.parameter = Length("T", 20), .name = "T", .valueEditable = 0},
                            {.parameter = Length("K", 1, 0.2, 0.1), .name = "K", .toleranceEditable = 0},
                            {.parameter = Length("H", 2, 0.2, 0.1), .name = "H", .toleranceShown = 0},
                            {.parameter = Length("V", 3, 0.2, 0.1), .name = "V", .valueShown = 0},
                            {.parameter = Length("F", 4), .name = "F", .tolerance = "H7"}});
    EXPECT_EQ(Told([&](auto& ioPanel) { return SetParameters(ioPanel, lists); }), success);
    Rows rows = RowsOf("ParameterMul");
    for (Lines& row : rows)
        row.pop_back(); // the description
    EXPECT_EQ(rows, Rows({{"", "D", "10mm", "+0.1/-0.05"},
                          {"", "T", "(20mm)", ""},
                          {"", "K", "1mm", "(+0.2/0.1)"},
                          {"", "H", "2mm", ""},
                          {"", "V", "", "+0.2/0.1"},
                          {"", "F", "4mm", "H7"}}));
}

TEST_F(OrvKvMainPanelSettersTest, InParameterModeTheErrorOfTheListIsKept) {
    MakeBuilt(parameterMode);
    Fill();
    const std::string before = Dump();
    ParameterLists lists = TwoParameters();
    lists.valueShown.RemovePosition(1);
    EXPECT_EQ(Told([&](auto& ioPanel) { return SetParameters(ioPanel, lists); }),
              FailureAfter(FailureIn(parameterListSource, "The lists of the parameters differ in length."),
                           badParameters));
    EXPECT_EQ(Dump(), before);
}

TEST_F(OrvKvMainPanelSettersTest, InParameterModeColumnsAndSetsAreNotLookedAt) {
    MakeBuilt(parameterMode);
    Fill();
    const std::string before = Dump();
    ParameterLists lists = TwoParameters();
    lists.valueShown.RemovePosition(1);
    EXPECT_EQ(Observed([&](auto& ioPanel) { return SetParameterNames(ioPanel, lists); }), SuccessIn(source));
    EXPECT_EQ(Observed([&](auto& ioPanel) { return AddSet(ioPanel, "M6", lists); }), SuccessIn(source));
    EXPECT_EQ(Dump(), before);
}

TEST_F(OrvKvMainPanelSettersTest, InParameterSetModeColumnsFollowTheNamesAndTheirFlags) {
    MakeBuilt(setMode);
    const auto lists = ParameterLists::Of({{.name = "A"},
                                           {.name = "B", .valueShown = 0},
                                           {.name = "C", .toleranceShown = 0},
                                           {.name = "D", .valueEditable = 0, .toleranceEditable = 0}});
    EXPECT_EQ(Told([&](auto& ioPanel) { return SetParameterNames(ioPanel, lists); }), success);
    const auto& table = Part<CATDlgMultiList>("ParameterSetMul");
    Lines titles;
    for (int column = 1; column < table.GetColumnCount(); ++column) {
        CATUnicodeString title;
        table.GetColumnTitle(column, title);
        titles.emplace_back(title.ConvertToChar());
    }
    EXPECT_EQ(titles, Lines({"A", "A_Tol", "B_Tol", "C", "D", "D_Tol"}));
}

TEST_F(OrvKvMainPanelSettersTest, InParameterSetModeASetIsAddedAndTheCurrentOneIsShownUnderItsName) {
    FillSets();
    const auto others = ParameterLists::Of(
        {{.parameter = Length("D", 11, 0.3, 0), .name = "D"}, {.parameter = Length("T", 21), .name = "T"}});
    EXPECT_EQ(Told([&](auto& ioPanel) { return AddSet(ioPanel, "M10", others); }), success);
    ASSERT_EQ(RowsOf("ParameterSetMul").size(), 3U);
    EXPECT_EQ(RowsOf("ParameterSetMul").back(), Lines({"M10", "11mm", "0.3/0", "(21mm)"}));
    EXPECT_EQ(Told([&](auto& ioPanel) { return SetParameters(ioPanel, others); }), success);
    EXPECT_EQ(RowsOf("CurrentParameterMul"), Rows({{"M6", "11mm", "0.3/0", "(21mm)"}}));
    EXPECT_EQ(SelectedSet(), "M6");
}

TEST_F(OrvKvMainPanelSettersTest, InParameterSetModeFailuresOfTheTableAreReportedWithTheirMessages) {
    FillSets();
    const std::string before = Dump();
    ParameterLists lists = TwoParameters();
    ParameterLists without = ParameterLists::Of({{.name = "D"}, {.name = "T"}});
    lists.valueShown.RemovePosition(1);
    const std::vector<std::pair<std::function<long(OrvKvMainPanel&)>, const char*>> failing = {
        {[&](auto& ioPanel) { return SetParameterNames(ioPanel, lists); }, badNames},
        {[&](auto& ioPanel) { return AddSet(ioPanel, "M7", without); }, badNames},
        {[&](auto& ioPanel) { return SetParameters(ioPanel, without); }, badParameters}};
    for (const auto& [call, message] : failing) {
        const Report report = Told(call);
        EXPECT_EQ(report.result, "E_FAIL");
        EXPECT_EQ(report.source, source);
        ASSERT_GE(report.traces.size(), 2U) << message;
        EXPECT_EQ(TraceLines(report.traces.end() - 2, report.traces.end()), FailureWith(message).traces);
        EXPECT_NE(report.key, "") << "there is an error behind it";
        EXPECT_NE(report.parameters, Lines({"older"}));
        EXPECT_EQ(Dump(), before) << message;
    }
}

TEST_F(OrvKvMainPanelSettersTest, AFitIsShownBesideItsParameter) {
    MakeBuilt(parameterMode);
    EXPECT_EQ(SetParameters(Panel(), TwoParameters()), S_OK);
    EXPECT_EQ(Told([](auto& ioPanel) { return ioPanel.SetFittingInfo("D", "H7"); }), success);
    EXPECT_EQ(RowsOf("ParameterMul").front()[3], "H7");
    EXPECT_EQ(Told([](auto& ioPanel) { return ioPanel.SetFittingInfo("unknown", "H7"); }), success);
}

TEST_F(OrvKvMainPanelSettersTest, AFitInParameterSetModeIsNoFailure) {
    FillSets();
    const std::string before = Dump();
    EXPECT_EQ(Observed([](auto& ioPanel) { return ioPanel.SetFittingInfo("D", "H7"); }), SuccessIn(source));
    EXPECT_EQ(Dump(), before);
}

TEST_F(OrvKvMainPanelSettersTest, AnErrorRaisedWhileAFitIsShownIsReportedWithItsMessage) {
    MakeBuilt(parameterMode);
    EXPECT_EQ(SetParameters(Panel(), TwoParameters()), S_OK);
    host::FaultPoints::FailCall(1, "list cell");
    const Report report = Told([](auto& ioPanel) { return ioPanel.SetFittingInfo("D", "H7"); });
    host::FaultPoints::Stop();
    EXPECT_EQ(report, FailureAfter(CaughtIn(parameterListSource, "OrvKvParameterListSub::SetFittingInfo",
                                            "ListCell", "CATDialog"),
                                   badFitting));
}

TEST_F(OrvKvMainPanelSettersTest, EveryModeButOneTakesParametersAndNoSets) {
    for (const int mode : {2, 255}) {
        MakeBuilt(static_cast<unsigned char>(mode));
        const ParameterLists lists = TwoParameters();
        EXPECT_EQ(SetParameters(Panel(), lists), S_OK) << mode;
        EXPECT_EQ(RowsOf("ParameterMul").size(), 2U) << mode;
        const std::string before = Dump();
        EXPECT_EQ(SetParameterNames(Panel(), lists), S_OK) << mode;
        EXPECT_EQ(AddSet(Panel(), "M6", lists), S_OK) << mode;
        EXPECT_EQ(Dump(), before) << mode;
        EXPECT_EQ(Panel().SetParameterSetNames(TextsOf({"M6", "M8"}), 1), S_OK) << mode;
        EXPECT_EQ(SelectedSet(), "M8") << mode;
    }
    Command().Forget();
}

// Drawing and thread

TEST_F(OrvKvMainPanelSettersTest, ADrawingIsShown) {
    MakeBuilt();
    const CATPixelImage image(6, 4);
    EXPECT_EQ(Told([&](auto& ioPanel) { return ioPanel.SetFeatureDrawing(&image, "not shown"); }), success);
    EXPECT_EQ(host::ViewerInspector::PictureOf(Part<CATViewer>("Viewer")).width, 6);
}

TEST_F(OrvKvMainPanelSettersTest, ADrawingThatIsNoneLeavesTheOneBeforeAndIsNoFailure) {
    MakeBuilt();
    const CATPixelImage image(6, 4);
    EXPECT_EQ(Panel().SetFeatureDrawing(&image, ""), S_OK);
    const Report report = Told([](auto& ioPanel) { return ioPanel.SetFeatureDrawing(nullptr, ""); });
    EXPECT_EQ(report.result, "S_OK");
    EXPECT_EQ(report.source, source);
    EXPECT_EQ(host::ViewerInspector::PictureOf(Part<CATViewer>("Viewer")).width, 6);
}

TEST_F(OrvKvMainPanelSettersTest, TheThreadPageIsSwitchedOnAndOff) {
    MakeBuilt();
    const std::vector<std::pair<int, int>> pairs = {{0, 1}, {1, 0}, {0, 0}, {2, 0}};
    for (const auto& [active, second] : pairs) {
        Panel().SetThread(static_cast<unsigned char>(active), static_cast<unsigned char>(second));
        EXPECT_EQ(Part<CATDialog>("ThreadPge").GetSensitivity(), active == 0 ? CATDlgDisable : CATDlgEnable);
    }
}

TEST_F(OrvKvMainPanelSettersTest, EachArgumentForTheThreadReachesItsPlace) {
    MakeBuilt();
    const CATICkeParm_var internal = Length("DI", 6.8);
    const CATICkeParm_var diameter = Length("DA", 8);
    const CATICkeParm_var length = Length("L", 20);
    const CATICkeParm_var pitch = Length("P", 1.25);
    length->SetUserAccessMode(1);
    Panel().SetThreadPanelParameters(internal, diameter, length, pitch);
    EXPECT_EQ(internal->GetUserAccessMode(), 3);
    EXPECT_EQ(length->GetUserAccessMode(), 1) << "the length is the third of them";
    Panel().SetThreadTypes(TextsOf({"Metric", "UNC"}), 1, 1);
    EXPECT_EQ(LinesOf(Part<CATDlgCombo>("ThreadTypeCmb")), Lines({"No Standard", "Metric", "UNC"}));
    EXPECT_EQ(Part<CATDlgCombo>("ThreadTypeCmb").GetSelect(), 2);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"OrvKvThreadTypeNotification", "OrvKvThreadTakeNotification"}));
    Panel().RebuildThreadPanel(TextsOf({"Metric", "UNC", "G"}), 2, TextsOf({"G1/4", "G1/2"}), 1);
    EXPECT_EQ(Part<CATDlgCombo>("ThreadTypeCmb").GetSelect(), 3);
    EXPECT_EQ(LinesOf(Part<CATDlgCombo>("DiameterCmb")), Lines({"G1/4", "G1/2"}));
    EXPECT_EQ(Part<CATDlgCombo>("DiameterCmb").GetSelect(), 1);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    Panel().SetThreadDims(TextsOf({"G1", "G2", "G3"}), 2, 1);
    EXPECT_EQ(Part<CATDlgCombo>("DiameterCmb").GetSelect(), 2);
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvThreadDiameterNotification"}));
    Panel().SetThreadValues(NumbersOf({1.5}), NumbersOf({8.5}), NumbersOf({10.0}));
    EXPECT_STREQ(pitch->Show().ConvertToChar(), "1.5mm");
    EXPECT_STREQ(internal->Show().ConvertToChar(), "8.5mm");
    EXPECT_STREQ(diameter->Show().ConvertToChar(), "10mm");
    Panel().SetThreadDirection("LH");
    EXPECT_EQ(Part<CATDlgRadioButton>("LeftHandedRdb").GetState(), CATDlgCheck);
    Command().Forget();
}

TEST_F(OrvKvMainPanelSettersTest, WhatTheThreadPageAsksForCanBeGivenWhileThePanelIsBuilt) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        Make(mode);
        EarlyCommand early([&] {
            Panel().SetThreadTypes(TextsOf({"Metric", "UNC"}), 1, 0);
            Panel().SetThreadDirection("LH");
            Panel().SetThread(0, 1);
        });
        host::Application::SetActiveCommand(&early);
        Panel().Build();
        host::Application::SetActiveCommand(&Command());
        EXPECT_EQ(LinesOf(Part<CATDlgCombo>("ThreadTypeCmb")), Lines({"No Standard", "Metric", "UNC"}));
        EXPECT_EQ(Part<CATDlgCombo>("ThreadTypeCmb").GetSelect(), 2);
        EXPECT_EQ(Part<CATDlgRadioButton>("LeftHandedRdb").GetState(), CATDlgCheck);
        EXPECT_EQ(Part<CATDialog>("ThreadPge").GetSensitivity(), CATDlgDisable);
    }
}

TEST_F(OrvKvMainPanelSettersTest, AFailureOfTheThreadPageIsTracedThereAndGoesNoFurther) {
    MakeBuilt();
    const TraceLines traces = TracesOf([](auto& ioPanel) {
        ioPanel.SetThreadPanelParameters(CATICkeParm_var(), CATICkeParm_var(), CATICkeParm_var(),
                                         CATICkeParm_var());
    });
    EXPECT_EQ(traces.size(), 2U);
    EXPECT_EQ(traces.front().text, "Error in setting the thread parameteres panel.");
}

// Before Build

TEST_F(OrvKvMainPanelSettersTest, BeforeBuildTheSettersThatMissTheirPanelFailAndTheOthersSucceed) {
    const std::map<std::string, const char*> failures[] = {{{"SetGroups", noGroups},
                                                            {"SetFeatureTypes", noTypes},
                                                            {"SetParameterSetNames", noTypes},
                                                            {"UnselectParameterSet", noTypes},
                                                            {"SetParameters", badParameters}},
                                                           {{"SetGroups", noGroups},
                                                            {"SetFeatureTypes", noTypes},
                                                            {"SetParameterSetNames", noTypes},
                                                            {"UnselectParameterSet", noTypes},
                                                            {"SetParameterNames", badNames},
                                                            {"SetParameterSet", badNames},
                                                            {"SetParameters", badParameters}}};
    for (const unsigned char mode : {parameterMode, setMode}) {
        const OrvKvMainPanel& panel = Make(mode);
        for (const Setter& setter : AllSetters()) {
            const Report report = Told(setter.call);
            const auto failure = failures[mode].find(setter.name);
            if (failure != failures[mode].end())
                EXPECT_EQ(report, FailureWith(failure->second)) << setter.name;
            else
                EXPECT_EQ(report.result + std::to_string(report.traces.size()), "S_OK0") << setter.name;
        }
        EXPECT_EQ(Panel().GetSelectedParameterSetName(), CATUnicodeString());
        EXPECT_TRUE(host::Inspector::Children(panel).empty());
    }
    EXPECT_EQ(Command().TakeClasses().size(), 4U) << "the changes of state are reported all the same";
}

// After the dialog was closed

TEST_F(OrvKvMainPanelSettersTest, AClosedDialogTakesEverySetterUntilItGoesAndReportsNoChangeOfState) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        MakeBuilt(mode);
        OrvKvMainPanel& closed = Close();
        for (const Setter& setter : AllSetters())
            EXPECT_EQ(setter.call(closed), S_OK) << setter.name;
        for (const HeardNotification& heard : Command().Heard())
            EXPECT_NE(heard.sender, &closed);
        Command().Forget();
        RunIdle();
    }
}

// Faults

// Whatever the panel further down tells.
bool SucceedsAlways(const std::string& iSetter) {
    return iSetter == "SetFeatureDrawing" || iSetter == "SetGeometryText" || iSetter == "SetInputGeometryUI";
}

TEST_F(OrvKvMainPanelSettersTest, WhereAWidgetCannotBeMadeEverySetterSucceedsOrFailsAndNothingElseHappens) {
    for (const unsigned char mode : {parameterMode, setMode}) {
        Make(mode);
        host::FaultPoints::StartCounting();
        Panel().Build();
        const int widgets = host::FaultPoints::PassedByName()["widget allocation"];
        host::FaultPoints::Stop();
        ASSERT_GT(widgets, 50);
        for (int widget = 1; widget <= widgets; ++widget) {
            Make(mode);
            host::FaultPoints::FailCall(widget, "widget allocation");
            Panel().Build();
            host::FaultPoints::Stop();
            Panel().SetVisibility(CATDlgShow);
            for (int round = 0; round < 2; ++round) {
                for (const Setter& setter : AllSetters()) {
                    const long result = setter.call(Panel());
                    const bool mayFail = !SucceedsAlways(setter.name);
                    EXPECT_TRUE(result == S_OK || (result == E_FAIL && mayFail))
                        << widget << ": " << setter.name;
                }
                auto* const button = dynamic_cast<CATDlgPushButton*>(FindBelow(Panel(), "MoreLessButton"));
                EXPECT_TRUE(button == nullptr || host::DialogUser::Press(*button)) << widget;
            }
            Panel().Build();
        }
    }
    CATError::CATCleanLastError();
    Command().Forget();
}

TEST_F(OrvKvMainPanelSettersTest, WithoutTheFirstWidgetOfTheDialogEveryOtherIsThere) {
    Make();
    host::FaultPoints::FailCall(1, "widget allocation");
    Panel().Build();
    host::FaultPoints::Stop();
    EXPECT_EQ(FindBelow(Panel(), "GroupFrm"), nullptr);
    for (const char* name : {"ParameterMul", "ThreadPge", "MoreLessButton", "KelvaneRules"})
        EXPECT_NE(FindBelow(Panel(), name), nullptr) << name;
    const CATListValCATString keys = KeysOf({"Holes"});
    EXPECT_EQ(Told([&](auto& ioPanel) { return ioPanel.SetGroups(&keys, 1); }), FailureWith(noGroups));
    EXPECT_EQ(Told([&](auto& ioPanel) { return ioPanel.SetFeatureTypes(1, 1, &keys); }),
              FailureWith(noTypes));
}

} // namespace
