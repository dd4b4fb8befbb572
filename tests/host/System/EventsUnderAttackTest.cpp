// Events that are dispatched while subscribers, publishers and subscriptions come and go.

#include "Recorders.h"
#include "host/CommandInspection.h"
#include "support/AuditedTest.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"

#include <algorithm>
#include <memory>

namespace {

class EventsUnderAttackTest : public support::AuditedTest {
  protected:
    void Publish() {
        SampleNotification notification;
        DispatchCallbacks(&notification, publisher.get());
    }
    std::unique_ptr<HostileSubscriber> Make(const char* iName) {
        return std::make_unique<HostileSubscriber>(iName, journal);
    }

    Journal journal;
    std::unique_ptr<CATBaseUnknown> publisher = std::make_unique<CATBaseUnknown>();
    std::unique_ptr<HostileSubscriber> watcher = Make("watcher");
    std::unique_ptr<HostileSubscriber> other = Make("other");
};

} // namespace

TEST_F(EventsUnderAttackTest, ACallbackIsRemovedTwice) {
    const CATCallback id = watcher->HearFirst(*publisher);
    other->HearFirst(*publisher);
    RemoveCallback(watcher.get(), publisher.get(), id);
    RemoveCallback(watcher.get(), publisher.get(), id);
    Publish();
    EXPECT_EQ(Journal{"other:first"}, journal);
}

TEST_F(EventsUnderAttackTest, AnOldIdentifierDoesNotEndTheSubscriptionOfAnother) {
    const CATCallback id = watcher->HearFirst(*publisher);
    RemoveCallback(watcher.get(), publisher.get(), id);
    other->HearFirst(*publisher);
    RemoveCallback(watcher.get(), publisher.get(), id);
    Publish();
    EXPECT_EQ(Journal{"other:first"}, journal);
}

TEST_F(EventsUnderAttackTest, AnOldIdentifierDoesNotEndANewerSubscriptionOfTheSameSubscriber) {
    const CATCallback id = watcher->HearFirst(*publisher);
    RemoveCallback(watcher.get(), publisher.get(), id);
    watcher->HearFirst(*publisher);
    RemoveCallback(watcher.get(), publisher.get(), id);
    Publish();
    EXPECT_EQ(Journal{"watcher:first"}, journal);
}

TEST_F(EventsUnderAttackTest, IdentifiersAreUsedAgainSoThatTheyStaySmall) {
    CATCallback largest = 0;
    for (int round = 0; round < 20000; ++round) {
        const CATCallback id = watcher->HearFirst(*publisher);
        largest = std::max(largest, id);
        RemoveCallback(watcher.get(), publisher.get(), id);
    }
    EXPECT_LT(largest, 10000);
    Publish();
    EXPECT_EQ(Journal(), journal);
}

TEST_F(EventsUnderAttackTest, ACallbackIsRemovedDuringItsOwnDispatch) {
    const CATCallback id = watcher->HearFirst(*publisher);
    other->HearFirst(*publisher);
    watcher->onFirst = [&] {
        RemoveCallback(watcher.get(), publisher.get(), id);
        RemoveCallback(watcher.get(), publisher.get(), id);
    };
    Publish();
    Publish();
    EXPECT_EQ((Journal{"watcher:first", "other:first", "other:first"}), journal);
}

TEST_F(EventsUnderAttackTest, ALaterCallbackIsRemovedBeforeItsTurn) {
    watcher->HearFirst(*publisher);
    const CATCallback id = other->HearFirst(*publisher);
    other->HearSecond(*publisher);
    watcher->onFirst = [&] { RemoveCallback(other.get(), publisher.get(), id); };
    Publish();
    EXPECT_EQ((Journal{"watcher:first", "other:second"}), journal);
}

TEST_F(EventsUnderAttackTest, AllCallbacksOfASubscriberAreRemovedDuringTheDispatch) {
    watcher->HearFirst(*publisher);
    watcher->HearSecond(*publisher);
    other->HearFirst(*publisher);
    watcher->onFirst = [this] { RemoveSubscriberCallbacks(watcher.get(), publisher.get()); };
    Publish();
    EXPECT_EQ((Journal{"watcher:first", "other:first"}), journal);
    EXPECT_EQ(1, host::CommandInspection::SubscriptionsOn(*publisher));
}

TEST_F(EventsUnderAttackTest, ACallbackAddedDuringTheDispatchHearsTheNextOne) {
    watcher->HearFirst(*publisher);
    watcher->onFirst = [this] { other->HearFirst(*publisher); };
    Publish();
    EXPECT_EQ(Journal{"watcher:first"}, journal);
    watcher->onFirst = nullptr;
    Publish();
    EXPECT_EQ((Journal{"watcher:first", "watcher:first", "other:first"}), journal);
}

