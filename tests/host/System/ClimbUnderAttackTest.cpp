// Notifications on their way up while commands and callbacks come and go.

#include "Recorders.h"
#include "host/CommandInspection.h"
#include "host/LiveObjects.h"
#include "support/AuditedTest.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"

#include <memory>

namespace {

class ClimbUnderAttackTest : public support::AuditedTest {
  protected:
    std::unique_ptr<HostileCommand> Make(CATCommand* iFather, const char* iName) {
        return std::make_unique<HostileCommand>(iFather, iName, journal);
    }

    Journal journal;
    std::unique_ptr<HostileCommand> top = Make(nullptr, "top");
    std::unique_ptr<HostileCommand> dialog = Make(top.get(), "dialog");
    std::unique_ptr<HostileCommand> frame = Make(dialog.get(), "frame");
    std::unique_ptr<HostileCommand> button = Make(frame.get(), "button");
};

} // namespace

TEST_F(ClimbUnderAttackTest, TheSenderDiesInItsOwnCallback) {
    button->HearFirst(button.get());
    button->HearSecond(button.get());
    button->onFirst = [this] { button.reset(); };
    button->Send();
    EXPECT_EQ(Journal{"button:first button"}, journal);
}

TEST_F(ClimbUnderAttackTest, TheSenderDiesWhileItsNotificationClimbs) {
    CATCommand* senderAfterwards = button.get();
    frame->onAnalyse = [this] { button.reset(); };
    dialog->onAnalyse = [&] { senderAfterwards = host::CommandInspection::OriginalSender(); };
    button->Send();
    EXPECT_EQ((Journal{"frame hears button", "dialog hears frame", "top hears dialog"}), journal);
    EXPECT_EQ(nullptr, senderAfterwards);
}

TEST_F(ClimbUnderAttackTest, TheSenderDiesBetweenTwoCallbacksOfOneCommand) {
    frame->HearFirst(nullptr);
    frame->HearSecond(nullptr);
    frame->onFirst = [this] { button.reset(); };
    button->Send();
    EXPECT_EQ((Journal{"frame:first button", "frame:second nobody"}), journal);
}

TEST_F(ClimbUnderAttackTest, TheCallbacksOnADeadSenderDoNotRun) {
    frame->HearFirst(button.get());
    frame->HearSecond(button.get());
    frame->onFirst = [this] { button.reset(); };
    button->Send();
    EXPECT_EQ(Journal{"frame:first button"}, journal);
}

TEST_F(ClimbUnderAttackTest, TheCommandThatHearsDiesAndTheNextOneIsReached) {
    frame->onAnalyse = [this] {
        button.release(); // its father goes before it; the test owns it below
        frame.reset();
    };
    const std::unique_ptr<HostileCommand> orphan(button.get());
    orphan->Send();
    EXPECT_EQ((Journal{"frame hears button", "dialog hears nobody", "top hears dialog"}), journal);
}

TEST_F(ClimbUnderAttackTest, TheCommandThatHearsDiesInItsOwnCallback) {
    frame->HearFirst(button.get());
    frame->HearSecond(button.get());
    frame->onFirst = [this] { frame.reset(); };
    button->Send();
    EXPECT_EQ(Journal{"frame:first button"}, journal);
}

TEST_F(ClimbUnderAttackTest, TheNextCommandDiesAndTheOneAboveItIsReached) {
    frame->onAnalyse = [this] { dialog.reset(); };
    button->Send();
    EXPECT_EQ((Journal{"frame hears button", "top hears frame"}), journal);
}

TEST_F(ClimbUnderAttackTest, AllCommandsOfTheClimbDie) {
    frame->onAnalyse = [this] {
        button.reset();
        frame.reset();
        dialog.reset();
        top.reset();
    };
    const int notifications = host::LiveObjects::Count("SampleNotification");
    button->Send();
    EXPECT_EQ(Journal{"frame hears button"}, journal);
    EXPECT_EQ(notifications, host::LiveObjects::Count("SampleNotification"));
}

TEST_F(ClimbUnderAttackTest, TheActiveCommandDiesOnTheWayToIt) {
    auto active = Make(nullptr, "active");
    host::CommandInspection::SetActiveCommand(active.get());
    top->onAnalyse = [&] { active.reset(); };
    button->Send();
    EXPECT_EQ((Journal{"frame hears button", "dialog hears frame", "top hears dialog"}), journal);
    EXPECT_EQ(nullptr, host::CommandInspection::ActiveCommand());
}

