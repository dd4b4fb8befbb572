// Analyse callbacks: methods of a command that answer the notifications of commands below it.

#include "CATCommand.h"

#include "Recorders.h"

namespace {

class AnalyseCallbacks : public PlatformTest {
  protected:
    // Sends the button's own notification as a widget does: it keeps the object.
    void Press() {
        pressed->AddRef();
        button.SendNotification(&frame, pressed.get());
    }

    Journal journal;
    RecordingCommand command{nullptr, "command", journal};
    RecordingCommand dialog{&command, "dialog", journal};
    RecordingCommand frame{&dialog, "frame", journal};
    RecordingCommand button{&frame, "button", journal};
    Owned<CATNotification> pressed{new SampleNotification};
    Owned<CATNotification> released{new SampleNotification};
};

// Writes down all three arguments of a callback.
class ArgumentsRecorder : public CATCommand {
  public:
    ArgumentsRecorder() : CATCommand(nullptr, "arguments") {}
    void Hear(CATCommand* iFrom, CATNotification* iNotification, CATCommandClientData iData) {
        from = iFrom;
        notification = iNotification;
        data = iData;
    }
    CATCommand* from = nullptr;
    CATNotification* notification = nullptr;
    CATCommandClientData data = nullptr;
};

// Ends its own callbacks from inside the first of them.
class Quitter : public RecordingCommand {
  public:
    using RecordingCommand::RecordingCommand;
    void Quit(CATCommand* iFrom, CATNotification* iNotification, CATCommandClientData iData) {
        First(iFrom, iNotification, iData);
        RemoveAnalyseNotificationCB(iFrom, iNotification, iData);
    }
};

} // namespace

CERTAIN(AnalyseCallbacks, APublishersNotificationRunsTheMethod) {
    dialog.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    Press();
    ASSERT_FALSE(journal.empty());
    EXPECT_EQ(0U, journal.back().find("dialog:first SampleNotification"));
}

CERTAIN(AnalyseCallbacks, TheMethodGetsSenderNotificationAndData) {
    ArgumentsRecorder listener;
    CATCommand sender(&listener, "sender");
    int data = 0;
    listener.AddAnalyseNotificationCB(&sender, pressed.get(),
                                      static_cast<CATCommandMethod>(&ArgumentsRecorder::Hear), &data);
    pressed->AddRef();
    sender.SendNotification(&listener, pressed.get());
    EXPECT_EQ(&sender, listener.from);
    EXPECT_EQ(pressed.get(), listener.notification);
    EXPECT_EQ(&data, listener.data);
}

CERTAIN(AnalyseCallbacks, ANotificationIsAlsoNamedByItsClass) {
    dialog.AddAnalyseNotificationCB(&button, "OtherNotification", firstCallback, nullptr);
    button.SendNotification(&frame, new OtherNotification);
    EXPECT_EQ(
        (Journal{"frame hears OtherNotification from button", "dialog:first OtherNotification from button"}),
        journal);
}

CERTAIN(AnalyseCallbacks, OnlyTheNamedClassMatches) {
    frame.AddAnalyseNotificationCB(&button, "OtherNotification", firstCallback, nullptr);
    frame.AddAnalyseNotificationCB(&button, "SpecialNotification", secondCallback, nullptr);
    Press();
    ASSERT_FALSE(journal.empty());
    EXPECT_EQ("frame hears SampleNotification from button", journal.front());
}

CERTAIN(AnalyseCallbacks, OnlyTheNamedObjectMatches) {
    dialog.AddAnalyseNotificationCB(&button, released.get(), firstCallback, nullptr);
    Press();
    EXPECT_EQ(
        (Journal{"frame hears SampleNotification from button", "dialog hears SampleNotification from frame",
                 "command hears SampleNotification from dialog"}),
        journal);
}

CERTAIN(AnalyseCallbacks, OnlyTheNamedPublisherMatches) {
    RecordingCommand other(&frame, "other", journal);
    dialog.AddAnalyseNotificationCB(&other, pressed.get(), firstCallback, nullptr);
    Press();
    EXPECT_EQ(
        (Journal{"frame hears SampleNotification from button", "dialog hears SampleNotification from frame",
                 "command hears SampleNotification from dialog"}),
        journal);
}

CERTAIN(AnalyseCallbacks, ACommandHearsAPublisherFarBelowIt) {
    command.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    Press();
    EXPECT_EQ(
        (Journal{"frame hears SampleNotification from button", "dialog hears SampleNotification from frame",
                 "command:first SampleNotification from button"}),
        journal);
}

CERTAIN(AnalyseCallbacks, ACommandHearsItself) {
    button.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    Press();
    ASSERT_FALSE(journal.empty());
    EXPECT_EQ("button:first SampleNotification from button", journal.front());
}

ASSUMED(AnalyseCallbacks, TheSendersOwnCallbacksComeFirst,
        "open: simplest rule that lets a dialog hear itself") {
    dialog.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    button.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    Press();
    EXPECT_EQ(Journal{"button:first SampleNotification from button"}, journal);
}

ASSUMED(AnalyseCallbacks, AMatchEndsTheClimb,
        "recalled: that is why the feature command never hears the widgets of the panels") {
    frame.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    dialog.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    Press();
    EXPECT_EQ(Journal{"frame:first SampleNotification from button"}, journal);
}

