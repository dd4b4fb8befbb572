#include "OrvKvTabContainer.h"

#include "PanelTest.h"
#include "PlatformLists.h"

#include "CAT2DViewer.h"
#include "CATDlgDocument.h"
#include "CATDlgRadioButton.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "CATInternalError.h"
#include "CATNotification.h"
#include "CATPixelImage.h"
#include "OrvKvParameterSetSub.h"
#include "host/DialogObserver.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/MessageCatalogs.h"
#include "host/Parameters.h"
#include "host/ViewerInspector.h"

#include <functional>
#include <limits>
#include <utility>

namespace {

using namespace support;

const char source[] = "OrvKv9SubFrames.m/src/OrvKvTabContainer";

// How often a panel further down went through the platform's return-code builder is its own affair.
Report WithoutReturns(Report iReport) {
    iReport.returns = 0;
    return iReport;
}

// A failure that was traced with a message and carries the error of the command that raised it. iCatcher is
// the operation that caught it.
Report RaisedFailure(const std::string& iCatcher, const std::string& iMessage) {
    Report report = CaughtOfCommandIn(source, iCatcher);
    const Report own = FailureIn(source, iMessage);
    report.traces.insert(report.traces.end(), own.traces.begin(), own.traces.end());
    return WithoutReturns(report);
}

// One of the operations that are handed on to the thread panel.
struct ThreadCall {
    const char* message; // of its failure
    std::function<long(OrvKvTabContainer&)> run;
};

const std::vector<ThreadCall>& ThreadCalls() {
    static const std::vector<ThreadCall> calls = {
        {"Error in setting the thread type.",
         [](OrvKvTabContainer& ioPanel) { return ioPanel.SetThreadTypes(TextsOf({"Metric"}), 0, 0); }},
        {"Error in setting the thread dims.",
         [](OrvKvTabContainer& ioPanel) { return ioPanel.SetThreadDims(TextsOf({"M10"}), 0, 0); }},
        {"Error in setting the thread values.",
         [](OrvKvTabContainer& ioPanel) {
             return ioPanel.SetThreadValues(NumbersOf({1.5}), NumbersOf({8.5}), NumbersOf({10.0}));
         }},
        {"Error in setting the thread direction.",
         [](OrvKvTabContainer& ioPanel) { return ioPanel.SetThreadDirection("RH"); }},
        {"Error in setting the thread parameteres panel.",
         [](OrvKvTabContainer& ioPanel) {
             const auto length = [] { return host::Parameters::NewLength("P", 1.0); };
             return ioPanel.SetThreadPanelParameters(length(), length(), length(), length());
         }},
        {"Error in the thread panel regeneration.", [](OrvKvTabContainer& ioPanel) {
             return ioPanel.RebuildThreadPanel(TextsOf({"Metric"}), 0, TextsOf({"M10"}), 0);
         }}};
    return calls;
}

class OrvKvTabContainerTest : public PanelTest {
  protected:
    void TearDown() override {
        RunIdle(); // the thread panel replaces controls
        PanelTest::TearDown();
    }

    OrvKvTabContainer& Make(int iParameterSetMode = 0) {
        _panel = new OrvKvTabContainer(MainWindow(), iParameterSetMode);
        return *_panel;
    }
    OrvKvTabContainer& MakeBuilt(int iParameterSetMode = 0) {
        Make(iParameterSetMode).Build();
        Command().Forget();
        return *_panel;
    }
    // One with a standard thread, diameters and parameters.
    OrvKvTabContainer& MakeThreaded() {
        MakeBuilt();
        Bind();
        EXPECT_EQ(_panel->RebuildThreadPanel(TextsOf({"Metric", "UNC"}), 0, TextsOf({"M8", "M10"}), 0), S_OK);
        Command().Forget();
        return *_panel;
    }
    void Bind() {
        EXPECT_EQ(_panel->SetThreadPanelParameters(_internalDiameter, _diameter, _length, _pitch), S_OK);
    }

    static CATDlgTabContainer& Pages() { return Widget<CATDlgTabContainer>("TabContainer"); }
    static CATDlgTabPage& Page(const char* iName) { return Widget<CATDlgTabPage>(iName); }
    static CATViewer& Viewer() { return Widget<CATViewer>("Viewer"); }

