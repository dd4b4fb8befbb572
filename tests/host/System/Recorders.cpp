#include "Recorders.h"

CATImplementClass(SampleNotification, Implementation, CATNotification, CATNull);
CATImplementClass(SpecialNotification, Implementation, SampleNotification, CATNull);

namespace {

const CATCommandMethod first = static_cast<CATCommandMethod>(&HostileCommand::First);
const CATCommandMethod second = static_cast<CATCommandMethod>(&HostileCommand::Second);

// Runs a copy: the action may destroy the object that holds it.
void Run(std::function<void()> iAction) {
    if (iAction)
        iAction();
}

} // namespace

HostileCommand::HostileCommand(CATCommand* iFather, const char* iName, Journal& ioJournal)
    : CATCommand(iFather, iName), _journal(ioJournal) {}

HostileCommand::~HostileCommand() {
    Run(onEnd);
}

void HostileCommand::HearFirst(CATCommand* iPublisher, CATNotification* iNotification) {
    AddAnalyseNotificationCB(iPublisher, iNotification, first, nullptr);
}

void HostileCommand::HearSecond(CATCommand* iPublisher, CATNotification* iNotification) {
    AddAnalyseNotificationCB(iPublisher, iNotification, second, nullptr);
}

void HostileCommand::Forget(CATCommand* iPublisher, CATNotification* iNotification) {
    RemoveAnalyseNotificationCB(iPublisher, iNotification, nullptr);
}

void HostileCommand::Send() {
    SendNotification(GetFather(), new SampleNotification);
}

CATNotifPropagationMode HostileCommand::AnalyseNotification(CATCommand* iFrom, CATNotification*) {
    Write(" hears ", iFrom);
    const CATNotifPropagationMode mode = answer;
    Run(onAnalyse);
    return mode;
}

void HostileCommand::First(CATCommand* iFrom, CATNotification*, CATCommandClientData) {
    Write(":first ", iFrom);
    Run(onFirst);
}

void HostileCommand::Second(CATCommand* iFrom, CATNotification*, CATCommandClientData) {
    Write(":second ", iFrom);
    Run(onSecond);
}

void HostileCommand::Write(const std::string& iWhat, const CATCommand* iFrom) {
    const std::string from = iFrom == nullptr ? "nobody" : iFrom->GetName().ConvertToChar();
    _journal.push_back(GetName().ConvertToChar() + iWhat + from);
}

HostileSubscriber::HostileSubscriber(const char* iName, Journal& ioJournal)
    : _name(iName), _journal(ioJournal) {}

CATCallback HostileSubscriber::HearFirst(CATBaseUnknown& ioPublisher, const char* iEvent) {
    return AddCallback(this, &ioPublisher, iEvent,
                       static_cast<CATSubscriberMethod>(&HostileSubscriber::First));
}

CATCallback HostileSubscriber::HearSecond(CATBaseUnknown& ioPublisher, const char* iEvent) {
    return AddCallback(this, &ioPublisher, iEvent,
                       static_cast<CATSubscriberMethod>(&HostileSubscriber::Second));
}

void HostileSubscriber::First(CATCallbackEvent, void*, CATNotification*, CATSubscriberData, CATCallback) {
    _journal.push_back(_name + ":first");
    Run(onFirst);
}

void HostileSubscriber::Second(CATCallbackEvent, void*, CATNotification*, CATSubscriberData, CATCallback) {
    _journal.push_back(_name + ":second");
    Run(onSecond);
}
