// Notifications: how they are made, and who disposes of them.

#include "CATNotification.h"

#include "Recorders.h"

namespace {

class Notifications : public PlatformTest {};

// Keeps the notifications that it hears.
class Keeper : public CATCommand {
  public:
    Keeper() : CATCommand(nullptr, "keeper") {}

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification* iNotification) override {
        iNotification->AddRef();
        kept.reset(iNotification);
        return CATNotifDontTransmitToFather;
    }

    Owned<CATNotification> kept;
};

} // namespace

CERTAIN(Notifications, ANotificationMayBeToldHowItIsDeleted) {
    EXPECT_EQ(0, static_cast<int>(CATNotificationDeleteOff));
    const Owned<CATNotification> silent(new SampleNotification);
    const Owned<CATNotification> told(new SampleNotification(CATNotificationDeleteOn));
    EXPECT_EQ(2, SampleNotification::living);
}

ASSUMED(Notifications, TheChoiceToDeleteIsOne, "recalled: the names are documented, this number is not") {
    EXPECT_EQ(1, static_cast<int>(CATNotificationDeleteOn));
}

CERTAIN(Notifications, TheSenderNeverReleasesWhatItSends) {
    CATCommand father(nullptr, "father");
    CATCommand sender(&father, "sender");
    sender.SendNotification(&father, new SampleNotification(CATNotificationDeleteOff));
    EXPECT_EQ(0, SampleNotification::living);
}

ASSUMED(Notifications, TheChoiceToDeleteChangesNothingForASentOne,
        "open: notifications made with deletion off must be disposed of too, so one rule holds for both") {
    CATCommand father(nullptr, "father");
    CATCommand sender(&father, "sender");
    sender.SendNotification(&father, new SampleNotification(CATNotificationDeleteOn));
    EXPECT_EQ(0, SampleNotification::living);
}

ASSUMED(Notifications, ASenderThatAddsAReferenceKeepsItsNotification,
        "open: that is how a widget sends the one object that it owns for an event, again and again") {
    CATCommand father(nullptr, "father");
    CATCommand sender(&father, "sender");
    const Owned<CATNotification> own(new SampleNotification);
    for (int time = 0; time < 2; ++time) {
        own->AddRef();
        sender.SendNotification(&father, own.get());
        EXPECT_EQ(1, SampleNotification::living);
    }
}

ASSUMED(Notifications, AReceiverThatAddsAReferenceKeepsTheNotification,
        "open: the rule of reference counting, applied to the receiver") {
    Keeper keeper;
    CATCommand sender(&keeper, "sender");
    sender.SendNotification(&keeper, new SampleNotification);
    EXPECT_EQ(1, SampleNotification::living);
    EXPECT_STREQ("SampleNotification", keeper.kept->IsA());
    keeper.kept.reset();
    EXPECT_EQ(0, SampleNotification::living);
}

CERTAIN(Notifications, ADispatchedNotificationStaysTheCallers) {
    SampleObject publisher;
    SampleNotification onTheStack;
    DispatchCallbacks(&onTheStack, &publisher);
    EXPECT_EQ(1, SampleNotification::living);
}