    // The class of the only widget in a frame.
    static std::string FindControl(const char* iFrame) {
        const std::vector<CATDialog*> children = host::Inspector::Children(Widget<CATDialog>(iFrame));
        return children.size() == 1 ? children.front()->IsA() : std::to_string(children.size());
    }

    Report Observed(const std::function<long(OrvKvTabContainer&)>& iCall) {
        return WithoutReturns(Observe([&] { return iCall(*_panel); }));
    }

    OrvKvTabContainer* _panel = nullptr; // owned by the main window
    CATICkeParm_var _internalDiameter = host::Parameters::NewLength("DI", 6.8);
    CATICkeParm_var _diameter = host::Parameters::NewLength("D", 8.0);
    CATICkeParm_var _length = host::Parameters::NewLength("L", 20.0);
    CATICkeParm_var _pitch = host::Parameters::NewLength("P", 1.25);
};

const Report success = WithoutReturns(SuccessIn(source));

Report FailureWith(const char* iMessage) {
    return WithoutReturns(FailureIn(source, iMessage));
}

TEST_F(OrvKvTabContainerTest, IsAPlainFrameAndEmptyBeforeItIsBuilt) {
    Make();
    EXPECT_STREQ(_panel->GetName().ConvertToChar(), "TabContainerSub");
    EXPECT_EQ(host::Inspector::Style(*_panel), 0x80000UL);
    EXPECT_EQ(host::Inspector::Parent(*_panel), MainWindow());
    EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
    EXPECT_EQ(_panel->GetCreatePSPB(), nullptr);
    EXPECT_EQ(_panel->GetDeletePSPB(), nullptr);
    EXPECT_EQ(_panel->GetRenamePSPB(), nullptr);
}

TEST_F(OrvKvTabContainerTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    Make();
    for (const int level : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_STREQ(_panel->GetResourceFilename(level), "OrvKvTabContainer") << level;
    for (const int level : {1, 2, std::numeric_limits<int>::max()})
        EXPECT_EQ(_panel->GetResourceFilename(level), nullptr) << level;
}

TEST_F(OrvKvTabContainerTest, BuildMakesATabContainerWithThreePages) {
    MakeBuilt();
    EXPECT_EQ(PiecesOf(*_panel), Pieces({{"CATDlgTabContainer", "TabContainer", 0, "", ""}}));
    EXPECT_EQ(PiecesOf(Pages()), Pieces({{"CATDlgTabPage", "SketchPge", 0, "", ""},
                                         {"CATDlgTabPage", "ParameterSetEditorPge", 0, "", ""},
                                         {"CATDlgTabPage", "ThreadPge", 0, "", ""}}));
    for (const CATDialog* page : host::Inspector::Children(Pages())) {
        EXPECT_EQ(page->GetVisibility(), CATDlgShow) << page->GetName().ConvertToChar();
        EXPECT_EQ(page->GetSensitivity(), CATDlgEnable) << page->GetName().ConvertToChar();
    }
}

TEST_F(OrvKvTabContainerTest, EachPageIsFilledByItsPanelWhichIsShownAndBuilt) {
    MakeBuilt();
    const std::vector<std::pair<const char*, const char*>> panels = {
        {"SketchPge", "OrvKvSketchSub"},
        {"ParameterSetEditorPge", "OrvKvParameterSetSub"},
        {"ThreadPge", "ThreadSub"}};
    for (const auto& [page, panel] : panels) {
        EXPECT_EQ(PiecesOf(Page(page)), Pieces({{"CATDlgFrame", panel, 0x80000, "0(1)-1(4)", "0(1)-1(4)"}}));
        EXPECT_EQ(Widget<CATDialog>(panel).GetVisibility(), CATDlgShow) << panel;
        EXPECT_FALSE(host::Inspector::Children(Widget<CATDialog>(panel)).empty()) << panel;
    }
}

TEST_F(OrvKvTabContainerTest, ThePagesHaveTitlesInEveryLanguage) {
    const std::vector<std::pair<const char*, Lines>> titles = {
        {"", {"Drawing", "Parameter Set", "Thread"}},
        {"German", {"Zeichnung", "Parametersatz", "Gewinde"}},
        {"French", {"Dessin", "Jeu de paramètres", "Filetage"}},
        {"Japanese", {"図面", "パラメーターセット", "ねじ"}}};
    MakeBuilt();
    for (const auto& [language, expected] : titles) {
        host::MessageCatalogs::SetLanguage(language);
        Lines shown;
        for (const CATDialog* page : host::Inspector::Children(Pages()))
            shown.emplace_back(page->GetTitle().ConvertToChar());
        EXPECT_EQ(shown, expected) << language;
    }
    host::MessageCatalogs::SetLanguage("");
}

TEST_F(OrvKvTabContainerTest, ASecondBuildMakesNothing) {
    MakeBuilt();
    const CATDlgPushButton* const button = _panel->GetCreatePSPB();
    _panel->Build();
    EXPECT_EQ(host::Inspector::Children(*_panel).size(), 1U);
    EXPECT_EQ(host::Inspector::Children(Pages()).size(), 3U);
    EXPECT_EQ(_panel->GetCreatePSPB(), button);
    EXPECT_EQ(Command().TakeClasses(), Classes()) << "the thread panel asks for its data once";
}

TEST_F(OrvKvTabContainerTest, TheThreadPanelAsksForItsDataWhenItIsBuiltAndCanBeFilledThenAlready) {
    // Answers the question of the thread panel at once, as a command does.
    class AnsweringCommand : public CATCommand {
      public:
        AnsweringCommand() : CATCommand(nullptr, "AnsweringCommand") {}
        CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification* iNotification) override {
            asked.emplace_back(iNotification->IsA());
            result = panel->SetThreadTypes(TextsOf({"Metric"}), 0, 0);
            return CATNotifDontTransmitToFather;
        }
        OrvKvTabContainer* panel = nullptr;
        Classes asked;
        long result = E_FAIL;
    };
    AnsweringCommand command;
    host::Application::SetActiveCommand(&command);
    command.panel = &Make();
    _panel->Build();
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(command.asked, Classes({"OrvKvThreadInitNotification"}));
    EXPECT_EQ(command.result, S_OK);
    EXPECT_EQ(LinesOf(Combo("ThreadTypeCmb")), Lines({"No Standard", "Metric"}));
}

TEST_F(OrvKvTabContainerTest, WhatThePagesReportComesFromTheirOwnPanels) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::ShowPage(Page("ParameterSetEditorPge")));
    Command().Forget();
    ASSERT_TRUE(host::DialogUser::Press(*_panel->GetCreatePSPB()));
    ASSERT_EQ(Command().Heard().size(), 1U);
    EXPECT_EQ(Command().Heard().front().sender, &Widget<OrvKvParameterSetSub>("OrvKvParameterSetSub"));
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvNewParameterSetNotification"}));
}