TEST_F(ClimbUnderAttackTest, ACallbackIsRemovedTwice) {
    frame->HearFirst(button.get());
    frame->Forget(button.get());
    frame->Forget(button.get());
    frame->HearSecond(button.get());
    button->Send();
    EXPECT_EQ(Journal{"frame:second button"}, journal);
    EXPECT_EQ(1, host::CommandInspection::AnalyseCallbacks(*frame));
}

TEST_F(ClimbUnderAttackTest, ACallbackRemovesItselfAndTheOthers) {
    frame->HearFirst(button.get());
    frame->HearSecond(button.get());
    frame->onFirst = [this] { frame->Forget(button.get()); };
    button->Send();
    EXPECT_EQ(Journal{"frame:first button"}, journal);
    EXPECT_EQ(0, host::CommandInspection::AnalyseCallbacks(*frame));
    journal.clear();
    button->Send();
    EXPECT_EQ("frame hears button", journal.front());
}

TEST_F(ClimbUnderAttackTest, ACallbackAddedDuringTheRunHearsTheNextNotification) {
    frame->HearFirst(button.get());
    frame->onFirst = [this] { frame->HearSecond(button.get()); };
    button->Send();
    EXPECT_EQ(Journal{"frame:first button"}, journal);
    frame->onFirst = nullptr;
    button->Send();
    EXPECT_EQ((Journal{"frame:first button", "frame:first button", "frame:second button"}), journal);
}

TEST_F(ClimbUnderAttackTest, ManyCallbacksAddedDuringTheRunDoNotDisturbIt) {
    frame->HearFirst(button.get());
    frame->HearSecond(button.get());
    frame->onFirst = [this] {
        for (int time = 0; time < 1000; ++time)
            frame->HearFirst(dialog.get());
    };
    button->Send();
    EXPECT_EQ((Journal{"frame:first button", "frame:second button"}), journal);
}

TEST_F(ClimbUnderAttackTest, ARunWithinTheRunKeepsTheOuterOneInOrder) {
    frame->HearFirst(button.get());
    frame->HearSecond(button.get());
    bool isOuter = true;
    frame->onFirst = [&] {
        if (!isOuter)
            return;
        isOuter = false;
        button->Send();
        journal.push_back("inner over");
    };
    button->Send();
    EXPECT_EQ((Journal{"frame:first button", "frame:first button", "frame:second button", "inner over",
                       "frame:second button"}),
              journal);
}

TEST_F(ClimbUnderAttackTest, TheCommandDiesInARunWithinTheRun) {
    frame->HearFirst(button.get());
    frame->HearSecond(button.get());
    bool isOuter = true;
    frame->onFirst = [&] {
        if (isOuter) {
            isOuter = false;
            button->Send();
        } else {
            frame.reset();
        }
    };
    button->Send();
    EXPECT_EQ((Journal{"frame:first button", "frame:first button"}), journal);
}

TEST_F(ClimbUnderAttackTest, APublisherDiesAndItsSuccessorAtTheSameAddressIsNotMistakenForIt) {
    HostileCommand* const address = button.get();
    frame->HearFirst(button.get());
    button->~HostileCommand();
    new (address) HostileCommand(frame.get(), "successor", journal);
    button->Send();
    EXPECT_EQ((Journal{"frame hears successor", "dialog hears frame", "top hears dialog"}), journal);
}

TEST_F(ClimbUnderAttackTest, AReceiverKeepsTheNotification) {
    class Keeper : public CATCommand {
      public:
        Keeper() : CATCommand(nullptr, "keeper") {}
        CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification* iNotification) override {
            iNotification->AddRef();
            kept = iNotification;
            return CATNotifDontTransmitToFather;
        }
        CATNotification* kept = nullptr;
    } keeper;
    auto sender = Make(&keeper, "sender");
    sender->Send();
    sender.reset();
    ASSERT_NE(nullptr, keeper.kept);
    EXPECT_STREQ("SampleNotification", keeper.kept->IsA());
    EXPECT_EQ(0UL, keeper.kept->Release());
}

TEST_F(ClimbUnderAttackTest, AnErrorThrownByACallbackLeavesNothingBehind) {
    frame->HearFirst(button.get());
    frame->onFirst = [this] {
        frame->Forget(button.get());
        CATThrow(new CATInternalError("Thrown"));
    };
    bool isCaught = false;
    CATTry {
        button->Send();
    }
    CATCatch(CATError, pError) {
        isCaught = true;
        pError->Release();
    }
    CATEndTry;
    EXPECT_TRUE(isCaught);
    EXPECT_EQ(nullptr, host::CommandInspection::OriginalSender());
    EXPECT_EQ(0, host::CommandInspection::AnalyseCallbacks(*frame));
    journal.clear();
    button->Send();
    EXPECT_EQ("frame hears button", journal.front());
}
