#include "CATDlgRadioButton.h"

#include "CATDlgCheckButton.h"
#include "CATDlgFrame.h"
#include "DialogTest.h"
#include "host/EventScope.h"

namespace {

using host::DialogUser;

class CATDlgRadioButtonTest : public DialogTest {
  protected:
    CATDlgRadioButtonTest() {
        for (CATDlgRadioButton* radio : {&first, &second, &third})
            dialog->Hear(*radio, radio->GetRadBModifyNotification());
        dialog->onHeard = [this] { return States(); };
    }

    // One character a button: x for checked.
    std::string States() const {
        std::string states;
        for (const CATDlgRadioButton* radio : {&first, &second, &third})
            states += radio->GetState() == CATDlgCheck ? "x" : "-";
        return states;
    }

    CATDlgRadioButton& first = Make<CATDlgRadioButton>("First");
    CATDlgRadioButton& second = Make<CATDlgRadioButton>("Second");
    CATDlgRadioButton& third = Make<CATDlgRadioButton>("Third");
};

TEST_F(CATDlgRadioButtonTest, StartsWithNoneOfItsGroupChecked) {
    EXPECT_EQ(States(), "---");
}

TEST_F(CATDlgRadioButtonTest, IsNotifiedAloneWhenNoneWasChecked) {
    first.SetState(CATDlgCheck, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"RadBModify First x--"});
}

TEST_F(CATDlgRadioButtonTest, SetsBothStatesThenNotifiesTheUncheckedAndThenTheCheckedOne) {
    third.SetState(CATDlgCheck);
    EXPECT_EQ(Result(DialogUser::Check(first)), "done");
    EXPECT_EQ(dialog->TakeHeard(), (Texts{"RadBModify Third x--", "RadBModify First x--"}));
    second.SetState(CATDlgCheck, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), (Texts{"RadBModify First -x-", "RadBModify Second -x-"}));
}

TEST_F(CATDlgRadioButtonTest, ReplacesTheCheckedOneSilentlyWhenTheProgramDoesNotAsk) {
    first.SetState(CATDlgCheck);
    second.SetState(CATDlgCheck, CATDlgNoNotification);
    EXPECT_EQ(States(), "-x-");
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgRadioButtonTest, StaysSilentInTheStateThatHolds) {
    first.SetState(CATDlgCheck, CATDlgWithNotification);
    first.SetState(CATDlgCheck, CATDlgWithNotification);
    second.SetState(CATDlgUncheck, CATDlgWithNotification);
    EXPECT_EQ(Result(DialogUser::Check(first)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"RadBModify First x--"});
}

TEST_F(CATDlgRadioButtonTest, IsUncheckedByTheProgramButNotByAPerson) {
    first.SetState(CATDlgCheck);
    EXPECT_EQ(Result(DialogUser::Uncheck(first)),
              "Dlg/First is a radio button and cannot be unchecked by hand");
    EXPECT_EQ(States(), "x--");
    first.SetState(CATDlgUncheck, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"RadBModify First ---"});
}

TEST_F(CATDlgRadioButtonTest, TakesNoOtherValueForAState) {
    first.SetState(0, CATDlgWithNotification);
    first.SetState(CATDlgCheck | CATDlgUncheck, CATDlgWithNotification);
    EXPECT_EQ(States(), "---");
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgRadioButtonTest, LeavesTheButtonsOfOtherContainersAlone) {
    CATDlgFrame& frame = Make<CATDlgFrame>("Frm");
    CATDlgRadioButton& elsewhere = MakeIn<CATDlgRadioButton>(frame, "Elsewhere");
    CATDlgCheckButton& check = Make<CATDlgCheckButton>("Check");
    check.SetState(CATDlgCheck);
    elsewhere.SetState(CATDlgCheck);
    EXPECT_EQ(Result(DialogUser::Check(first)), "done");
    EXPECT_EQ(elsewhere.GetState(), CATDlgCheck);
    EXPECT_EQ(check.GetState(), CATDlgCheck);
    EXPECT_EQ(States(), "x--");
}

TEST_F(CATDlgRadioButtonTest, CountsAHiddenButtonInItsGroup) {
    second.SetState(CATDlgCheck);
    second.SetVisibility(CATDlgHide);
    EXPECT_EQ(Result(DialogUser::Check(first)), "done");
    EXPECT_EQ(States(), "x--");
    EXPECT_EQ(dialog->TakeHeard(), (Texts{"RadBModify Second x--", "RadBModify First x--"}));
}

TEST_F(CATDlgRadioButtonTest, ForgetsAButtonOnItsWayOut) {
    const host::EventScope event;
    second.SetState(CATDlgCheck);
    second.RequestDelayedDestruction();
    first.SetState(CATDlgCheck, CATDlgWithNotification);
    EXPECT_EQ(first.GetState(), CATDlgCheck);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"RadBModify First xx-"}) << "the old button is in no group any more";
}

TEST_F(CATDlgRadioButtonTest, SurvivesTheDestructionOfTheCheckedOneByTheUncheckedOnesCallback) {
    third.SetState(CATDlgCheck);
    dialog->onHeard = [this] {
        delete &first;
        return "destroyed First";
    };
    first.SetState(CATDlgCheck, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"RadBModify Third destroyed First"});
    EXPECT_EQ(third.GetState(), CATDlgUncheck);
}

TEST_F(CATDlgRadioButtonTest, EndsWhenACallbackChecksItsOwnButtonAgain) {
    dialog->onHeard = [this] {
        first.SetState(CATDlgCheck, CATDlgWithNotification);
        return States();
    };
    first.SetState(CATDlgCheck, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"RadBModify First x--"});
}

} // namespace
