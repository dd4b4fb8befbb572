// Events of the main loop: nesting, what their end does, the idle step.

#include "host/EventScope.h"

#include "Recorders.h"
#include "host/DelayedDestruction.h"
#include "support/AuditedTest.h"

namespace {

Journal journal;
std::function<void()> onFlush;

void Flush() {
    journal.push_back("flush");
    if (onFlush)
        onFlush();
}

class EventScopeTest : public support::AuditedTest {
  protected:
    EventScopeTest() { host::EventScope::SetFlush(&Flush); }
    void TearDown() override {
        host::EventScope::SetFlush(nullptr);
        journal.clear();
        onFlush = nullptr;
        AuditedTest::TearDown();
    }

    static HostileCommand* Make(const char* iName) {
        auto* command = new HostileCommand(nullptr, iName, journal);
        const std::string name(iName);
        command->onEnd = [name] { journal.push_back(name + " ends"); };
        return command;
    }
};

} // namespace

TEST_F(EventScopeTest, AnEventIsOpenWhileItsScopeLives) {
    EXPECT_FALSE(host::EventScope::IsOpen());
    {
        const host::EventScope event;
        EXPECT_TRUE(host::EventScope::IsOpen());
    }
    EXPECT_FALSE(host::EventScope::IsOpen());
}

TEST_F(EventScopeTest, OnlyTheEndOfTheOutermostEventSettles) {
    {
        const host::EventScope outer;
        {
            const host::EventScope inner;
            Make("panel")->RequestDelayedDestruction();
        }
        journal.push_back("inner over");
        EXPECT_TRUE(host::EventScope::IsOpen());
        EXPECT_EQ(1, host::DelayedDestruction::Pending());
    }
    EXPECT_EQ((Journal{"inner over", "flush", "panel ends", "flush"}), journal);
}

TEST_F(EventScopeTest, WithoutDestructionsTheWatcherHearsOnce) {
    { const host::EventScope event; }
    EXPECT_EQ(Journal{"flush"}, journal);
}

TEST_F(EventScopeTest, AnEventInsideTheSettlingDoesNotSettleAgain) {
    HostileCommand* const panel = Make("panel");
    panel->onEnd = [] {
        const host::EventScope nested;
        journal.push_back("panel ends");
    };
    onFlush = [] { const host::EventScope nested; };
    {
        const host::EventScope event;
        panel->RequestDelayedDestruction();
    }
    EXPECT_EQ((Journal{"flush", "panel ends", "flush"}), journal);
}

TEST_F(EventScopeTest, WhatTheWatcherQueuesIsDestroyedBeforeTheEventIsOver) {
    int flushes = 0;
    onFlush = [&flushes] {
        if (++flushes <= 2)
            Make(flushes == 1 ? "first" : "second")->RequestDelayedDestruction();
    };
    { const host::EventScope event; }
    EXPECT_EQ((Journal{"flush", "first ends", "flush", "second ends", "flush"}), journal);
}

TEST_F(EventScopeTest, TheIdleStepSettlesOutsideAnyEventOnly) {
    Make("panel")->RequestDelayedDestruction();
    {
        const host::EventScope event;
        host::EventScope::RunIdle();
        EXPECT_EQ(Journal(), journal);
    }
    EXPECT_EQ((Journal{"flush", "panel ends", "flush"}), journal);
    journal.clear();
    Make("window")->RequestDelayedDestruction();
    host::EventScope::RunIdle();
    EXPECT_EQ((Journal{"flush", "window ends", "flush"}), journal);
}

TEST_F(EventScopeTest, AWindowMayAskForTheWatcherInTheMiddleOfAnEvent) {
    const host::EventScope event;
    host::EventScope::Flush();
    EXPECT_EQ(Journal{"flush"}, journal);
    host::EventScope::SetFlush(nullptr);
    host::EventScope::Flush();
    EXPECT_EQ(Journal{"flush"}, journal);
}
