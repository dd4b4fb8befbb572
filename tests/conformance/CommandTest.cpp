// Commands: the tree, and the climb of a notification through it.

#include "CATCommand.h"

#include "Recorders.h"

namespace {

class Commands : public PlatformTest {
  protected:
    Journal journal;
    RecordingCommand top{nullptr, "top", journal};
    RecordingCommand middle{&top, "middle", journal};
    RecordingCommand button{&middle, "button", journal};
};

} // namespace

CERTAIN(Commands, ACommandKnowsItsNameAndFather) {
    EXPECT_STREQ("button", button.GetName().ConvertToChar());
    EXPECT_EQ(&middle, button.GetFather());
    EXPECT_EQ(nullptr, top.GetFather());
}

CERTAIN(Commands, ANotificationClimbsFromFatherToFather) {
    button.SendNotification(&middle, new SampleNotification);
    EXPECT_EQ(
        (Journal{"middle hears SampleNotification from button", "top hears SampleNotification from middle"}),
        journal);
}

CERTAIN(Commands, ACommandThatTreatsANotificationEndsItsClimb) {
    middle.Answer(CATNotifDontTransmitToFather);
    button.SendNotification(&middle, new SampleNotification);
    EXPECT_EQ(Journal{"middle hears SampleNotification from button"}, journal);
}

CERTAIN(Commands, TheBaseLetsANotificationClimb) {
    CATCommand plain(&middle, "plain");
    const Owned<CATNotification> notification(new SampleNotification);
    EXPECT_EQ(CATNotifTransmitToFather, plain.AnalyseNotification(&button, notification.get()));
    CATCommand below(&plain, "below");
    below.SendNotification(&plain, new SampleNotification);
    EXPECT_EQ(
        (Journal{"middle hears SampleNotification from plain", "top hears SampleNotification from middle"}),
        journal);
}

ASSUMED(Commands, TheTwoAnswersAreZeroAndOne, "open: the names are documented, the numbers are not") {
    EXPECT_EQ(0, static_cast<int>(CATNotifTransmitToFather));
    EXPECT_EQ(1, static_cast<int>(CATNotifDontTransmitToFather));
}

ASSUMED(
    Commands, TheNextFatherSeesWhoTransmitted,
    "open: the command below, not the first sender; the panels do not look at it beyond their own widgets") {
    CATCommand plain(&middle, "plain");
    CATCommand below(&plain, "below");
    below.SendNotification(&plain, new SampleNotification);
    ASSERT_FALSE(journal.empty());
    EXPECT_EQ("middle hears SampleNotification from plain", journal.front());
}

CERTAIN(Commands, ASentNotificationIsDisposedOf) {
    button.SendNotification(&middle, new SampleNotification);
    EXPECT_EQ(0, SampleNotification::living);
    middle.Answer(CATNotifDontTransmitToFather);
    button.SendNotification(&middle, new SampleNotification);
    EXPECT_EQ(0, SampleNotification::living);
}

ASSUMED(Commands, NobodyNeedsToTreatANotification, "open: one that reaches the top untreated is dropped") {
    CATCommand alone(nullptr, "alone");
    alone.SendNotification(&alone, new SampleNotification);
    EXPECT_EQ(0, SampleNotification::living);
}

ASSUMED(Commands, SendingNothingOrToNobodyDoesNothing,
        "open: nothing is heard, and the notification is disposed of all the same") {
    button.SendNotification(&middle, nullptr);
    button.SendNotification(nullptr, new SampleNotification);
    EXPECT_EQ(Journal(), journal);
    EXPECT_EQ(0, SampleNotification::living);
    button.SendNotification(&middle, new SampleNotification);
    EXPECT_EQ(2U, journal.size());
}

ASSUMED(Commands, ANotificationGoesToTheCommandItIsSentTo,
        "recalled: the target need not be the sender's father") {
    button.SendNotification(&top, new SampleNotification);
    EXPECT_EQ(Journal{"top hears SampleNotification from button"}, journal);
}

CERTAIN(Commands, ACallReturnsAfterTheClimb) {
    button.SendNotification(&middle, new SampleNotification);
    journal.push_back("returned");
    EXPECT_EQ("returned", journal[2]);
    EXPECT_EQ(3U, journal.size());
}