TEST_F(OrvKvTabContainerTest, TheParameterSetModeReachesTheParameterSetEditorUnchanged) {
    for (const int mode : {0, 1, -5}) {
        MakeBuilt(mode);
        ASSERT_TRUE(host::DialogUser::ShowPage(Page("ParameterSetEditorPge")));
        Command().Forget();
        ASSERT_TRUE(host::DialogUser::Press(*_panel->GetDeletePSPB()));
        EXPECT_EQ(Command().TakeClasses(), Classes({mode == 0 ? "OrvKvDeleteParameterSetNotification"
                                                              : "CATDlgPushBActivateNotification"}))
            << mode;
        delete _panel;
    }
}

TEST_F(OrvKvTabContainerTest, GivesItsOwnerTheButtonsOfTheParameterSetEditor) {
    MakeBuilt();
    auto& editor = Widget<OrvKvParameterSetSub>("OrvKvParameterSetSub");
    ASSERT_NE(editor.GetCreatePSPB(), nullptr);
    EXPECT_EQ(_panel->GetCreatePSPB(), editor.GetCreatePSPB());
    EXPECT_EQ(_panel->GetDeletePSPB(), editor.GetDeletePSPB());
    EXPECT_EQ(_panel->GetRenamePSPB(), editor.GetRenamePSPB());
    _panel->GetRenamePSPB()->SetSensitivity(CATDlgDisable);
    ASSERT_TRUE(host::DialogUser::ShowPage(Page("ParameterSetEditorPge")));
    EXPECT_FALSE(host::DialogUser::Press(Button("RenameParameterSetPbt")));
    EXPECT_TRUE(host::DialogUser::Press(Button("DeleteParameterSetPbt")));
}

