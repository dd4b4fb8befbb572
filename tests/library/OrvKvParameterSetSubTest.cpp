#include "OrvKvParameterSetSub.h"

#include "PanelTest.h"
#include "support/GoldenFolder.h"

#include "CATDlgDocument.h"
#include "OrvKvNewParameterSetNotification.h"
#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/LayoutPlan.h"
#include "host/MessageCatalogs.h"

#include <limits>

namespace {

using namespace support;

const char newSet[] = "OrvKvNewParameterSetNotification";
const char renamedSet[] = "OrvKvParmSetRenameNotif";
const char deletedSet[] = "OrvKvDeleteParameterSetNotification";

constexpr int widgets = 6;
constexpr int frame = 3; // the widget that holds the buttons

class OrvKvParameterSetSubTest : public PanelTest {
  protected:
    OrvKvParameterSetSub& Make(int iReadOnly = 0) {
        _panel = new OrvKvParameterSetSub(MainWindow(), iReadOnly);
        return *_panel;
    }
    OrvKvParameterSetSub& MakeBuilt(int iReadOnly = 0) {
        Make(iReadOnly).Build();
        return *_panel;
    }
    // The three buttons as the panel gives them, in the order of their places.
    static std::vector<CATDlgPushButton*> ButtonsOf(OrvKvParameterSetSub& ioPanel) {
        return {ioPanel.GetCreatePSPB(), ioPanel.GetRenamePSPB(), ioPanel.GetDeletePSPB()};
    }
    static void PressAll(OrvKvParameterSetSub& ioPanel) {
        for (CATDlgPushButton* button : ButtonsOf(ioPanel))
            EXPECT_TRUE(button == nullptr || host::DialogUser::Press(*button));
    }

    OrvKvParameterSetSub* _panel = nullptr; // owned by the main window
};

TEST_F(OrvKvParameterSetSubTest, IsAPlainFrameNamedAfterItsClassAndEmptyBeforeItIsBuilt) {
    Make();
    EXPECT_STREQ(_panel->GetName().ConvertToChar(), "OrvKvParameterSetSub");
    EXPECT_EQ(host::Inspector::Style(*_panel), 0x80000UL);
    EXPECT_EQ(host::Inspector::Parent(*_panel), MainWindow());
    EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
    EXPECT_EQ(ButtonsOf(*_panel), std::vector<CATDlgPushButton*>(3, nullptr));
}

TEST_F(OrvKvParameterSetSubTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    Make();
    for (const int level : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_STREQ(_panel->GetResourceFilename(level), "OrvKvParameterSetSub") << level;
    for (const int level : {1, 2, std::numeric_limits<int>::max()})
        EXPECT_EQ(_panel->GetResourceFilename(level), nullptr) << level;
}

TEST_F(OrvKvParameterSetSubTest, BuildMakesLabelEditorAndAFrameWithThreeButtonsSideBySide) {
    MakeBuilt();
    EXPECT_EQ(PiecesOf(*_panel),
              Pieces({{"CATDlgLabel", "ParameterSetNameDescriptionLab", 0x100000, "0(1)-1(4)", ""},
                      {"CATDlgEditor", "ParameterSetNameEdt", 0x2000000, "0(1)-1(4)", ""},
                      {"CATDlgFrame", "ButtonFrm", 0x80000, "0(1)-1(4)", ""}}));
    const auto& buttons = Widget<CATDlgFrame>("ButtonFrm");
    EXPECT_EQ(PiecesOf(buttons), Pieces({{"CATDlgPushButton", "NewParameterSetPbt", 0, "0(1)-1(4)", ""},
                                         {"CATDlgPushButton", "RenameParameterSetPbt", 0, "2(1)-3(4)", ""},
                                         {"CATDlgPushButton", "DeleteParameterSetPbt", 0, "4(1)-5(4)", ""}}));
    const host::LayoutPlan plan = host::PlanLayout(buttons);
    EXPECT_TRUE(plan.IsLeftOf(*_panel->GetCreatePSPB(), *_panel->GetRenamePSPB()));
    EXPECT_TRUE(plan.IsLeftOf(*_panel->GetRenamePSPB(), *_panel->GetDeletePSPB()));
    EXPECT_TRUE(
        MatchesGolden("ParameterSetSub-built", host::DialogDump::Of(*_panel, host::DialogDump::WithLayout)));
}

TEST_F(OrvKvParameterSetSubTest, OnlyTheThreeButtonsShowWhetherThePanelIsReadOnlyOrNot) {
    for (const int readOnly : {0, 1}) {
        MakeBuilt(readOnly);
        EXPECT_FALSE(host::DialogUser::CanSee(Widget<CATDialog>("ParameterSetNameDescriptionLab")));
        EXPECT_FALSE(host::DialogUser::CanSee(Editor("ParameterSetNameEdt")));
        for (const CATDlgPushButton* button : ButtonsOf(*_panel)) {
            EXPECT_TRUE(host::DialogUser::CanSee(*button)) << readOnly;
            EXPECT_EQ(button->GetSensitivity(), CATDlgEnable) << readOnly;
        }
        delete _panel;
    }
}

TEST_F(OrvKvParameterSetSubTest, GivesItsOwnerTheThreeButtons) {
    MakeBuilt();
    EXPECT_EQ(_panel->GetCreatePSPB(), &Button("NewParameterSetPbt"));
    EXPECT_EQ(_panel->GetRenamePSPB(), &Button("RenameParameterSetPbt"));
    EXPECT_EQ(_panel->GetDeletePSPB(), &Button("DeleteParameterSetPbt"));
}

TEST_F(OrvKvParameterSetSubTest, ASecondBuildMakesNothing) {
    for (const int readOnly : {0, 1}) {
        MakeBuilt(readOnly);
        const std::vector<CATDlgPushButton*> before = ButtonsOf(*_panel);
        _panel->Build();
        EXPECT_EQ(host::Inspector::Children(*_panel).size(), 3U);
        EXPECT_EQ(host::Inspector::Children(Widget<CATDialog>("ButtonFrm")).size(), 3U);
        EXPECT_EQ(ButtonsOf(*_panel), before);
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), readOnly == 0 ? 3 : 0);
        delete _panel;
    }
}

