// The audit finds each thing that a test can leave behind, and lets pass what the test names.

#include "support/Audit.h"

#include "CATCallbackManager.h"
#include "CATError.h"
#include "host/DelayedDestruction.h"
#include "host/FaultPoints.h"
#include "host/MessageCatalogs.h"
#include "host/Messages.h"
#include "host/Misuse.h"
#include "host/Preferences.h"
#include "host/Trace.h"
#include "support/RecordingCommand.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

using namespace support;

namespace {

using Texts = std::vector<std::string>;

class ListeningCommand : public CATCommand {
  public:
    ListeningCommand() : CATCommand(nullptr, "ListeningCommand") {}
    void OnNotification(CATCommand*, CATNotification*, CATCommandClientData) {}
    void OnEvent(CATCallbackEvent, void*, CATNotification*, CATSubscriberData, CATCallback) {}
};

// One thing to leave behind, what the audit says of it, and how it goes away.
struct Case {
    std::string name;
    Leftover leftover;
    std::function<void()> leave;
    std::function<void()> tidy;
    std::string finding;
};

std::unique_ptr<ListeningCommand>& Listener() {
    static std::unique_ptr<ListeningCommand> listener;
    return listener;
}

std::unique_ptr<host::RecorderSink>& Sink() {
    static std::unique_ptr<host::RecorderSink> sink;
    return sink;
}

CATNotification* kept = nullptr;

void LeaveError() {
    auto* const error = new CATError("Error_Left");
    CATUnicodeString text("the reason");
    error->SetNLSParameters(1, &text);
    CATError::GetReturn(CATReturnKindError, error, nullptr, "here", 1);
}

std::vector<Case> BodyCases() {
    return {
        {"PendingDestruction", Leftover::PendingDestruction,
         [] { (new CATCommand(nullptr, "Doomed"))->RequestDelayedDestruction(); },
         [] { host::DelayedDestruction::Drain(); }, "1 command(s) still wait for their destruction"},
        {"LastError", Leftover::LastError, LeaveError, [] { CATError::CATCleanLastError(); },
         "an error that nobody looked at: CATError Error_Left (the reason)"},
        {"Language", Leftover::Language, [] { host::MessageCatalogs::SetLanguage("German"); },
         [] { host::MessageCatalogs::SetLanguage(""); }, "the language is 'German'"},
        {"TraceLevelOfOneChannel", Leftover::TraceLevels, [] { host::Trace::SetLevel("OrvKv9Errors", 1); },
         [] { host::Trace::Reset(); }, "trace levels were lowered: OrvKv9Errors"},
        {"TraceLevelOfAllChannels", Leftover::TraceLevels, [] { host::Trace::SetLevel("", 2); },
         [] { host::Trace::Reset(); },
         "trace levels were lowered: OrvKv9Errors; OrvKv9SubFrames; OrvKv9ViewBase; any other channel"},
        {"FaultPoints", Leftover::FaultPoints, [] { host::FaultPoints::StartCounting(); },
         [] { host::FaultPoints::Stop(); }, "fault points are armed"},
        {"Preferences", Leftover::Preferences, [] { host::Preferences::Withdraw(); },
         [] { host::Preferences::KeepInMemory(); }, "the preferences are withdrawn"},
        {"PreferencesFile", Leftover::Preferences,
         [] { host::Preferences::KeepInFile("/nowhere/preferences"); },
         [] { host::Preferences::KeepInMemory(); }, "the preferences are kept in /nowhere/preferences"},
        {"Misuse", Leftover::Misuse, [] { host::Misuse::Record("a widget without parent"); },
         [] { host::Misuse::Clear(); }, "misuses: a widget without parent"},
        {"MissingTexts", Leftover::MissingTexts, [] { host::MessageCatalogs::RecordMissing("Panel: Title"); },
         [] { host::MessageCatalogs::Reset(); }, "missing texts: Panel: Title"},
        {"Messages", Leftover::Messages,
         [] {
             host::Messages::Ask({CATULong{0}, "Error", "It failed.", "Title", 0});
         },
         [] { host::Messages::Reset(); }, "messages that nobody looked at: \"It failed.\""},
        {"QueuedAnswers", Leftover::Messages, [] { host::Messages::QueueAnswer(1024); },
         [] { host::Messages::Reset(); },
         "messages that nobody looked at: 1 queued answer(s) not asked for"}};
}

std::vector<Case> EndCases() {
    return {{"LiveObjects", Leftover::LiveObjects, [] { kept = new CATNotification(); },
             [] { kept->Release(); }, "live objects: 1 CATNotification"},
            {"Subscriptions", Leftover::Subscriptions,
             [] {
                 AddCallback(Listener().get(), Listener().get(), "CATNotification",
                             static_cast<CATSubscriberMethod>(&ListeningCommand::OnEvent));
             },
             [] { RemoveSubscriberCallbacks(Listener().get(), Listener().get()); },
             "event subscriptions: 0 before, 1 after"},
            {"AnalyseCallbacks", Leftover::AnalyseCallbacks,
             [] {
                 Listener()->AddAnalyseNotificationCB(
                     Listener().get(), "CATNotification",
                     static_cast<CATCommandMethod>(&ListeningCommand::OnNotification), nullptr);
             },
             [] { Listener()->RemoveAnalyseNotificationCB(Listener().get(), "CATNotification", nullptr); },
             "analyse callbacks: 0 before, 1 after"},
            {"TraceSinks", Leftover::TraceSinks, [] { host::Trace::AddSink(*Sink()); },
             [] { host::Trace::RemoveSink(*Sink()); }, "trace sinks: 0 before, 1 after"}};
}

std::string NameOf(const testing::TestParamInfo<Case>& iCase) {
    return iCase.param.name;
}

class AuditTest : public testing::TestWithParam<Case> {
  protected:
    AuditTest() {
        Audit::CleanUp();
        Listener() = std::make_unique<ListeningCommand>();
        Sink() = std::make_unique<host::RecorderSink>();
    }
    ~AuditTest() override {
        Listener().reset();
        Sink().reset();
        Audit::CleanUp();
    }
};

class AuditOfBodyTest : public AuditTest {};
class AuditAtEndTest : public AuditTest {};

TEST_P(AuditOfBodyTest, FindsWhatIsLeftAndNothingOnceItIsGone) {
    const Audit audit;
    GetParam().leave();
    EXPECT_EQ(audit.FindingsOfBody(), Texts({GetParam().finding}));
    GetParam().tidy();
    EXPECT_EQ(audit.FindingsOfBody(), Texts());
}

TEST_P(AuditOfBodyTest, LetsPassWhatTheTestNames) {
    Audit audit;
    audit.Allow(GetParam().leftover, "the test is about it");
    GetParam().leave();
    EXPECT_EQ(audit.FindingsOfBody(), Texts());
    GetParam().tidy();
}

TEST_P(AuditAtEndTest, FindsWhatIsLeftAndNothingOnceItIsGone) {
    const Audit audit;
    GetParam().leave();
    EXPECT_EQ(audit.FindingsAtEnd(), Texts({GetParam().finding}));
    GetParam().tidy();
    EXPECT_EQ(audit.FindingsAtEnd(), Texts());
}

TEST_P(AuditAtEndTest, LetsPassWhatTheTestNames) {
    Audit audit;
    audit.Allow(GetParam().leftover, "the test is about it");
    GetParam().leave();
    EXPECT_EQ(audit.FindingsAtEnd(), Texts());
    GetParam().tidy();
}

INSTANTIATE_TEST_SUITE_P(Each, AuditOfBodyTest, testing::ValuesIn(BodyCases()), NameOf);
INSTANTIATE_TEST_SUITE_P(Each, AuditAtEndTest, testing::ValuesIn(EndCases()), NameOf);

TEST(AuditOfObjectsTest, NoticesAnObjectThatWasReleasedTooOften) {
    auto* const notification = new CATNotification();
    const Audit audit;
    notification->Release();
    EXPECT_EQ(audit.FindingsAtEnd(), Texts({"live objects: -1 CATNotification"}));
}

} // namespace