TEST_F(OrvKvTabContainerTest, TheChoiceOfThePageIsLeftToTheUser) {
    MakeThreaded();
    EXPECT_EQ(Pages().GetSelectedPage(), 0);
    ASSERT_TRUE(host::DialogUser::ShowPage(Page("ThreadPge")));
    const CATPixelImage image(4, 3);
    EXPECT_EQ(_panel->SetFeatureDrawing(&image, ""), S_OK);
    EXPECT_EQ(_panel->SetThread(0, 0), S_OK);
    EXPECT_EQ(_panel->SetThread(1, 0), S_OK);
    EXPECT_EQ(Pages().GetSelectedPage(), 2);
    EXPECT_EQ(_panel->SetFeatureDrawing(nullptr, ""), S_OK);
    CATError::CATCleanLastError();
}

TEST_F(OrvKvTabContainerTest, ADrawingIsShownOnTheFirstPage) {
    MakeBuilt();
    const CATPixelImage image(6, 4);
    EXPECT_EQ(Observed([&](auto& ioPanel) { return ioPanel.SetFeatureDrawing(&image, "not shown"); }),
              success);
    const host::Picture picture = host::ViewerInspector::PictureOf(Viewer());
    EXPECT_EQ(picture.width, 6);
    EXPECT_EQ(picture.height, 4);
}

TEST_F(OrvKvTabContainerTest, ADrawingThatIsNoneIsReportedByItsPanelAndSucceedsHere) {
    MakeBuilt();
    const CATPixelImage image(6, 4);
    EXPECT_EQ(_panel->SetFeatureDrawing(&image, ""), S_OK);
    const Report report = Observed([](auto& ioPanel) { return ioPanel.SetFeatureDrawing(nullptr, ""); });
    EXPECT_EQ(report.result, "S_OK");
    EXPECT_EQ(report.source, source);
    ASSERT_EQ(report.traces.size(), 2U);
    EXPECT_EQ(report.traces.front().text, "Invalid input data ipImage");
    EXPECT_EQ(host::ViewerInspector::PictureOf(Viewer()).width, 6) << "the drawing before it stays";
}

TEST_F(OrvKvTabContainerTest, TheThreadPageIsGreyForZeroAndUsableForEveryOtherNumber) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::ShowPage(Page("ThreadPge")));
    for (const int second : {0, 1, 255}) {
        const auto flag = static_cast<unsigned char>(second);
        for (const int active : {1, 0, 2, 0, 255}) {
            EXPECT_EQ(Observed([&](auto& ioPanel) {
                          return ioPanel.SetThread(static_cast<unsigned char>(active), flag);
                      }),
                      success);
            EXPECT_EQ(Page("ThreadPge").GetSensitivity(), active == 0 ? CATDlgDisable : CATDlgEnable)
                << active << ", " << second;
            EXPECT_EQ(host::DialogUser::CanUse(Combo("ThreadTypeCmb")).done, active != 0);
            EXPECT_EQ(Page("SketchPge").GetSensitivity(), CATDlgEnable);
            EXPECT_EQ(Page("ParameterSetEditorPge").GetSensitivity(), CATDlgEnable);
        }
    }
}

// Raises when a widget changes.
class RaisingObserver : public host::DialogObserver {
  public:
    explicit RaisingObserver(CATBaseUnknown* iRaised) : _raised(iRaised) { Add(*this); }
    ~RaisingObserver() override { Remove(*this); }

    void OnChanges(const host::DialogChanges&) override {}
    void OnIdleNeeded() override { throw _raised; }

  private:
    CATBaseUnknown* _raised; // the catcher owns it
};

TEST_F(OrvKvTabContainerTest, AnErrorRaisedWhileThePageIsSwitchedBecomesTheFailingResult) {
    MakeBuilt();
    Report report;
    {
        const RaisingObserver raising(new CATInternalError("Error_InPage", "PageCatalog"));
        report = Observe([&] { return _panel->SetThread(0, 0); });
    }
    EXPECT_EQ(report, CaughtIn(source, "OrvKvTabContainer::SetThread", "Error_InPage", "PageCatalog"));
    EXPECT_EQ(Observed([](auto& ioPanel) { return ioPanel.SetThread(1, 0); }), success);
}