TEST_F(OrvKvParameterSetSubTest, EachClickSendsOneNotificationOfItsKindFromThePanel) {
    MakeBuilt();
    const std::vector<std::pair<CATDlgPushButton*, const char*>> clicks = {
        {_panel->GetDeletePSPB(), deletedSet},
        {_panel->GetCreatePSPB(), newSet},
        {_panel->GetRenamePSPB(), renamedSet},
        {_panel->GetCreatePSPB(), newSet}};
    for (const auto& [button, expected] : clicks) {
        ASSERT_TRUE(host::DialogUser::Press(*button));
        ASSERT_EQ(Command().Heard().size(), 1U) << expected;
        EXPECT_EQ(Command().Heard().front().sender, _panel);
        EXPECT_EQ(Command().TakeClasses(), Classes({expected}));
    }
}

TEST_F(OrvKvParameterSetSubTest, NotificationsGoToTheFatherAndNotThroughThePanelItself) {
    auto* const panel = new ListeningPanel<OrvKvParameterSetSub>(MainWindow(), 0);
    panel->Build();
    PressAll(*panel);
    EXPECT_EQ(Command().TakeClasses(), Classes({newSet, renamedSet, deletedSet}));
    EXPECT_EQ(panel->Count(), 0);
    panel->GetCreatePSPB()->SendNotification(panel, new OrvKvNewParameterSetNotification());
    EXPECT_EQ(panel->Count(), 1) << "one that is sent to the panel is counted";
}

TEST_F(OrvKvParameterSetSubTest, NotificationsClimbThroughAFrameToTheCommand) {
    auto* const page = new CATDlgFrame(MainWindow(), "Page");
    _panel = new OrvKvParameterSetSub(page, 0);
    _panel->Build();
    PressAll(*_panel);
    EXPECT_EQ(Command().TakeClasses(), Classes({newSet, renamedSet, deletedSet}));
}

