// Events of parameters while subscribers, subscriptions and parameters come and go.

#include "CATIParmEvents.h"

#include "CATErrorMacros.h"
#include "CATIParmAsStored.h"
#include "CATInternalError.h"
#include "host/CommandInspection.h"
#include "host/LiveObjects.h"
#include "host/Parameters.h"
#include "support/AuditedTest.h"
#include "support/ParameterWatcher.h"

#include <memory>

using host::CommandInspection;
using host::LiveObjects;
using host::Parameters;
using support::Events;
using support::ParameterWatcher;

namespace {

class ParameterEventsUnderAttackTest : public support::AuditedTest {
  protected:
    int Subscriptions() { return CommandInspection::SubscriptionsOn(*events->GetPublisher()); }

    CATICkeParm_var depth = Parameters::NewLength("DEPTH", 5.0);
    CATIParmEvents_var events{depth};
    std::unique_ptr<ParameterWatcher> first = std::make_unique<ParameterWatcher>(depth);
    std::unique_ptr<ParameterWatcher> second = std::make_unique<ParameterWatcher>(depth);
};

TEST_F(ParameterEventsUnderAttackTest, ASubscriberThatIsRemovedBeforeItsTurnHearsNothing) {
    first->onEvent = [&] { second->Unwatch(depth); };
    events->RaiseChange(1);
    events->RaiseToleranceChange();
    EXPECT_EQ(first->Take(), Events({"value of DEPTH", "tolerance of DEPTH"}));
    EXPECT_EQ(second->Take(), Events());
    EXPECT_EQ(Subscriptions(), 2);
}

TEST_F(ParameterEventsUnderAttackTest, ASubscriberTakesItsOwnSubscriptionsBack) {
    first->onEvent = [&] { first->Unwatch(depth); };
    events->RaiseChange(1);
    events->RaiseChange(1);
    EXPECT_EQ(first->Take(), Events({"value of DEPTH"}));
    EXPECT_EQ(second->Take(), Events({"value of DEPTH", "value of DEPTH"}));
}

TEST_F(ParameterEventsUnderAttackTest, ASubscriberIsDestroyedByItsOwnCallback) {
    first->onEvent = [&] { first.reset(); };
    events->RaiseChange(1);
    EXPECT_EQ(second->Take(), Events({"value of DEPTH"}));
    EXPECT_EQ(Subscriptions(), 2);
    EXPECT_EQ(LiveObjects::Count("ParameterWatcher"), 1);
}

TEST_F(ParameterEventsUnderAttackTest, AllSubscribersAreDestroyedByTheFirst) {
    first->onEvent = [&] {
        second.reset();
        first.reset();
    };
    EXPECT_EQ(depth->Valuate(0.002), S_OK);
    EXPECT_EQ(Subscriptions(), 0);
    EXPECT_EQ(depth->Valuate(0.003), S_OK);
}

TEST_F(ParameterEventsUnderAttackTest, TheLastHandleIsDroppedInACallback) {
    events = CATIParmEvents_var();
    CATICkeParm* const plain = depth;
    first->onEvent = [&] { depth = CATICkeParm_var(); };
    second->onEvent = [] { EXPECT_EQ(LiveObjects::Count("Parameter"), 1) << "until all have heard"; };
    EXPECT_EQ(plain->Valuate(0.002), S_OK);
    EXPECT_EQ(first->Take(), Events({"value of DEPTH"}));
    EXPECT_EQ(second->Take(), Events({"value of DEPTH"}));
    EXPECT_EQ(LiveObjects::Count("Parameter"), 0);
    EXPECT_EQ(CommandInspection::Subscriptions(), 0);
}

TEST_F(ParameterEventsUnderAttackTest, TheLastHandleOfTheEventsIsDroppedInACallback) {
    depth = CATICkeParm_var();
    CATIParmEvents* const plain = events;
    first->onEvent = [&] { events = CATIParmEvents_var(); };
    plain->RaiseToleranceChange();
    EXPECT_EQ(second->Take(), Events({"tolerance of DEPTH"}));
    EXPECT_EQ(LiveObjects::Count("Parameter"), 0);
}

TEST_F(ParameterEventsUnderAttackTest, SubscriptionsAndSubscribersGoInAnyOrder) {
    events = CATIParmEvents_var();
    depth = CATICkeParm_var();
    EXPECT_EQ(CommandInspection::Subscriptions(), 0);
    first.reset();
    depth = Parameters::NewLength("DEPTH", 5.0);
    second->Watch(depth);
    second.reset();
    EXPECT_EQ(depth->Valuate(0.002), S_OK);
    EXPECT_EQ(CommandInspection::Subscriptions(), 0);
}

TEST_F(ParameterEventsUnderAttackTest, ACallbackWritesTheParameterAgain) {
    int rounds = 3;
    first->onEvent = [&] {
        if (--rounds == 0)
            return;
        EXPECT_EQ(depth->Valuate(0.001 * rounds), S_OK);
    };
    EXPECT_EQ(depth->Valuate(0.009), S_OK);
    EXPECT_EQ(first->Take(), Events(3, "value of DEPTH"));
    EXPECT_EQ(second->Take(), Events(3, "value of DEPTH"));
    EXPECT_STREQ(depth->Show().ConvertToChar(), "1mm");
}

TEST_F(ParameterEventsUnderAttackTest, ACallbackSubscribesASubscriberThatHearsTheNextEvent) {
    ParameterWatcher third;
    first->onEvent = [&] {
        first->onEvent = nullptr;
        third.Watch(depth);
    };
    events->RaiseChange(1);
    EXPECT_EQ(third.Take(), Events());
    events->RaiseChange(1);
    EXPECT_EQ(third.Take(), Events({"value of DEPTH"}));
}

TEST_F(ParameterEventsUnderAttackTest, ACallbackRaisesTheOtherEvent) {
    first->onEvent = [&] {
        first->onEvent = nullptr;
        events->RaiseToleranceChange();
    };
    events->RaiseChange(1);
    EXPECT_EQ(second->Take(), Events({"tolerance of DEPTH", "value of DEPTH"}));
}

TEST_F(ParameterEventsUnderAttackTest, AnErrorInACallbackEndsTheDispatchAndLeavesTheNewValue) {
    Allow(support::Leftover::LastError, "the raised error is the last one");
    first->onEvent = [] { CATThrow(new CATInternalError("Key", "Catalogue")); };
    bool caught = false;
    CATTry {
        depth->Valuate(0.002);
    }
    CATCatch(CATError, pError) {
        caught = true;
        pError->Release();
    }
    CATEndTry;
    EXPECT_TRUE(caught);
    EXPECT_STREQ(depth->Show().ConvertToChar(), "2mm");
    EXPECT_EQ(second->Take(), Events());
    EXPECT_EQ(depth->AddRef() + 0UL, 3UL) << "no reference is left behind";
    depth->Release();
}

TEST_F(ParameterEventsUnderAttackTest, AWatcherOfTheBaseOfAllNotificationsHearsBothEvents) {
    struct Counter : CATEventSubscriber {
        int heard = 0;
        void Hear(CATCallbackEvent, void*, CATNotification*, CATSubscriberData, CATCallback) { ++heard; }
    } counter;
    AddCallback(&counter, events->GetPublisher(), "CATNotification",
                static_cast<CATSubscriberMethod>(&Counter::Hear));
    events->RaiseChange(1);
    events->RaiseToleranceChange();
    EXPECT_EQ(counter.heard, 2);
}

} // namespace