TEST_F(OrvKvTabContainerTest, WhatIsRaisedWhileThePageIsSwitchedAndIsNoErrorPassesThrough) {
    MakeBuilt();
    auto* const object = new CATNotification();
    CATBaseUnknown* caught = nullptr;
    {
        const RaisingObserver raising(object);
        try {
            static_cast<void>(_panel->SetThread(0, 0));
        } catch (CATBaseUnknown* iRaised) {
            caught = iRaised;
        }
    }
    EXPECT_EQ(caught, object);
    object->Release();
    EXPECT_EQ(Traces().Take(), TraceLines());
}

TEST_F(OrvKvTabContainerTest, EveryCallForTheThreadSucceedsWhereTheThreadPanelDoes) {
    MakeThreaded();
    for (const ThreadCall& call : ThreadCalls())
        EXPECT_EQ(Observed(call.run), success) << call.message;
}

TEST_F(OrvKvTabContainerTest, ThreadTypesReachTheThreadPageWithSelectionAndNotification) {
    MakeBuilt();
    for (const int notify : {0, 1}) {
        EXPECT_EQ(
            _panel->SetThreadTypes(TextsOf({"Metric", "UNC"}), notify, static_cast<unsigned char>(notify)),
            S_OK);
        EXPECT_EQ(LinesOf(Combo("ThreadTypeCmb")), Lines({"No Standard", "Metric", "UNC"}));
        EXPECT_EQ(Combo("ThreadTypeCmb").GetSelect(), notify + 1);
        EXPECT_EQ(Command().TakeClasses(),
                  notify == 0 ? Classes() : Classes({"OrvKvThreadTypeNotification"}));
    }
}

TEST_F(OrvKvTabContainerTest, ThreadDiametersReachTheThreadPageWithSelectionAndNotification) {
    MakeThreaded();
    for (const int notify : {0, 1}) {
        EXPECT_EQ(_panel->SetThreadDims(TextsOf({"M5", "M6"}), notify, static_cast<unsigned char>(notify)),
                  S_OK);
        EXPECT_EQ(LinesOf(Combo("DiameterCmb")), Lines({"M5", "M6"}));
        EXPECT_EQ(Combo("DiameterCmb").GetSelect(), notify);
        EXPECT_EQ(Command().TakeClasses(),
                  notify == 0 ? Classes() : Classes({"OrvKvThreadDiameterNotification"}));
    }
}

TEST_F(OrvKvTabContainerTest, EachThreadValueReachesItsParameter) {
    MakeThreaded();
    EXPECT_EQ(_panel->SetThreadValues(NumbersOf({1.5}), NumbersOf({8.5}), NumbersOf({10.0})), S_OK);
    EXPECT_STREQ(_pitch->Show().ConvertToChar(), "1.5mm");
    EXPECT_STREQ(_internalDiameter->Show().ConvertToChar(), "8.5mm");
    EXPECT_STREQ(_diameter->Show().ConvertToChar(), "10mm");
    EXPECT_STREQ(_length->Show().ConvertToChar(), "20mm");
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvThreadTakeNotification"}));
}

TEST_F(OrvKvTabContainerTest, TheDirectionReachesTheThreadPage) {
    MakeBuilt();
    EXPECT_EQ(_panel->SetThreadDirection("LH"), S_OK);
    EXPECT_EQ(Widget<CATDlgRadioButton>("LeftHandedRdb").GetState(), CATDlgCheck);
    EXPECT_EQ(_panel->SetThreadDirection("Right_Threaded"), S_OK);
    EXPECT_EQ(Widget<CATDlgRadioButton>("LeftHandedRdb").GetState(), CATDlgUncheck);
    EXPECT_EQ(Widget<CATDlgRadioButton>("RightHandedRdb").GetState(), CATDlgCheck);
}