ASSUMED(AnalyseCallbacks, ACallbackComesBeforeTheCommandsOwnAnalysis,
        "recalled: the match is made before the command is asked what to do with the rest") {
    dialog.Answer(CATNotifDontTransmitToFather);
    dialog.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    Press();
    EXPECT_EQ((Journal{"frame hears SampleNotification from button",
                       "dialog:first SampleNotification from button"}),
              journal);
}

ASSUMED(AnalyseCallbacks, SeveralMethodsForOnePairRunInTheirOrder, "open: order of registration") {
    frame.AddAnalyseNotificationCB(&button, pressed.get(), secondCallback, nullptr);
    frame.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    frame.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    Press();
    EXPECT_EQ(
        (Journal{"frame:second SampleNotification from button", "frame:first SampleNotification from button",
                 "frame:first SampleNotification from button"}),
        journal);
}

ASSUMED(AnalyseCallbacks, ANullPublisherStandsForAny, "recalled; the panels do not use it") {
    frame.AddAnalyseNotificationCB(nullptr, pressed.get(), firstCallback, nullptr);
    Press();
    EXPECT_EQ(Journal{"frame:first SampleNotification from button"}, journal);
}

ASSUMED(AnalyseCallbacks, ANullNotificationStandsForAny, "recalled; the panels do not use it") {
    frame.AddAnalyseNotificationCB(&button, static_cast<CATNotification*>(nullptr), firstCallback, nullptr);
    Press();
    button.SendNotification(&frame, new OtherNotification);
    EXPECT_EQ(
        (Journal{"frame:first SampleNotification from button", "frame:first OtherNotification from button"}),
        journal);
}

ASSUMED(AnalyseCallbacks, AClassNameStandsForTheClassesBelowItToo,
        "open: a notification is a kind of its bases") {
    frame.AddAnalyseNotificationCB(&button, "SampleNotification", firstCallback, nullptr);
    button.SendNotification(&frame, new SpecialNotification);
    button.SendNotification(&command, new OtherNotification);
    EXPECT_EQ((Journal{"frame:first SpecialNotification from button",
                       "command hears OtherNotification from button"}),
              journal);
}

ASSUMED(AnalyseCallbacks, ARemovedCallbackNoLongerRuns,
        "recalled: publisher, notification and data name it") {
    int data = 0;
    frame.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, &data);
    frame.RemoveAnalyseNotificationCB(&button, pressed.get(), nullptr); // other data: stays
    frame.RemoveAnalyseNotificationCB(&button, released.get(), &data);  // other notification: stays
    frame.RemoveAnalyseNotificationCB(&dialog, pressed.get(), &data);   // other publisher: stays
    button.SendNotification(&frame, (pressed->AddRef(), pressed.get()));
    EXPECT_EQ(Journal{"frame:first SampleNotification from button"}, journal);
    journal.clear();
    frame.RemoveAnalyseNotificationCB(&button, pressed.get(), &data);
    Press();
    EXPECT_EQ("frame hears SampleNotification from button", journal.front());
}

ASSUMED(AnalyseCallbacks, ACallbackByClassNameIsRemovedByIt, "recalled: the same form as for adding") {
    frame.AddAnalyseNotificationCB(&button, "SampleNotification", firstCallback, nullptr);
    frame.RemoveAnalyseNotificationCB(&button, "SampleNotification", nullptr);
    Press();
    EXPECT_EQ("frame hears SampleNotification from button", journal.front());
}

CERTAIN(AnalyseCallbacks, RemovingWhatWasNeverAddedIsHarmless) {
    frame.RemoveAnalyseNotificationCB(&button, pressed.get(), nullptr);
    frame.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    frame.RemoveAnalyseNotificationCB(&button, released.get(), nullptr);
    Press();
    EXPECT_EQ(Journal{"frame:first SampleNotification from button"}, journal);
}

ASSUMED(AnalyseCallbacks, RemovingFromANullPublisherIsHarmless, "open: a panel that was half built does so") {
    frame.AddAnalyseNotificationCB(&button, pressed.get(), firstCallback, nullptr);
    frame.RemoveAnalyseNotificationCB(nullptr, pressed.get(), nullptr);
    Press();
    EXPECT_EQ(Journal{"frame:first SampleNotification from button"}, journal);
}

ASSUMED(AnalyseCallbacks, ACallbackMayEndItself, "open: what is removed meanwhile does not run again") {
    Quitter quitter(&dialog, "quitter", journal);
    CATCommand sender(&quitter, "sender");
    quitter.AddAnalyseNotificationCB(&sender, pressed.get(), static_cast<CATCommandMethod>(&Quitter::Quit),
                                     nullptr);
    pressed->AddRef();
    sender.SendNotification(&quitter, pressed.get());
    EXPECT_EQ(Journal{"quitter:first SampleNotification from sender"}, journal);
    pressed->AddRef();
    sender.SendNotification(&quitter, pressed.get());
    EXPECT_EQ("quitter hears SampleNotification from sender", journal[1]);
}

ASSUMED(AnalyseCallbacks, ThePublishersEndEndsTheCallbacksOnIt,
        "open: the next command may get the same address") {
    auto* passing = new CATCommand(&frame, "passing");
    frame.AddAnalyseNotificationCB(passing, pressed.get(), firstCallback, nullptr);
    frame.AddAnalyseNotificationCB(&button, pressed.get(), secondCallback, nullptr);
    delete passing;
    Press();
    EXPECT_EQ(Journal{"frame:second SampleNotification from button"}, journal);
}
