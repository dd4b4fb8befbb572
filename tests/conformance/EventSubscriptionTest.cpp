// Publish and subscribe: events of any object.

#include "CATCallbackManager.h"

#include "Recorders.h"

namespace {

class EventSubscriptions : public PlatformTest {
  protected:
    void Publish() { PublishFrom(publisher); }
    static void PublishFrom(CATBaseUnknown& ioPublisher) {
        SampleNotification notification;
        DispatchCallbacks(&notification, &ioPublisher);
    }

    Journal journal;
    SampleObject publisher;
    RecordingSubscriber watcher{"watcher", journal};
    RecordingSubscriber other{"other", journal};
};

// Writes down all five arguments.
class ArgumentsWatcher : public CATEventSubscriber {
  public:
    void Hear(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
              CATSubscriberData iData, CATCallback iId) {
        event = iEvent;
        publisher = static_cast<CATBaseUnknown*>(iPublisher);
        notification = iNotification;
        data = iData;
        id = iId;
    }
    std::string event;
    CATBaseUnknown* publisher = nullptr;
    CATNotification* notification = nullptr;
    CATSubscriberData data = nullptr;
    CATCallback id = -1;
};

// An object that is both, with the publisher's base behind another one.
class Both : public CATCommand {
  public:
    explicit Both(Journal& ioJournal) : CATCommand(nullptr, "both"), _journal(ioJournal) {}
    void Hear(CATCallbackEvent, void* iPublisher, CATNotification*, CATSubscriberData, CATCallback) {
        _journal.push_back(static_cast<CATBaseUnknown*>(iPublisher)->IsA());
    }

  private:
    Journal& _journal;
};

// Adds, removes and dispatches from inside its callback.
class BusyWatcher : public RecordingSubscriber {
  public:
    using RecordingSubscriber::RecordingSubscriber;

    void AddAnother(CATCallbackEvent, void* iPublisher, CATNotification*, CATSubscriberData, CATCallback) {
        journal.push_back("adds");
        AddCallback(this, static_cast<CATBaseUnknown*>(iPublisher), "SampleNotification", firstEvent);
    }
    void RemoveThat(CATCallbackEvent, void* iPublisher, CATNotification*, CATSubscriberData iId,
                    CATCallback) {
        journal.push_back("removes");
        RemoveCallback(this, static_cast<CATBaseUnknown*>(iPublisher), *static_cast<CATCallback*>(iId));
    }
    void DispatchOther(CATCallbackEvent, void* iPublisher, CATNotification*, CATSubscriberData, CATCallback) {
        journal.push_back("dispatches");
        OtherNotification another;
        DispatchCallbacks(&another, static_cast<CATBaseUnknown*>(iPublisher));
        journal.push_back("dispatched");
    }
};

template<class Class>
CATSubscriberMethod Method(void (Class::*iMethod)(CATCallbackEvent, void*, CATNotification*,
                                                  CATSubscriberData, CATCallback)) {
    return static_cast<CATSubscriberMethod>(iMethod);
}

} // namespace

CERTAIN(EventSubscriptions, ASubscriberHearsAnEventByTheNameOfItsClass) {
    AddCallback(&watcher, &publisher, "SampleNotification", firstEvent);
    Publish();
    EXPECT_EQ(Journal{"watcher:first SampleNotification"}, journal);
}

ASSUMED(EventSubscriptions, AnEventIsAlsoNamedByANotification, "recalled: its class counts") {
    const Owned<CATNotification> notification(new SampleNotification);
    AddCallback(&watcher, &publisher, notification.get(), firstEvent);
    Publish();
    EXPECT_EQ(Journal{"watcher:first SampleNotification"}, journal);
}

CERTAIN(EventSubscriptions, OnlyTheNamedEventOfThatPublisherIsHeard) {
    SampleObject another;
    AddCallback(&watcher, &publisher, "OtherNotification", firstEvent);
    AddCallback(&watcher, &another, "SampleNotification", secondEvent);
    Publish();
    EXPECT_EQ(Journal(), journal);
    PublishFrom(another);
    EXPECT_EQ(Journal{"watcher:second SampleNotification"}, journal);
}

