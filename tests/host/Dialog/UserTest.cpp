#include "host/DialogUser.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgMultiList.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "DialogTest.h"
#include "host/DialogDump.h"

namespace {

using host::DialogUser;

// Every operation of a person on widgets in one frame, each of which a person could do.
class DialogUserTest : public DialogTest {
  protected:
    DialogUserTest() {
        combo.SetLine("A");
        list.SetColumnItem(0, "A");
        dialog->HearClass(*dialog, nullptr);
        for (CATDialog* widget :
             std::vector<CATDialog*>{&button, &combo, &check, &radio, &editor, &spinner, &list})
            dialog->HearClass(*widget, nullptr);
    }

    // What comes of each operation, in turn.
    Texts TryAll() {
        return {Result(DialogUser::Press(button)),
                Result(DialogUser::OpenList(combo)),
                Result(DialogUser::Choose(combo, 0)),
                Result(DialogUser::ChooseText(combo, "A")),
                Result(DialogUser::Check(check)),
                Result(DialogUser::Uncheck(check)),
                Result(DialogUser::Check(radio)),
                Result(DialogUser::Type(editor, "text")),
                Result(DialogUser::LeaveField(editor)),
                Result(DialogUser::Spin(spinner, 1)),
                Result(DialogUser::TypeValue(spinner, "2")),
                Result(DialogUser::Select(list, {0})),
                Result(DialogUser::Activate(list, 0, 0))};
    }
    // All operations are refused with iReason behind the path of their widget, and nothing changes.
    void ExpectAllRefused(const std::string& iReason) {
        const std::string before = host::DialogDump::OfAll();
        const Texts widgets = {"Pbt", "Cmb", "Cmb", "Cmb", "Ckb", "Ckb", "Rdb",
                               "Edt", "Edt", "Spn", "Spn", "Mul", "Mul"};
        const Texts results = TryAll();
        ASSERT_EQ(results.size(), widgets.size());
        for (std::size_t number = 0; number < results.size(); ++number)
            EXPECT_EQ(results[number], "Dlg/Frm/" + widgets[number] + " " + iReason);
        EXPECT_EQ(dialog->TakeHeard(), Texts());
        EXPECT_EQ(host::DialogDump::OfAll(), before);
    }