TEST_F(EventsUnderAttackTest, ACallbackReplacesItself) {
    CATCallback id = watcher->HearFirst(*publisher);
    watcher->onFirst = [&] {
        RemoveCallback(watcher.get(), publisher.get(), id);
        id = watcher->HearFirst(*publisher);
    };
    Publish();
    Publish();
    EXPECT_EQ((Journal{"watcher:first", "watcher:first"}), journal);
    EXPECT_EQ(1, host::CommandInspection::SubscriptionsOn(*publisher));
}

TEST_F(EventsUnderAttackTest, ASubscriberDiesInItsOwnCallback) {
    watcher->HearFirst(*publisher);
    watcher->HearSecond(*publisher);
    other->HearFirst(*publisher);
    watcher->onFirst = [this] { watcher.reset(); };
    Publish();
    EXPECT_EQ((Journal{"watcher:first", "other:first"}), journal);
    EXPECT_EQ(1, host::CommandInspection::SubscriptionsOn(*publisher));
}

TEST_F(EventsUnderAttackTest, ALaterSubscriberDiesBeforeItsTurn) {
    watcher->HearFirst(*publisher);
    other->HearFirst(*publisher);
    watcher->HearSecond(*publisher);
    watcher->onFirst = [this] { other.reset(); };
    Publish();
    EXPECT_EQ((Journal{"watcher:first", "watcher:second"}), journal);
}

TEST_F(EventsUnderAttackTest, ThePublisherDiesInACallback) {
    watcher->HearFirst(*publisher);
    other->HearFirst(*publisher);
    watcher->onFirst = [this] { publisher.reset(); };
    Publish();
    EXPECT_EQ(Journal{"watcher:first"}, journal);
    EXPECT_EQ(0, host::CommandInspection::Subscriptions());
}

TEST_F(EventsUnderAttackTest, BothSidesDieInACallback) {
    watcher->HearFirst(*publisher);
    other->HearFirst(*publisher);
    watcher->onFirst = [this] {
        publisher.reset();
        watcher.reset();
        other.reset();
    };
    Publish();
    EXPECT_EQ(Journal{"watcher:first"}, journal);
}

TEST_F(EventsUnderAttackTest, ThePublisherDiesInADispatchWithinTheDispatch) {
    watcher->HearFirst(*publisher);
    watcher->HearSecond(*publisher);
    int depth = 0;
    watcher->onFirst = [&] {
        if (++depth == 1)
            Publish();
        else
            publisher.reset();
    };
    Publish();
    EXPECT_EQ((Journal{"watcher:first", "watcher:first"}), journal);
}

TEST_F(EventsUnderAttackTest, ADispatchWithinTheDispatchKeepsTheOuterOneInOrder) {
    watcher->HearFirst(*publisher);
    other->HearFirst(*publisher);
    int depth = 0;
    watcher->onFirst = [&] {
        if (++depth > 1)
            return;
        Publish();
        journal.push_back("inner over");
    };
    Publish();
    EXPECT_EQ((Journal{"watcher:first", "watcher:first", "other:first", "inner over", "other:first"}),
              journal);
}

TEST_F(EventsUnderAttackTest, ASubscriberThatPublishesToItselfEndsWithBothRoles) {
    auto both = Make("both");
    both->HearFirst(*both);
    both->onFirst = [&both] { both.reset(); };
    SampleNotification notification;
    DispatchCallbacks(&notification, both.get());
    EXPECT_EQ(Journal{"both:first"}, journal);
    EXPECT_EQ(0, host::CommandInspection::Subscriptions());
}

TEST_F(EventsUnderAttackTest, AnErrorThrownByACallbackLeavesNothingBehind) {
    const CATCallback id = watcher->HearFirst(*publisher);
    other->HearFirst(*publisher);
    watcher->onFirst = [&] {
        RemoveCallback(watcher.get(), publisher.get(), id);
        CATThrow(new CATInternalError("Thrown"));
    };
    bool isCaught = false;
    CATTry {
        Publish();
    }
    CATCatch(CATError, pError) {
        isCaught = true;
        pError->Release();
    }
    CATEndTry;
    EXPECT_TRUE(isCaught);
    Publish();
    EXPECT_EQ((Journal{"watcher:first", "other:first"}), journal);
}

TEST_F(EventsUnderAttackTest, ThousandsOfSubscriptionsEndWithTheirPublisher) {
    const int before = host::CommandInspection::Subscriptions();
    for (int time = 0; time < 5000; ++time)
        watcher->HearFirst(*publisher);
    EXPECT_EQ(before + 5000, host::CommandInspection::Subscriptions());
    publisher.reset();
    EXPECT_EQ(before, host::CommandInspection::Subscriptions());
}