ASSUMED(EventSubscriptions, AnEventIsHeardUnderTheNamesOfItsBasesToo,
        "open: a notification is a kind of its bases") {
    AddCallback(&watcher, &publisher, "SampleNotification", firstEvent);
    SpecialNotification special;
    DispatchCallbacks(&special, &publisher);
    EXPECT_EQ(Journal{"watcher:first SpecialNotification"}, journal);
}

CERTAIN(EventSubscriptions, TheMethodGetsEventPublisherNotificationDataAndIdentifier) {
    ArgumentsWatcher arguments;
    int data = 0;
    const CATCallback id =
        AddCallback(&arguments, &publisher, "SampleNotification", Method(&ArgumentsWatcher::Hear), &data);
    SampleNotification notification;
    DispatchCallbacks(&notification, &publisher);
    EXPECT_EQ("SampleNotification", arguments.event);
    EXPECT_EQ(&publisher, arguments.publisher);
    EXPECT_EQ(&notification, arguments.notification);
    EXPECT_EQ(&data, arguments.data);
    EXPECT_EQ(id, arguments.id);
}

ASSUMED(EventSubscriptions, ThePublisherArrivesAsABaseObject,
        "open: the callee casts it back from the base of all objects, whatever else the publisher is") {
    Both both(journal);
    AddCallback(&both, &both, "SampleNotification", Method(&Both::Hear));
    PublishFrom(both);
    EXPECT_EQ(Journal{"CATCommand"}, journal);
}

CERTAIN(EventSubscriptions, IdentifiersAreNeverNegativeAndDifferAmongLiveOnes) {
    const CATCallback first = AddCallback(&watcher, &publisher, "SampleNotification", firstEvent);
    const CATCallback second = AddCallback(&watcher, &publisher, "SampleNotification", firstEvent);
    const CATCallback third = AddCallback(&other, &watcher, "OtherNotification", firstEvent);
    EXPECT_GE(first, 0);
    EXPECT_GE(second, 0);
    EXPECT_GE(third, 0);
    EXPECT_NE(first, second);
    EXPECT_NE(first, third);
    EXPECT_NE(second, third);
}

ASSUMED(EventSubscriptions, ASubscriptionThatCannotBeMadeHasNoIdentifier,
        "open: -1, as the panels write 'none'") {
    EXPECT_EQ(-1, AddCallback(nullptr, &publisher, "SampleNotification", firstEvent));
    EXPECT_EQ(-1, AddCallback(&watcher, nullptr, "SampleNotification", firstEvent));
    EXPECT_EQ(-1, AddCallback(&watcher, &publisher, static_cast<const char*>(nullptr), firstEvent));
    EXPECT_EQ(-1, AddCallback(&watcher, &publisher, "SampleNotification", nullptr));
    Publish();
    EXPECT_EQ(Journal(), journal);
}

ASSUMED(EventSubscriptions, CallbacksRunInTheOrderOfSubscription, "recalled: synchronously, in order") {
    AddCallback(&watcher, &publisher, "SampleNotification", secondEvent);
    AddCallback(&other, &publisher, "SampleNotification", firstEvent);
    AddCallback(&watcher, &publisher, "SampleNotification", firstEvent);
    Publish();
    journal.push_back("returned");
    EXPECT_EQ((Journal{"watcher:second SampleNotification", "other:first SampleNotification",
                       "watcher:first SampleNotification", "returned"}),
              journal);
}

CERTAIN(EventSubscriptions, ASubscriptionEndsByItsIdentifier) {
    const CATCallback first = AddCallback(&watcher, &publisher, "SampleNotification", firstEvent);
    AddCallback(&watcher, &publisher, "SampleNotification", secondEvent);
    RemoveCallback(&watcher, &publisher, first);
    Publish();
    EXPECT_EQ(Journal{"watcher:second SampleNotification"}, journal);
}