TEST_F(OrvKvParameterSetSubTest, ButtonsOfAReadOnlyPanelCanBeClickedAndReportNothing) {
    for (const int readOnly : {1, 2, -1, std::numeric_limits<int>::min(), 256}) {
        MakeBuilt(readOnly);
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 0) << readOnly;
        PressAll(*_panel);
        // Nobody answers the buttons' own events; they reach the command as they are.
        EXPECT_EQ(Command().TakeClasses(), Classes(3, "CATDlgPushBActivateNotification")) << readOnly;
        delete _panel;
    }
    MakeBuilt(0);
    PressAll(*_panel);
    EXPECT_EQ(Command().TakeClasses(), Classes({newSet, renamedSet, deletedSet}));
}

TEST_F(OrvKvParameterSetSubTest, ButtonsThatTheOwnerDisablesCannotBePressed) {
    MakeBuilt();
    for (CATDlgPushButton* button : ButtonsOf(*_panel)) {
        button->SetSensitivity(CATDlgDisable);
        EXPECT_FALSE(host::DialogUser::Press(*button));
        EXPECT_EQ(Command().TakeClasses(), Classes());
        button->SetSensitivity(CATDlgEnable);
        EXPECT_TRUE(host::DialogUser::Press(*button));
        EXPECT_EQ(Command().TakeClasses().size(), 1U);
    }
}

TEST_F(OrvKvParameterSetSubTest, TheHiddenEditorCannotBeUsedAndHasNoCallback) {
    MakeBuilt();
    CATDlgEditor& editor = Editor("ParameterSetNameEdt");
    EXPECT_FALSE(host::DialogUser::Type(editor, "M6"));
    editor.SetVisibility(CATDlgShow);
    EXPECT_TRUE(host::DialogUser::Type(editor, "M6"));
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgEditModifyNotification"}));
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 3);
}

TEST_F(OrvKvParameterSetSubTest, WithoutMemoryForANotificationNothingIsSentAndThePanelGoesOn) {
    MakeBuilt();
    for (CATDlgPushButton* button : ButtonsOf(*_panel)) {
        host::FaultPoints::FailCall(1, "notification allocation");
        ASSERT_TRUE(host::DialogUser::Press(*button));
        host::FaultPoints::Stop();
        EXPECT_EQ(Command().TakeClasses(), Classes());
        ASSERT_TRUE(host::DialogUser::Press(*button));
        EXPECT_EQ(Command().TakeClasses().size(), 1U);
    }
}

TEST_F(OrvKvParameterSetSubTest, AWidgetThatCannotBeMadeIsMissingAloneWithWhatItHolds) {
    for (int missing = 1; missing <= widgets; ++missing) {
        Make();
        host::FaultPoints::FailCall(missing, "widget allocation");
        _panel->Build();
        host::FaultPoints::Stop();
        const std::string before = host::DialogDump::Of(*_panel);
        _panel->Build(); // makes nothing: what is there was made once
        EXPECT_EQ(host::DialogDump::Of(*_panel), before) << missing;
        const std::vector<CATDlgPushButton*> buttons = ButtonsOf(*_panel);
        Classes expected = {newSet, renamedSet, deletedSet};
        for (int button = 0; button < 3; ++button) {
            const bool isMissing = missing == frame || missing == frame + 1 + button;
            EXPECT_EQ(buttons[static_cast<std::size_t>(button)] == nullptr, isMissing) << missing;
        }
        if (missing == frame)
            expected.clear();
        else if (missing > frame)
            expected.erase(expected.begin() + (missing - frame - 1));
        PressAll(*_panel);
        EXPECT_EQ(Command().TakeClasses(), expected) << missing;
        EXPECT_EQ(Exists("ParameterSetNameDescriptionLab"), missing != 1) << missing;
        EXPECT_EQ(Exists("ParameterSetNameEdt"), missing != 2) << missing;
        delete _panel;
    }
}

TEST_F(OrvKvParameterSetSubTest, APanelRemovesItsCallbacksBeforeItsWidgetsGo) {
    std::vector<int> counts;
    Make();
    new CountingChild(*_panel, counts);
    _panel->Build();
    new CountingChild(*_panel, counts);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*_panel), 3);
    const int before = host::CommandInspection::AnalyseCallbacks();
    delete _panel;
    EXPECT_EQ(counts, std::vector<int>({0, 0}));
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), before - 3);
    EXPECT_FALSE(Exists("NewParameterSetPbt"));
}