    CATDlgFrame& frame = Make<CATDlgFrame>("Frm");
    CATDlgPushButton& button = MakeIn<CATDlgPushButton>(frame, "Pbt");
    CATDlgCombo& combo = MakeIn<CATDlgCombo>(frame, "Cmb");
    CATDlgCheckButton& check = MakeIn<CATDlgCheckButton>(frame, "Ckb");
    CATDlgRadioButton& radio = MakeIn<CATDlgRadioButton>(frame, "Rdb");
    CATDlgEditor& editor = MakeIn<CATDlgEditor>(frame, "Edt");
    CATDlgSpinner& spinner = MakeIn<CATDlgSpinner>(frame, "Spn", CATDlgSpnEntry | CATDlgSpnDouble);
    CATDlgMultiList& list = MakeIn<CATDlgMultiList>(frame, "Mul");
};

TEST_F(DialogUserTest, DoesEverythingWhereNothingStandsInTheWay) {
    EXPECT_EQ(TryAll(), Texts(13, "done"));
    EXPECT_EQ(dialog->TakeHeard(),
              (Texts{"PushBActivate Pbt", "ComboDrop Cmb", "ComboSelect Cmb", "ComboSelect Cmb",
                     "ChkBModify Ckb", "ChkBModify Ckb", "RadBModify Rdb", "EditModify Edt",
                     "EditFocusOut Edt", "SpinnerModify Spn", "SpinnerModify Spn", "ListSelect Mul",
                     "ListSelect Mul", "ListActivate Mul", "ListColumnActivate Mul"}));
}

TEST_F(DialogUserTest, UsesNothingThatIsHidden) {
    for (CATDialog* widget :
         std::vector<CATDialog*>{&button, &combo, &check, &radio, &editor, &spinner, &list})
        widget->SetVisibility(CATDlgHide);
    ExpectAllRefused("is hidden");
}

TEST_F(DialogUserTest, UsesNothingThatIsHiddenWithAParent) {
    frame.SetVisibility(CATDlgHide);
    ExpectAllRefused("is hidden with Dlg/Frm");
    frame.SetVisibility(CATDlgShow);
    dialog->SetVisibility(CATDlgHide);
    ExpectAllRefused("is hidden with Dlg");
}

TEST_F(DialogUserTest, UsesNothingThatIsDisabled) {
    for (CATDialog* widget :
         std::vector<CATDialog*>{&button, &combo, &check, &radio, &editor, &spinner, &list})
        widget->SetSensitivity(CATDlgDisable);
    ExpectAllRefused("is disabled");
}

TEST_F(DialogUserTest, UsesNothingThatIsDisabledWithAParent) {
    frame.SetSensitivity(CATDlgDisable);
    ExpectAllRefused("is disabled with Dlg/Frm");
    frame.SetSensitivity(CATDlgEnable);
    dialog->SetSensitivity(CATDlgDisable);
    ExpectAllRefused("is disabled with Dlg");
}

TEST_F(DialogUserTest, UsesNothingBehindAModalWindowUntilItIsHidden) {
    ListeningDialog& modal = MakeDialog("Name", CATDlgWndModal | CATDlgWndOK);
    ExpectAllRefused("is blocked by the modal window Name");
    EXPECT_EQ(Result(DialogUser::PressEnter(*dialog)), "Dlg is blocked by the modal window Name");
    EXPECT_EQ(Result(DialogUser::Move(*dialog, 1, 1)), "Dlg is blocked by the modal window Name");
    EXPECT_EQ(Result(DialogUser::PressEscape(MainWindow())),
              "MainWindow is blocked by the modal window Name");
    EXPECT_EQ(Result(DialogUser::PressEnter(modal)), "done");
    modal.SetVisibility(CATDlgHide);
    EXPECT_EQ(TryAll(), Texts(13, "done"));
}

TEST_F(DialogUserTest, UsesTheModalWindowThatWasMadeLastAndWhatBelongsToIt) {
    ListeningDialog& first = MakeDialog("First", CATDlgWndModal | CATDlgWndOK);
    auto* const second = new CATDlgDialog(&first, "Second", CATDlgWndModal | CATDlgWndOK);
    EXPECT_EQ(Result(DialogUser::PressEnter(first)), "done") << "the second one is hidden";
    second->SetVisibility(CATDlgShow);
    EXPECT_EQ(Result(DialogUser::PressEnter(first)), "First is blocked by the modal window Second");
    auto* const helper = new CATDlgDialog(second, "Helper", CATDlgWndOK);
    helper->SetVisibility(CATDlgShow);
    EXPECT_EQ(Result(DialogUser::PressEnter(*helper)), "done");
    second->RequestDelayedDestruction();
    EXPECT_EQ(Result(DialogUser::PressEnter(first)), "done");
}

TEST_F(DialogUserTest, IsNotBlockedByAModalWindowThatGoesWithItsParent) {
    ListeningDialog& parent = MakeDialog("Parent");
    auto* const modal = new CATDlgDialog(&parent, "Modal", CATDlgWndModal);
    modal->SetVisibility(CATDlgShow);
    parent.RequestDelayedDestruction();
    EXPECT_EQ(Result(DialogUser::Press(button)), "done");
}

TEST_F(DialogUserTest, UsesNothingOnAPageBehind) {
    CATDlgTabContainer& pages = Make<CATDlgTabContainer>("Tab");
    CATDlgTabPage& front = MakeIn<CATDlgTabPage>(pages, "Front");
    CATDlgTabPage& back = MakeIn<CATDlgTabPage>(pages, "Back");
    CATDlgTabContainer& nested = MakeIn<CATDlgTabContainer>(back, "Nested");
    CATDlgTabPage& inner = MakeIn<CATDlgTabPage>(nested, "Inner");
    CATDlgPushButton& inside = MakeIn<CATDlgPushButton>(inner, "InPbt");
    EXPECT_EQ(Result(DialogUser::CanUse(front)), "done");
    EXPECT_EQ(Result(DialogUser::Press(inside)),
              "Dlg/Tab/Back/Nested/Inner/InPbt is on the page Dlg/Tab/Back, which is not in front");
    EXPECT_FALSE(DialogUser::CanSee(inside));
    EXPECT_EQ(Result(DialogUser::ShowPage(inner)),
              "Dlg/Tab/Back/Nested is on the page Dlg/Tab/Back, which is not in front");
    EXPECT_EQ(Result(DialogUser::ShowPage(back)), "done");
    EXPECT_EQ(Result(DialogUser::Press(inside)), "done");
}

TEST_F(DialogUserTest, ChecksButtonsOnly) {
    CATDlgLabel& label = MakeIn<CATDlgLabel>(frame, "Lab");
    EXPECT_EQ(Result(DialogUser::Check(label)), "Dlg/Frm/Lab is no radio or check button");
    EXPECT_EQ(Result(DialogUser::Uncheck(button)), "Dlg/Frm/Pbt is no radio or check button");
}

TEST_F(DialogUserTest, SeesWhatIsDisabledButNotWhatIsHidden) {
    EXPECT_TRUE(DialogUser::CanSee(button));
    frame.SetSensitivity(CATDlgDisable);
    EXPECT_TRUE(DialogUser::CanSee(button));
    frame.SetVisibility(CATDlgHide);
    EXPECT_FALSE(DialogUser::CanSee(button));
    EXPECT_FALSE(DialogUser::CanSee(frame));
    EXPECT_TRUE(DialogUser::CanSee(*dialog));
}

TEST_F(DialogUserTest, UsesNothingWithoutAnApplication) {
    application.reset();
    CATDlgPushButton alone(nullptr, "Alone");
    EXPECT_EQ(Result(DialogUser::Press(alone)), "Alone is in no window");
    EXPECT_FALSE(DialogUser::CanSee(alone));
}

} // namespace
