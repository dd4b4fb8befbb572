// Counts over commands and subscriptions, the original sender, the active command.

#include "host/CommandInspection.h"

#include "Recorders.h"
#include "support/AuditedTest.h"

#include <memory>

namespace {

using host::CommandInspection;

class CommandInspectionTest : public support::AuditedTest {
  protected:
    CommandInspectionTest() { CommandInspection::Reset(); }
    void TearDown() override {
        CommandInspection::SetActiveCommand(nullptr);
        AuditedTest::TearDown();
    }

    Journal journal;
    HostileCommand top{nullptr, "top", journal};
    HostileCommand dialog{&top, "dialog", journal};
    HostileCommand button{&dialog, "button", journal};
};

} // namespace

TEST_F(CommandInspectionTest, ANotificationThatNobodyTreatsIsCounted) {
    button.Send();
    EXPECT_EQ(1, CommandInspection::UndeliveredNotifications());
    top.answer = CATNotifDontTransmitToFather;
    button.Send();
    EXPECT_EQ(1, CommandInspection::UndeliveredNotifications());
    top.answer = CATNotifTransmitToFather;
    top.HearFirst(&button);
    button.Send();
    EXPECT_EQ(1, CommandInspection::UndeliveredNotifications());
    CommandInspection::Reset();
    EXPECT_EQ(0, CommandInspection::UndeliveredNotifications());
}

TEST_F(CommandInspectionTest, SubscriptionsAreCountedAltogetherAndByPublisher) {
    const int before = CommandInspection::Subscriptions();
    HostileSubscriber watcher("watcher", journal);
    const CATCallback first = watcher.HearFirst(dialog);
    watcher.HearSecond(dialog);
    watcher.HearFirst(button);
    EXPECT_EQ(before + 3, CommandInspection::Subscriptions());
    EXPECT_EQ(2, CommandInspection::SubscriptionsOn(dialog));
    EXPECT_EQ(1, CommandInspection::SubscriptionsOn(button));
    EXPECT_EQ(0, CommandInspection::SubscriptionsOn(top));
    RemoveCallback(&watcher, &dialog, first);
    EXPECT_EQ(1, CommandInspection::SubscriptionsOn(dialog));
    EXPECT_EQ(before + 2, CommandInspection::Subscriptions());
}

TEST_F(CommandInspectionTest, OneRemovedDuringItsDispatchNoLongerCounts) {
    HostileSubscriber watcher("watcher", journal);
    const CATCallback id = watcher.HearFirst(dialog);
    int during = -1;
    watcher.onFirst = [&] {
        RemoveCallback(&watcher, &dialog, id);
        during = CommandInspection::SubscriptionsOn(dialog);
    };
    SampleNotification notification;
    DispatchCallbacks(&notification, &dialog);
    EXPECT_EQ(Journal{"watcher:first"}, journal);
    EXPECT_EQ(0, during);
}

TEST_F(CommandInspectionTest, AnalyseCallbacksAreCountedAltogetherAndByCommand) {
    const int before = CommandInspection::AnalyseCallbacks();
    top.HearFirst(&button);
    dialog.HearFirst(&button);
    dialog.HearSecond(&dialog);
    EXPECT_EQ(1, CommandInspection::AnalyseCallbacks(top));
    EXPECT_EQ(2, CommandInspection::AnalyseCallbacks(dialog));
    EXPECT_EQ(0, CommandInspection::AnalyseCallbacks(button));
    EXPECT_EQ(before + 3, CommandInspection::AnalyseCallbacks());
    dialog.Forget(&button);
    EXPECT_EQ(1, CommandInspection::AnalyseCallbacks(dialog));
    EXPECT_EQ(before + 2, CommandInspection::AnalyseCallbacks());
}

TEST_F(CommandInspectionTest, AnyPublisherCallbacksEndWithTheirCommand) {
    const int before = CommandInspection::AnalyseCallbacks();
    {
        HostileCommand listener(nullptr, "listener", journal);
        listener.HearFirst(nullptr);
        EXPECT_EQ(before + 1, CommandInspection::AnalyseCallbacks());
    }
    EXPECT_EQ(before, CommandInspection::AnalyseCallbacks());
}

TEST_F(CommandInspectionTest, TheOriginalSenderIsToldDuringTheClimbAlone) {
    EXPECT_EQ(nullptr, CommandInspection::OriginalSender());
    std::vector<CATCommand*> senders;
    top.onAnalyse = [&] { senders.push_back(CommandInspection::OriginalSender()); };
    dialog.onAnalyse = top.onAnalyse;
    button.Send();
    EXPECT_EQ((std::vector<CATCommand*>{&button, &button}), senders);
    EXPECT_EQ(nullptr, CommandInspection::OriginalSender());
}

TEST_F(CommandInspectionTest, ASendWithinASendHasASenderOfItsOwn) {
    std::vector<CATCommand*> senders;
    const auto note = [&] { senders.push_back(CommandInspection::OriginalSender()); };
    dialog.HearFirst(&button);
    dialog.onFirst = [&] {
        note();
        dialog.Send();
        note();
    };
    top.onAnalyse = note;
    button.Send();
    EXPECT_EQ((std::vector<CATCommand*>{&button, &dialog, &button}), senders);
}

TEST_F(CommandInspectionTest, TheActiveCommandHearsWhatNobodyBelowHasAnswered) {
    HostileCommand selector(nullptr, "selector", journal);
    HostileCommand active(&selector, "active", journal);
    CommandInspection::SetActiveCommand(&active);
    EXPECT_EQ(&active, CommandInspection::ActiveCommand());
    button.Send();
    EXPECT_EQ(
        (Journal{"dialog hears button", "top hears dialog", "active hears top", "selector hears active"}),
        journal);
    EXPECT_EQ(1, CommandInspection::UndeliveredNotifications());
    journal.clear();
    active.answer = CATNotifDontTransmitToFather;
    button.Send();
    EXPECT_EQ((Journal{"dialog hears button", "top hears dialog", "active hears top"}), journal);
    EXPECT_EQ(1, CommandInspection::UndeliveredNotifications());
}

TEST_F(CommandInspectionTest, TheActiveCommandHearsOnceWhenItStandsOnTheWay) {
    CommandInspection::SetActiveCommand(&dialog);
    button.Send();
    EXPECT_EQ((Journal{"dialog hears button", "top hears dialog"}), journal);
}

TEST_F(CommandInspectionTest, TheActiveCommandDoesNotHearItself) {
    CommandInspection::SetActiveCommand(&dialog);
    dialog.Send();
    EXPECT_EQ(Journal{"top hears dialog"}, journal);
}

TEST_F(CommandInspectionTest, ADestroyedCommandIsNoLongerActive) {
    {
        HostileCommand active(nullptr, "active", journal);
        CommandInspection::SetActiveCommand(&active);
    }
    EXPECT_EQ(nullptr, CommandInspection::ActiveCommand());
    button.Send();
    EXPECT_EQ((Journal{"dialog hears button", "top hears dialog"}), journal);
}
