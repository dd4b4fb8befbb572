#include "CATDlgPushButton.h"

#include "DialogTest.h"

namespace {

using host::DialogUser;

class CATDlgPushButtonTest : public DialogTest {
  protected:
    CATDlgPushButton& button = Make<CATDlgPushButton>("OkPbt");
};

TEST_F(CATDlgPushButtonTest, StartsShownEnabledAndTitledWithItsName) {
    EXPECT_EQ(button.GetVisibility(), CATDlgShow);
    EXPECT_EQ(button.GetSensitivity(), CATDlgEnable);
    EXPECT_STREQ(button.GetTitle().ConvertToChar(), "OkPbt");
}

TEST_F(CATDlgPushButtonTest, IsHeardBeforeThePressReturns) {
    dialog->Hear(button, button.GetPushBActivateNotification());
    EXPECT_EQ(Result(DialogUser::Press(button)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"PushBActivate OkPbt"});
    EXPECT_EQ(command.TakeHeard(), Texts()) << "an answered notification climbs no further";
}

TEST_F(CATDlgPushButtonTest, IsHeardByTheNameOfItsNotificationClass) {
    dialog->HearClass(button, "CATDlgPushBActivateNotification");
    EXPECT_EQ(Result(DialogUser::Press(button)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"PushBActivate OkPbt"});
}

TEST_F(CATDlgPushButtonTest, IsHeardByTheActiveCommandWhenNoDialogAnswers) {
    EXPECT_EQ(Result(DialogUser::Press(button)), "done");
    EXPECT_EQ(command.TakeHeard(), Texts{"PushBActivate OkPbt"});
}

TEST_F(CATDlgPushButtonTest, GivesTheSameNotificationObjectEachTimeAndItsOwn) {
    CATDlgPushButton& other = Make<CATDlgPushButton>("OtherPbt");
    EXPECT_EQ(button.GetPushBActivateNotification(), button.GetPushBActivateNotification());
    EXPECT_NE(button.GetPushBActivateNotification(), other.GetPushBActivateNotification());
}

TEST_F(CATDlgPushButtonTest, IsNotHeardThroughTheNotificationOfAnotherButton) {
    CATDlgPushButton& other = Make<CATDlgPushButton>("OtherPbt");
    dialog->Hear(other, other.GetPushBActivateNotification());
    EXPECT_EQ(Result(DialogUser::Press(button)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts());
    EXPECT_EQ(Result(DialogUser::Press(other)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"PushBActivate OtherPbt"});
}

TEST_F(CATDlgPushButtonTest, IsNoLongerHeardOnceTheSubscriptionEnds) {
    dialog->Hear(button, button.GetPushBActivateNotification());
    dialog->Ignore(button, button.GetPushBActivateNotification());
    EXPECT_EQ(Result(DialogUser::Press(button)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts());
    EXPECT_EQ(command.TakeHeard(), Texts{"PushBActivate OkPbt"});
}

TEST_F(CATDlgPushButtonTest, RunsAllItsCallbacksInTheOrderOfSubscription) {
    Texts order;
    dialog->Hear(button, button.GetPushBActivateNotification());
    dialog->HearClass(button, "CATDlgPushBActivateNotification");
    dialog->onHeard = [&order] {
        order.push_back(std::to_string(order.size()));
        return order.back();
    };
    EXPECT_EQ(Result(DialogUser::Press(button)), "done");
    EXPECT_EQ(dialog->TakeHeard(), (Texts{"PushBActivate OkPbt 0", "PushBActivate OkPbt 1"}));
}

} // namespace