// A panel whose owner listens on its behalf; that of the editor and those of the buttons end with the panel
// itself.
class OwnedPanel : public OrvKvParameterSetSub {
  public:
    using OrvKvParameterSetSub::OrvKvParameterSetSub;

    void ListenTo(CATDlgEditor& ioEditor) {
        AddAnalyseNotificationCB(&ioEditor, ioEditor.GetEditModifyNotification(),
                                 static_cast<CATCommandMethod>(&OwnedPanel::OnModify), nullptr);
    }
    void ListenTo(CATDlgPushButton& ioButton) {
        AddAnalyseNotificationCB(&ioButton, ioButton.GetPushBActivateNotification(),
                                 static_cast<CATCommandMethod>(&OwnedPanel::OnModify), nullptr);
    }

  private:
    void OnModify(CATCommand*, CATNotification*, void*) {}
};

TEST_F(OrvKvParameterSetSubTest, ItsEndAlsoEndsACallbackOnTheEditorUnlessItIsReadOnly) {
    for (const int readOnly : {0, 1}) {
        std::vector<int> counts;
        auto* const panel = new OwnedPanel(MainWindow(), readOnly);
        panel->Build();
        new CountingChild(*panel, counts);
        panel->ListenTo(Editor("ParameterSetNameEdt"));
        panel->ListenTo(*panel->GetCreatePSPB());
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*panel), readOnly == 0 ? 5 : 2);
        delete panel;
        EXPECT_EQ(counts, std::vector<int>({readOnly == 0 ? 0 : 2}));
    }
}

TEST_F(OrvKvParameterSetSubTest, CopiesCarryTheWidgetsOfTheOriginal) {
    MakeBuilt();
    OrvKvParameterSetSub copy(*_panel);
    copy.Build(); // has its widgets already
    OrvKvParameterSetSub other(MainWindow(), 1);
    other = copy;
    EXPECT_EQ(ButtonsOf(copy), ButtonsOf(*_panel));
    EXPECT_EQ(ButtonsOf(other), ButtonsOf(*_panel));
    EXPECT_TRUE(host::Inspector::Children(copy).empty());
}

TEST_F(OrvKvParameterSetSubTest, ACopyOfAPanelThatIsNotBuiltIsAsReadOnlyAsTheOriginal) {
    for (const int readOnly : {0, 1}) {
        Make(readOnly);
        OrvKvParameterSetSub copy(*_panel);
        OrvKvParameterSetSub other(MainWindow(), 1 - readOnly);
        other = *_panel;
        for (OrvKvParameterSetSub* panel : {&copy, &other}) {
            panel->Build();
            EXPECT_EQ(host::Inspector::Children(*panel).size(), 3U);
            EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(*panel), readOnly == 0 ? 3 : 0);
        }
        EXPECT_TRUE(host::Inspector::Children(*_panel).empty());
        delete _panel;
    }
}

TEST_F(OrvKvParameterSetSubTest, ADestroyedCopyLeavesTheCallbacksOfTheOriginalAlone) {
    MakeBuilt();
    { const OrvKvParameterSetSub copy(*_panel); }
    PressAll(*_panel);
    EXPECT_EQ(Command().TakeClasses(), Classes({newSet, renamedSet, deletedSet}));
}

TEST_F(OrvKvParameterSetSubTest, TitlesAndHelpAreThereInEveryLanguage) {
    MakeBuilt();
    std::vector<Lines> titles;
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        Lines texts;
        for (const CATDlgPushButton* button : ButtonsOf(*_panel)) {
            texts.emplace_back(button->GetTitle().ConvertToChar());
            EXPECT_GT(button->GetShortHelp().GetLengthInChar(), 0) << language;
            EXPECT_GT(button->GetHelp().GetLengthInChar(), 0) << language;
            EXPECT_GT(button->GetLongHelp().GetLengthInChar(), 0) << language;
        }
        titles.push_back(texts);
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(titles, std::vector<Lines>({{"New...", "Rename...", "Delete..."},
                                          {"Neu...", "Umbenennen...", "Löschen..."},
                                          {"Nouveau...", "Renommer...", "Supprimer..."},
                                          {"新規...", "名前変更...", "削除..."}}));
}

} // namespace
