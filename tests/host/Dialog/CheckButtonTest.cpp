#include "CATDlgCheckButton.h"

#include "DialogTest.h"

namespace {

using host::DialogUser;

class CATDlgCheckButtonTest : public DialogTest {
  protected:
    CATDlgCheckButtonTest() { dialog->Hear(check, check.GetChkBModifyNotification()); }

    CATDlgCheckButton& check = Make<CATDlgCheckButton>("ToleranceCkb");
};

TEST_F(CATDlgCheckButtonTest, StartsUnchecked) {
    EXPECT_EQ(check.GetState(), CATDlgUncheck);
}

TEST_F(CATDlgCheckButtonTest, IsNotifiedOfBothStatesWhenTheProgramAsksForIt) {
    dialog->onHeard = [this] { return check.GetState() == CATDlgCheck ? "checked" : "unchecked"; };
    check.SetState(CATDlgCheck, CATDlgWithNotification);
    check.SetState(CATDlgUncheck, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(),
              (Texts{"ChkBModify ToleranceCkb checked", "ChkBModify ToleranceCkb unchecked"}));
}

TEST_F(CATDlgCheckButtonTest, ChangesSilentlyWhenTheProgramDoesNotAsk) {
    check.SetState(CATDlgCheck);
    EXPECT_EQ(check.GetState(), CATDlgCheck);
    check.SetState(CATDlgUncheck, CATDlgNoNotification);
    EXPECT_EQ(check.GetState(), CATDlgUncheck);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgCheckButtonTest, StaysSilentInTheStateThatHolds) {
    check.SetState(CATDlgUncheck, CATDlgWithNotification);
    EXPECT_EQ(Result(DialogUser::Uncheck(check)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts());
    check.SetState(CATDlgCheck, CATDlgWithNotification);
    check.SetState(CATDlgCheck, CATDlgWithNotification);
    EXPECT_EQ(Result(DialogUser::Check(check)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"ChkBModify ToleranceCkb"});
}

TEST_F(CATDlgCheckButtonTest, TakesNoOtherValueForAState) {
    for (const CATULong value : {CATULong(0), CATULong(1), CATDlgCheck | CATDlgUncheck, ~CATULong(0)})
        check.SetState(value, CATDlgWithNotification);
    EXPECT_EQ(check.GetState(), CATDlgUncheck);
    check.SetState(CATDlgCheck);
    check.SetState(0, CATDlgWithNotification);
    EXPECT_EQ(check.GetState(), CATDlgCheck);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgCheckButtonTest, IsCheckedAndUncheckedByAPerson) {
    EXPECT_EQ(Result(DialogUser::Check(check)), "done");
    EXPECT_EQ(check.GetState(), CATDlgCheck);
    EXPECT_EQ(Result(DialogUser::Uncheck(check)), "done");
    EXPECT_EQ(check.GetState(), CATDlgUncheck);
    EXPECT_EQ(dialog->TakeHeard(), (Texts{"ChkBModify ToleranceCkb", "ChkBModify ToleranceCkb"}));
}

TEST_F(CATDlgCheckButtonTest, DoesNotExcludeOtherCheckButtons) {
    CATDlgCheckButton& other = Make<CATDlgCheckButton>("OtherCkb");
    EXPECT_EQ(Result(DialogUser::Check(check)), "done");
    EXPECT_EQ(Result(DialogUser::Check(other)), "done");
    EXPECT_EQ(check.GetState(), CATDlgCheck);
    EXPECT_EQ(other.GetState(), CATDlgCheck);
}

} // namespace