TEST_F(OrvKvTabContainerTest, TheParametersReachTheThreadPageInTheirOrder) {
    MakeBuilt();
    for (const CATICkeParm_var& parameter : {_internalDiameter, _diameter, _length, _pitch})
        parameter->SetUserAccessMode(1);
    Bind();
    for (const CATICkeParm_var& parameter : {_internalDiameter, _diameter, _pitch})
        EXPECT_EQ(parameter->GetUserAccessMode(), 3) << parameter->Name().ConvertToChar();
    EXPECT_EQ(_length->GetUserAccessMode(), 1) << "the length is the third of them";
    EXPECT_EQ(_panel->SetThreadValues(NumbersOf({1.0}), NumbersOf({2.0}), NumbersOf({3.0})), S_OK);
    EXPECT_STREQ(_pitch->Show().ConvertToChar(), "1mm");
    EXPECT_STREQ(_internalDiameter->Show().ConvertToChar(), "2mm");
    EXPECT_STREQ(_diameter->Show().ConvertToChar(), "3mm");
}

TEST_F(OrvKvTabContainerTest, TheThreadPageIsRebuiltWithTypesAndDiameters) {
    MakeBuilt();
    Bind();
    EXPECT_EQ(_panel->RebuildThreadPanel(TextsOf({"Metric", "UNC"}), 1, TextsOf({"1/4", "3/8"}), 1), S_OK);
    EXPECT_EQ(LinesOf(Combo("ThreadTypeCmb")), Lines({"No Standard", "Metric", "UNC"}));
    EXPECT_EQ(Combo("ThreadTypeCmb").GetSelect(), 2);
    EXPECT_EQ(LinesOf(Combo("DiameterCmb")), Lines({"1/4", "3/8"}));
    EXPECT_EQ(Combo("DiameterCmb").GetSelect(), 1);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvTabContainerTest, BeforeBuildEveryCallFailsWithAMessageAndChangesNothing) {
    Make();
    for (const ThreadCall& call : ThreadCalls())
        EXPECT_EQ(Observed(call.run), FailureWith(call.message));
    EXPECT_EQ(Observed([](auto& ioPanel) { return ioPanel.SetThread(1, 0); }),
              FailureWith("Invalid data member _pThreadPage "));
    const CATPixelImage image(2, 2);
    EXPECT_EQ(Observed([&](auto& ioPanel) { return ioPanel.SetFeatureDrawing(&image, ""); }),
              FailureWith("Invalid data member _pSketchSub "));
    EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
    _panel->Build();
    Bind();
    EXPECT_EQ(Observed(ThreadCalls().front().run), success);
}

TEST_F(OrvKvTabContainerTest, AFailureOfTheThreadPanelIsReportedWithAMessageAndKeepsTheErrorOfThePanel) {
    MakeThreaded();
    const std::vector<std::pair<ThreadCall, const char*>> failing = {
        {{ThreadCalls()[0].message,
          [](auto& ioPanel) { return ioPanel.SetThreadTypes(TextsOf({"Whitworth"}), 0, 1); }},
         "OrvKvThreadSub::SetThreadTypes"},
        {{ThreadCalls()[1].message,
          [](auto& ioPanel) { return ioPanel.SetThreadDims(TextsOf({"M20"}), 0, 1); }},
         "OrvKvThreadSub::SetThreadDims"},
        {ThreadCalls()[3], "OrvKvThreadSub::SetThreadDirection"}};
    for (const auto& [call, catcher] : failing) {
        RaisingCommand raising;
        host::Application::SetActiveCommand(&raising);
        const Report report = Observed(call.run);
        host::Application::SetActiveCommand(&Command());
        EXPECT_EQ(report, RaisedFailure(catcher, call.message));
    }
}

TEST_F(OrvKvTabContainerTest, AnErrorThatIsRaisedBelowIsAFailureLikeAnyOther) {
    MakeThreaded();
    RaisingCommand raising;
    host::Application::SetActiveCommand(&raising);
    const Report report = Observed(ThreadCalls()[2].run);
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(report,
              RaisedFailure("OrvKvTabContainer::SetThreadValues", "Error in setting the thread values."));
    EXPECT_STREQ(_pitch->Show().ConvertToChar(), "1.5mm") << "the values were written before it was raised";
}

// What an operation tells that has met a null handle.
Report NullHandleFailure(const char* iOperation, const char* iMessage) {
    Report report = CaughtIn(source, iOperation, "NullHandle", "CATSystem", {"CATICkeParamFrame"});
    const Report own = FailureIn(source, iMessage);
    report.traces.insert(report.traces.end(), own.traces.begin(), own.traces.end());
    return WithoutReturns(report);
}

