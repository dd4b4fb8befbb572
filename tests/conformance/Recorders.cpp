#include "Recorders.h"

const CATCommandMethod firstCallback = static_cast<CATCommandMethod>(&RecordingCommand::First);
const CATCommandMethod secondCallback = static_cast<CATCommandMethod>(&RecordingCommand::Second);
const CATSubscriberMethod firstEvent = static_cast<CATSubscriberMethod>(&RecordingSubscriber::First);
const CATSubscriberMethod secondEvent = static_cast<CATSubscriberMethod>(&RecordingSubscriber::Second);

RecordingCommand::RecordingCommand(CATCommand* iFather, const char* iName, Journal& ioJournal)
    : CATCommand(iFather, iName), _journal(ioJournal) {}

CATNotifPropagationMode RecordingCommand::AnalyseNotification(CATCommand* iFrom,
                                                              CATNotification* iNotification) {
    Write(" hears ", iFrom, iNotification);
    return _mode;
}

void RecordingCommand::First(CATCommand* iFrom, CATNotification* iNotification, CATCommandClientData) {
    Write(":first ", iFrom, iNotification);
}

void RecordingCommand::Second(CATCommand* iFrom, CATNotification* iNotification, CATCommandClientData) {
    Write(":second ", iFrom, iNotification);
}

void RecordingCommand::Write(const char* iWhat, CATCommand* iFrom, CATNotification* iNotification) {
    const std::string from = iFrom == nullptr ? "nobody" : iFrom->GetName().ConvertToChar();
    _journal.push_back(GetName().ConvertToChar() + std::string(iWhat) + iNotification->IsA() + " from " +
                       from);
}

RecordingSubscriber::RecordingSubscriber(const char* iName, Journal& ioJournal)
    : journal(ioJournal), _name(iName) {}

void RecordingSubscriber::First(CATCallbackEvent, void*, CATNotification* iNotification, CATSubscriberData,
                                CATCallback) {
    journal.push_back(_name + ":first " + iNotification->IsA());
}

void RecordingSubscriber::Second(CATCallbackEvent, void*, CATNotification* iNotification, CATSubscriberData,
                                 CATCallback) {
    journal.push_back(_name + ":second " + iNotification->IsA());
}
