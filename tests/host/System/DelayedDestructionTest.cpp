// Delayed destruction: once, at the end, whatever happens meanwhile.

#include "host/DelayedDestruction.h"

#include "Recorders.h"
#include "host/EventScope.h"
#include "support/AuditedTest.h"

namespace {

using host::DelayedDestruction;

class DelayedDestructionTest : public support::AuditedTest {
  protected:
    HostileCommand* Make(const char* iName, CATCommand* iFather = nullptr) {
        auto* command = new HostileCommand(iFather, iName, journal);
        const std::string name(iName);
        command->onEnd = [this, name] { journal.push_back(name + " ends"); };
        return command;
    }

    Journal journal;
};

} // namespace

TEST_F(DelayedDestructionTest, ADoomedCommandLivesUntilTheQueueIsDrained) {
    HostileCommand* const panel = Make("panel");
    EXPECT_FALSE(DelayedDestruction::IsDoomed(*panel));
    panel->RequestDelayedDestruction();
    EXPECT_TRUE(DelayedDestruction::IsDoomed(*panel));
    EXPECT_EQ(1, DelayedDestruction::Pending());
    EXPECT_EQ(Journal(), journal);
    DelayedDestruction::Drain();
    EXPECT_EQ(0, DelayedDestruction::Pending());
    EXPECT_EQ(Journal{"panel ends"}, journal);
}

TEST_F(DelayedDestructionTest, AskingAgainChangesNothing) {
    HostileCommand* const panel = Make("panel");
    panel->RequestDelayedDestruction();
    panel->RequestDelayedDestruction();
    EXPECT_EQ(1, DelayedDestruction::Pending());
    DelayedDestruction::Drain();
    EXPECT_EQ(Journal{"panel ends"}, journal);
}

TEST_F(DelayedDestructionTest, CommandsEndInTheOrderOfTheirRequests) {
    HostileCommand* const first = Make("first");
    HostileCommand* const second = Make("second");
    second->RequestDelayedDestruction();
    first->RequestDelayedDestruction();
    DelayedDestruction::Drain();
    EXPECT_EQ((Journal{"second ends", "first ends"}), journal);
}

TEST_F(DelayedDestructionTest, ADoomedCommandSendsNothing) {
    HostileCommand father(nullptr, "father", journal);
    HostileCommand* const panel = Make("panel", &father);
    panel->Send();
    EXPECT_EQ(Journal{"father hears panel"}, journal);
    panel->RequestDelayedDestruction();
    panel->Send();
    EXPECT_EQ(Journal{"father hears panel"}, journal);
    DelayedDestruction::Drain();
}

TEST_F(DelayedDestructionTest, WhatADestructorQueuesIsDrainedToo) {
    HostileCommand* const panel = Make("panel");
    HostileCommand* const window = Make("window");
    panel->onEnd = [this, window] {
        journal.push_back("panel ends");
        window->RequestDelayedDestruction();
    };
    panel->RequestDelayedDestruction();
    DelayedDestruction::Drain();
    EXPECT_EQ((Journal{"panel ends", "window ends"}), journal);
}

TEST_F(DelayedDestructionTest, AFatherThatDeletesItsQueuedChildDeletesItOnce) {
    for (const bool isFatherFirst : {true, false}) {
        journal.clear();
        HostileCommand* const father = Make("father");
        HostileCommand* child = Make("child", father);
        child->onEnd = [this, &child] {
            journal.push_back("child ends");
            child = nullptr;
        };
        father->onEnd = [this, &child] {
            delete child;
            journal.push_back("father ends");
        };
        (isFatherFirst ? father : child)->RequestDelayedDestruction();
        (isFatherFirst ? child : father)->RequestDelayedDestruction();
        DelayedDestruction::Drain();
        EXPECT_EQ((Journal{"child ends", "father ends"}), journal) << isFatherFirst;
    }
}

TEST_F(DelayedDestructionTest, ACommandDeletedByItsOwnerLeavesTheQueue) {
    HostileCommand* const panel = Make("panel");
    panel->RequestDelayedDestruction();
    delete panel;
    EXPECT_EQ(0, DelayedDestruction::Pending());
    DelayedDestruction::Drain();
    EXPECT_EQ(Journal{"panel ends"}, journal);
}

TEST_F(DelayedDestructionTest, ADestructorThatDrainsDestroysNothingTwice) {
    HostileCommand* const panel = Make("panel");
    HostileCommand* const window = Make("window");
    panel->onEnd = [this] {
        DelayedDestruction::Drain();
        journal.push_back("panel ends");
    };
    panel->RequestDelayedDestruction();
    window->RequestDelayedDestruction();
    DelayedDestruction::Drain();
    EXPECT_EQ((Journal{"window ends", "panel ends"}), journal);
}

TEST_F(DelayedDestructionTest, ARequestFromTheOwnDestructorIsHarmless) {
    HostileCommand* const panel = Make("panel");
    panel->onEnd = [panel] { panel->RequestDelayedDestruction(); };
    delete panel;
    EXPECT_EQ(0, DelayedDestruction::Pending());
}

TEST_F(DelayedDestructionTest, ACommandMayAskForItFromItsOwnCallback) {
    HostileCommand* const dialog = Make("dialog");
    HostileCommand button(dialog, "button", journal);
    dialog->HearFirst(&button);
    dialog->HearSecond(&button);
    dialog->onFirst = [dialog] { dialog->RequestDelayedDestruction(); };
    {
        const host::EventScope event;
        button.Send();
        EXPECT_EQ((Journal{"dialog:first button", "dialog:second button"}), journal);
    }
    EXPECT_EQ("dialog ends", journal.back());
}
