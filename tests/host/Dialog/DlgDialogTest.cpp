#include "CATDlgDialog.h"

#include "DialogTest.h"
#include "host/EventScope.h"
#include "host/Inspector.h"

namespace {

using host::DialogUser;
using host::Inspector;

typedef std::vector<CATULong> Buttons;

class CATDlgDialogTest : public DialogTest {
  protected:
    ListeningDialog& MakeHeard(const char* iName, CATDlgStyle iStyle) {
        ListeningDialog& made = MakeDialog(iName, iStyle);
        made.HearClass(made, nullptr);
        return made;
    }
};

TEST_F(CATDlgDialogTest, HasTheButtonsOfItsStyle) {
    EXPECT_EQ(Inspector::ButtonsOfStyle(0), (Buttons{CATDlgWndOK, CATDlgWndCANCEL, CATDlgWndHELP}));
    EXPECT_EQ(Inspector::ButtonsOfStyle(CATDlgWndModal),
              (Buttons{CATDlgWndOK, CATDlgWndCANCEL, CATDlgWndHELP}));
    EXPECT_EQ(Inspector::ButtonsOfStyle(0x443C00),
              (Buttons{CATDlgWndOK, CATDlgWndAPPLY, CATDlgWndCANCEL, CATDlgWndHELP}));
    EXPECT_EQ(Inspector::ButtonsOfStyle(0x444000), Buttons());
    EXPECT_EQ(Inspector::ButtonsOfStyle(0x601E00), (Buttons{CATDlgWndOK, CATDlgWndAPPLY, CATDlgWndCANCEL}));
    EXPECT_EQ(Inspector::ButtonsOfStyle(0x601C00), (Buttons{CATDlgWndOK, CATDlgWndAPPLY, CATDlgWndCANCEL}));
    EXPECT_EQ(Inspector::ButtonsOfStyle(0x640400), Buttons{CATDlgWndOK});
    EXPECT_EQ(Inspector::ButtonsOfStyle(CATDlgWndCLOSE), Buttons{CATDlgWndCLOSE});
    EXPECT_EQ(Inspector::ButtonsOfStyle(CATDlgWndNoButton | CATDlgWndOK), Buttons());
}

TEST_F(CATDlgDialogTest, IsModalWithItsStyleBitOnly) {
    EXPECT_TRUE(Inspector::IsModal(MakeIn<CATDlgDialog>(MainWindow(), "Name", 0x601E00)));
    EXPECT_FALSE(Inspector::IsModal(MakeIn<CATDlgDialog>(MainWindow(), "Edit", 0x601C00)));
}

TEST_F(CATDlgDialogTest, SendsTheNotificationOfEachButtonAndDoesNotCloseByItself) {
    ListeningDialog& all =
        MakeHeard("All", CATDlgWndOK | CATDlgWndAPPLY | CATDlgWndCANCEL | CATDlgWndCLOSE | CATDlgWndHELP);
    for (const CATULong button : Inspector::StandardButtons(all))
        EXPECT_EQ(Result(DialogUser::PressStandardButton(all, button)), "done");
    EXPECT_EQ(all.TakeHeard(),
              (Texts{"DiaOK All", "DiaAPPLY All", "DiaCANCEL All", "DiaCLOSE All", "DiaHELP All"}));
    EXPECT_EQ(all.GetVisibility(), CATDlgShow);
}

TEST_F(CATDlgDialogTest, GivesOneNotificationObjectForEachButton) {
    const std::vector<CATNotification*> events = {
        dialog->GetDiaOKNotification(), dialog->GetDiaCANCELNotification(), dialog->GetDiaAPPLYNotification(),
        dialog->GetDiaCLOSENotification(), dialog->GetDiaHELPNotification()};
    for (std::size_t first = 0; first < events.size(); ++first)
        for (std::size_t second = first + 1; second < events.size(); ++second)
            EXPECT_NE(events[first], events[second]);
    EXPECT_EQ(dialog->GetDiaOKNotification(), events[0]);
}

TEST_F(CATDlgDialogTest, RefusesAPersonAButtonThatItDoesNotHave) {
    ListeningDialog& sole = MakeHeard("Sole", CATDlgWndOK);
    EXPECT_EQ(Result(DialogUser::PressStandardButton(sole, CATDlgWndCANCEL)), "Sole has no button Cancel");
    EXPECT_EQ(Result(DialogUser::PressStandardButton(sole, CATDlgWndAPPLY)), "Sole has no button Apply");
    EXPECT_EQ(Result(DialogUser::PressStandardButton(sole, CATDlgWndCLOSE)), "Sole has no button Close");
    EXPECT_EQ(Result(DialogUser::PressStandardButton(sole, CATDlgWndHELP)), "Sole has no button Help");
    EXPECT_EQ(Result(DialogUser::PressStandardButton(sole, 0)), "Sole has no button unknown");
    EXPECT_EQ(Result(DialogUser::PressStandardButton(sole, CATDlgWndModal)), "Sole has no button unknown");
    EXPECT_EQ(sole.TakeHeard(), Texts());
}

TEST_F(CATDlgDialogTest, StartsWithOkForItsDefaultButtonWhereThereIsOne) {
    EXPECT_EQ(MakeIn<CATDlgDialog>(MainWindow(), "Plain").GetDefaultButton(), CATDlgWndOK);
    EXPECT_EQ(MakeIn<CATDlgDialog>(MainWindow(), "Ok", CATDlgWndOK).GetDefaultButton(), CATDlgWndOK);
    EXPECT_EQ(MakeIn<CATDlgDialog>(MainWindow(), "Close", CATDlgWndCLOSE).GetDefaultButton(), 0U);
    EXPECT_EQ(MakeIn<CATDlgDialog>(MainWindow(), "None", CATDlgWndNoButton).GetDefaultButton(), 0U);
}

TEST_F(CATDlgDialogTest, PressesItsDefaultButtonOnEnter) {
    ListeningDialog& name = MakeHeard("Name", CATDlgWndOK | CATDlgWndAPPLY);
    EXPECT_EQ(Result(DialogUser::PressEnter(name)), "done");
    name.SetDefaultButton(CATDlgWndAPPLY);
    EXPECT_EQ(Result(DialogUser::PressEnter(name)), "done");
    EXPECT_EQ(name.TakeHeard(), (Texts{"DiaOK Name", "DiaAPPLY Name"}));
    name.SetDefaultButton(0);
    EXPECT_EQ(Result(DialogUser::PressEnter(name)), "Name has no default button");
    name.SetDefaultButton(CATDlgWndHELP);
    EXPECT_EQ(Result(DialogUser::PressEnter(name)), "Name has no button Help");
    EXPECT_EQ(name.TakeHeard(), Texts());
}

// The style of a dialog in which a value is edited.
TEST_F(CATDlgDialogTest, TakesEnterForOkAndEscapeForCancelInAnEditDialog) {
    ListeningDialog& edit = MakeHeard("Edit", 0x601C00);
    EXPECT_EQ(edit.GetDefaultButton(), CATDlgWndOK);
    EXPECT_EQ(Result(DialogUser::PressEnter(edit)), "done");
    EXPECT_EQ(Result(DialogUser::PressStandardButton(edit, CATDlgWndAPPLY)), "done");
    EXPECT_EQ(Result(DialogUser::PressEscape(edit)), "done");
    EXPECT_EQ(edit.TakeHeard(), (Texts{"DiaOK Edit", "DiaAPPLY Edit", "DiaCANCEL Edit"}));
    EXPECT_EQ(edit.GetVisibility(), CATDlgShow);
    EXPECT_EQ(Result(DialogUser::PressStandardButton(edit, CATDlgWndHELP)), "Edit has no button Help");
    EXPECT_EQ(Result(DialogUser::PressStandardButton(edit, CATDlgWndCLOSE)), "Edit has no button Close");
}

TEST_F(CATDlgDialogTest, LetsAPersonWorkOutsideAnEditDialogButNotOutsideAModalOne) {
    ListeningDialog& other = MakeHeard("Other", CATDlgWndOK);
    ListeningDialog& edit = MakeHeard("Edit", 0x601C00);
    EXPECT_EQ(Result(DialogUser::PressEnter(other)), "done");
    edit.SetVisibility(CATDlgHide);
    ListeningDialog& name = MakeHeard("Name", 0x601E00);
    EXPECT_NE(Result(DialogUser::PressEnter(other)), "done");
    EXPECT_EQ(Result(DialogUser::PressEnter(name)), "done");
    EXPECT_EQ(other.TakeHeard(), Texts{"DiaOK Other"});
}

TEST_F(CATDlgDialogTest, PressesCancelOnEscapeAndElseItsCloseBox) {
    ListeningDialog& cancelled = MakeHeard("Cancelled", CATDlgWndOK | CATDlgWndCANCEL);
    ListeningDialog& closed = MakeHeard("Closed", CATDlgWndOK);
    ListeningDialog& bare = MakeHeard("Bare", CATDlgWndNoButton | CATDlgWndCANCEL);
    EXPECT_EQ(Result(DialogUser::PressEscape(cancelled)), "done");
    EXPECT_EQ(Result(DialogUser::PressEscape(closed)), "done");
    EXPECT_EQ(Result(DialogUser::PressEscape(bare)), "done");
    EXPECT_EQ(cancelled.TakeHeard(), Texts{"DiaCANCEL Cancelled"});
    EXPECT_EQ(closed.TakeHeard(), Texts{"WindClose Closed"});
    EXPECT_EQ(bare.TakeHeard(), Texts{"WindClose Bare"});
}

TEST_F(CATDlgDialogTest, TakesNoKeyWhileItIsDisabledOrHidden) {
    ListeningDialog& name = MakeHeard("Name", CATDlgWndOK | CATDlgWndCANCEL);
    name.SetSensitivity(CATDlgDisable);
    EXPECT_EQ(Result(DialogUser::PressEnter(name)), "Name is disabled");
    EXPECT_EQ(Result(DialogUser::PressEscape(name)), "Name is disabled");
    name.SetVisibility(CATDlgHide);
    EXPECT_EQ(Result(DialogUser::PressEnter(name)), "Name is hidden");
    EXPECT_EQ(name.TakeHeard(), Texts());
}

TEST_F(CATDlgDialogTest, CountsTheUpdatesOfThePowerInputAndItsLink) {
    EXPECT_FALSE(Inspector::IsPowerInputLinked(*dialog));
    EXPECT_EQ(Inspector::PowerInputUpdates(*dialog), 0);
    dialog->SetPowerInputLink(1);
    dialog->UpdatePowerInput();
    dialog->UpdatePowerInput();
    EXPECT_TRUE(Inspector::IsPowerInputLinked(*dialog));
    EXPECT_EQ(Inspector::PowerInputUpdates(*dialog), 2);
    dialog->SetPowerInputLink(0);
    EXPECT_FALSE(Inspector::IsPowerInputLinked(*dialog));
}

TEST_F(CATDlgDialogTest, HasNoPowerInputLinkAtFirstAndTakesTheFocusWithOrWithoutOne) {
    dialog->TakePowerInputFocus();
    EXPECT_EQ(Inspector::PowerInputOwner(), dialog);
    EXPECT_FALSE(Inspector::IsPowerInputLinked(*dialog));
    dialog->SetPowerInputLink(1);
    dialog->SetPowerInputLink(0);
    EXPECT_EQ(Inspector::PowerInputOwner(), dialog) << "the link is another thing";
    EXPECT_EQ(Inspector::PowerInputUpdates(*dialog), 0);
}

TEST_F(CATDlgDialogTest, GivesThePowerInputFocusAwayWhenItIsDestroyed) {
    ListeningDialog& inner = MakeIn<ListeningDialog>(*dialog, "Inner", 0);
    inner.TakePowerInputFocus();
    inner.RequestDelayedDestruction();
    host::EventScope::RunIdle();
    EXPECT_EQ(Inspector::PowerInputOwner(), nullptr) << "destroyed in the main loop";
    CATDlgDialog& last = MakeIn<CATDlgDialog>(MakeIn<CATDlgDialog>(*dialog, "Outer"), "Last");
    last.TakePowerInputFocus();
    delete Inspector::Parent(last);
    EXPECT_EQ(Inspector::PowerInputOwner(), nullptr) << "destroyed with its parent";
}

TEST_F(CATDlgDialogTest, KeepsThePowerInputFocusWhenACopyOfItGoes) {
    dialog->SetPowerInputLink(1);
    dialog->TakePowerInputFocus();
    {
        CATDlgDialog copy(*dialog);
        copy.ReleasePowerInputFocus();
        EXPECT_EQ(Inspector::PowerInputOwner(), dialog);
    }
    EXPECT_EQ(Inspector::PowerInputOwner(), dialog);
    EXPECT_TRUE(Inspector::IsPowerInputLinked(*dialog));
}

TEST_F(CATDlgDialogTest, HasThePowerInputFocusAloneUntilItReleasesItOrGoes) {
    ListeningDialog& other = MakeDialog("Other");
    other.ReleasePowerInputFocus();
    EXPECT_EQ(Inspector::PowerInputOwner(), nullptr);
    dialog->TakePowerInputFocus();
    EXPECT_EQ(Inspector::PowerInputOwner(), dialog);
    other.ReleasePowerInputFocus();
    EXPECT_EQ(Inspector::PowerInputOwner(), dialog) << "releasing it without having it is harmless";
    other.TakePowerInputFocus();
    EXPECT_EQ(Inspector::PowerInputOwner(), &other);
    delete &other;
    EXPECT_EQ(Inspector::PowerInputOwner(), nullptr);
    dialog->TakePowerInputFocus();
    dialog->ReleasePowerInputFocus();
    EXPECT_EQ(Inspector::PowerInputOwner(), nullptr);
}

} // namespace