CERTAIN(EventSubscriptions, RemovingWhatIsNotThereDoesNothing) {
    const CATCallback id = AddCallback(&watcher, &publisher, "SampleNotification", firstEvent);
    SampleObject another;
    RemoveCallback(&watcher, &publisher, -1);
    RemoveCallback(&watcher, &publisher, 1000000);
    RemoveCallback(&watcher, nullptr, id);
    RemoveCallback(nullptr, &publisher, id);
    RemoveCallback(&other, &publisher, id);
    RemoveCallback(&watcher, &another, id);
    RemoveSubscriberCallbacks(&other, &publisher);
    RemoveSubscriberCallbacks(&watcher, &another);
    RemoveSubscriberCallbacks(nullptr, &publisher);
    RemoveSubscriberCallbacks(&watcher, nullptr);
    Publish();
    EXPECT_EQ(Journal{"watcher:first SampleNotification"}, journal);
}

CERTAIN(EventSubscriptions, RemovingTwiceIsHarmless) {
    const CATCallback id = AddCallback(&watcher, &publisher, "SampleNotification", firstEvent);
    AddCallback(&watcher, &publisher, "SampleNotification", secondEvent);
    RemoveCallback(&watcher, &publisher, id);
    RemoveCallback(&watcher, &publisher, id);
    Publish();
    EXPECT_EQ(Journal{"watcher:second SampleNotification"}, journal);
}

CERTAIN(EventSubscriptions, AllSubscriptionsOfOneSubscriberEndTogether) {
    AddCallback(&watcher, &publisher, "SampleNotification", firstEvent);
    AddCallback(&other, &publisher, "SampleNotification", firstEvent);
    AddCallback(&watcher, &publisher, "SampleNotification", secondEvent);
    RemoveSubscriberCallbacks(&watcher, &publisher);
    Publish();
    EXPECT_EQ(Journal{"other:first SampleNotification"}, journal);
}

CERTAIN(EventSubscriptions, ACallbackMayAddRemoveAndDispatch) {
    BusyWatcher busy("busy", journal);
    CATCallback ended = -1;
    AddCallback(&busy, &publisher, "SampleNotification", Method(&BusyWatcher::AddAnother));
    AddCallback(&busy, &publisher, "SampleNotification", Method(&BusyWatcher::RemoveThat), &ended);
    AddCallback(&busy, &publisher, "SampleNotification", Method(&BusyWatcher::DispatchOther));
    ended = AddCallback(&busy, &publisher, "SampleNotification", secondEvent);
    AddCallback(&other, &publisher, "OtherNotification", firstEvent);
    Publish();
    EXPECT_EQ((Journal{"adds", "removes", "dispatches", "other:first OtherNotification", "dispatched"}),
              journal);
}

ASSUMED(EventSubscriptions, OneAddedDuringADispatchHearsTheNextOne, "open: each dispatch has a fixed list") {
    BusyWatcher busy("busy", journal);
    const CATCallback id =
        AddCallback(&busy, &publisher, "SampleNotification", Method(&BusyWatcher::AddAnother));
    Publish();
    EXPECT_EQ(Journal{"adds"}, journal);
    RemoveCallback(&busy, &publisher, id);
    Publish();
    EXPECT_EQ((Journal{"adds", "busy:first SampleNotification"}), journal);
}

ASSUMED(EventSubscriptions, ASubscriptionHoldsNoReference, "open: destroying either side ends it") {
    {
        SampleObject passing;
        AddCallback(&watcher, &passing, "SampleNotification", firstEvent);
    }
    {
        RecordingSubscriber leaving("leaving", journal);
        AddCallback(&leaving, &publisher, "SampleNotification", firstEvent);
    }
    AddCallback(&watcher, &publisher, "SampleNotification", secondEvent);
    Publish();
    EXPECT_EQ(Journal{"watcher:second SampleNotification"}, journal);
}

ASSUMED(EventSubscriptions, DispatchingNothingOrFromNobodyDoesNothing,
        "open: ignored rather than crashed on") {
    AddCallback(&watcher, &publisher, "SampleNotification", firstEvent);
    DispatchCallbacks(nullptr, &publisher);
    SampleNotification notification;
    DispatchCallbacks(&notification, nullptr);
    EXPECT_EQ(Journal(), journal);
    Publish();
    EXPECT_EQ(1U, journal.size());
}
