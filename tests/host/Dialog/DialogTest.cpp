#include "DialogTest.h"

#include "host/CommandInspection.h"
#include "host/DelayedDestruction.h"
#include "host/EventScope.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/LiveObjects.h"
#include "host/MessageCatalogs.h"
#include "host/Messages.h"
#include "host/Misuse.h"

#include <utility>

std::string Result(const host::Outcome& iOutcome) {
    if (iOutcome.done)
        return iOutcome.reason.empty() ? "done" : "done, with the reason " + iOutcome.reason;
    return iOutcome.reason.empty() ? "refused without a reason" : iOutcome.reason;
}

std::string InShort(const CATNotification& iNotification) {
    const std::string prefix = "CATDlg";
    const std::string suffix = "Notification";
    std::string text = iNotification.IsA();
    if (text.compare(0, prefix.size(), prefix) == 0)
        text = text.substr(prefix.size(), text.size() - prefix.size() - suffix.size());
    const CATCommand* const sender = host::CommandInspection::OriginalSender();
    return text + " " + (sender == nullptr ? "?" : sender->GetName().ConvertToChar());
}

void ListeningDialog::Hear(CATCommand& ioPublisher, CATNotification* iNotification) {
    AddAnalyseNotificationCB(&ioPublisher, iNotification,
                             static_cast<CATCommandMethod>(&ListeningDialog::OnNotified), nullptr);
}

void ListeningDialog::HearClass(CATCommand& ioPublisher, const char* iClass) {
    AddAnalyseNotificationCB(&ioPublisher, iClass,
                             static_cast<CATCommandMethod>(&ListeningDialog::OnNotified), nullptr);
}

void ListeningDialog::Ignore(CATCommand& ioPublisher, CATNotification* iNotification) {
    RemoveAnalyseNotificationCB(&ioPublisher, iNotification, nullptr);
}

Texts ListeningDialog::TakeHeard() {
    return std::exchange(*_heard, Texts());
}

void ListeningDialog::OnNotified(CATCommand*, CATNotification* iNotification, CATCommandClientData) {
    // Both survive what the reaction does to the dialog.
    const std::shared_ptr<Texts> heard = _heard;
    const std::function<std::string()> reaction = onHeard;
    heard->push_back(InShort(*iNotification));
    const std::size_t number = heard->size() - 1;
    const std::string more = reaction ? reaction() : std::string();
    if (!more.empty())
        (*heard)[number] += " " + more;
}

CATNotifPropagationMode TopCommand::AnalyseNotification(CATCommand*, CATNotification* iNotification) {
    _heard.push_back(InShort(*iNotification));
    return CATNotifDontTransmitToFather;
}

Texts TopCommand::TakeHeard() {
    return std::exchange(_heard, Texts());
}

LeftoverCheck::LeftoverCheck()
    : _liveObjects(host::LiveObjects::CountByClass()),
      _subscriptions(host::CommandInspection::Subscriptions()),
      _analyseCallbacks(host::CommandInspection::AnalyseCallbacks()) {}

LeftoverCheck::~LeftoverCheck() {
    EXPECT_EQ(host::LiveObjects::CountByClass(), _liveObjects);
    EXPECT_EQ(host::CommandInspection::Subscriptions(), _subscriptions);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), _analyseCallbacks);
    EXPECT_EQ(host::DelayedDestruction::Pending(), 0);
    EXPECT_EQ(host::Inspector::PowerInputOwner(), nullptr);
    EXPECT_EQ(host::Inspector::Windows().size(), 0U);
    EXPECT_FALSE(host::Messages::IsWaiting());
    EXPECT_FALSE(host::EventScope::IsOpen());
}

DialogTest::DialogTest() : application(std::make_unique<host::Application>()) {
    host::Application::SetActiveCommand(&command);
    dialog = &MakeDialog("Dlg", CATDlgWndOK | CATDlgWndAPPLY | CATDlgWndCANCEL);
}

void DialogTest::TearDown() {
    EXPECT_EQ(TakeMisuses(), Texts());
    host::FaultPoints::Stop();
    application.reset();
    host::MessageCatalogs::Reset();
}

ListeningDialog& DialogTest::MakeDialog(const char* iName, CATDlgStyle iStyle) {
    auto* const made = new ListeningDialog(&MainWindow(), iName, iStyle);
    made->SetVisibility(CATDlgShow);
    return *made;
}

Texts DialogTest::TakeMisuses() {
    const Texts misuses = host::Misuse::Recorded();
    host::Misuse::Clear();
    return misuses;
}