TEST_F(OrvKvTabContainerTest, ANullPitchIsTheFailureOfItsRow) {
    MakeBuilt();
    const Report report = Observed([&](auto& ioPanel) {
        return ioPanel.SetThreadPanelParameters(_internalDiameter, _diameter, _length, CATICkeParm_var());
    });
    EXPECT_EQ(report, NullHandleFailure("OrvKvTabContainer::SetThreadPanelParameters",
                                        "Error in setting the thread parameteres panel."));
}

TEST_F(OrvKvTabContainerTest, AThreadWithoutStandardAndDiameterParameterIsTheFailureOfItsRow) {
    MakeBuilt();
    const Report report = Observed(
        [](auto& ioPanel) { return ioPanel.RebuildThreadPanel(TextsOf({"Metric"}), -1, TextsOf({}), -1); });
    EXPECT_EQ(report, NullHandleFailure("OrvKvTabContainer::RebuildThreadPanel",
                                        "Error in the thread panel regeneration."));
}

TEST_F(OrvKvTabContainerTest, AFailureWithoutErrorIsReportedWithAnErrorOfItsOwn) {
    MakeBuilt();
    const CATICkeParm_var none;
    const std::vector<std::vector<CATICkeParm_var>> incomplete = {
        {none, _diameter, _length, _pitch},
        {_internalDiameter, none, _length, _pitch},
        {_internalDiameter, _diameter, none, _pitch}};
    for (const auto& given : incomplete)
        EXPECT_EQ(Observed([&](auto& ioPanel) {
                      return ioPanel.SetThreadPanelParameters(given[0], given[1], given[2], given[3]);
                  }),
                  FailureWith("Error in setting the thread parameteres panel."));
    EXPECT_EQ(FindControl("PitchFrm"), "CATDlgSpinner") << "nothing was bound";
    Bind();
    EXPECT_EQ(FindControl("PitchFrm"), "ParameterFrame");
}

TEST_F(OrvKvTabContainerTest, ACopySharesTheWidgetsAndItsEndLeavesThemAlone) {
    MakeThreaded();
    {
        OrvKvTabContainer copy(*_panel);
        EXPECT_EQ(copy.GetCreatePSPB(), _panel->GetCreatePSPB());
        EXPECT_EQ(copy.SetThread(0, 0), S_OK);
        EXPECT_EQ(Page("ThreadPge").GetSensitivity(), CATDlgDisable);
        EXPECT_EQ(copy.SetThreadTypes(TextsOf({"G"}), 0, 0), S_OK);
        EXPECT_EQ(LinesOf(Combo("ThreadTypeCmb")), Lines({"No Standard", "G"}));
        OrvKvTabContainer assigned(MainWindow(), 1);
        assigned = copy;
        EXPECT_EQ(assigned.GetRenamePSPB(), _panel->GetRenamePSPB());
        EXPECT_EQ(assigned.SetThread(1, 0), S_OK);
        EXPECT_EQ(Page("ThreadPge").GetSensitivity(), CATDlgEnable);
    }
    EXPECT_EQ(host::Inspector::Children(*_panel).size(), 1U);
    EXPECT_EQ(_panel->SetThread(0, 0), S_OK);
}

TEST_F(OrvKvTabContainerTest, WhereAWidgetCannotBeMadeEveryCallSucceedsOrFailsAndNothingElseHappens) {
    host::FaultPoints::StartCounting();
    MakeBuilt();
    const int calls = host::FaultPoints::PassedByName()["widget allocation"];
    host::FaultPoints::Stop();
    delete _panel;
    ASSERT_GT(calls, 20);
    const CATPixelImage image(2, 2);
    for (int call = 1; call <= calls; ++call) {
        Make();
        host::FaultPoints::FailCall(call, "widget allocation");
        _panel->Build();
        host::FaultPoints::Stop();
        for (const ThreadCall& each : ThreadCalls()) {
            const long result = each.run(*_panel);
            EXPECT_TRUE(result == S_OK || result == E_FAIL) << call << ": " << each.message;
        }
        static_cast<void>(_panel->SetFeatureDrawing(&image, ""));
        static_cast<void>(_panel->SetThread(1, 0));
        static_cast<void>(_panel->GetCreatePSPB());
        _panel->Build();
        delete _panel;
    }
    CATError::CATCleanLastError();
    RunIdle();
}

} // namespace
