#include "RecordingCommand.h"

#include "host/CommandInspection.h"

namespace support {

CATImplementClass(RecordingCommand, Implementation, CATCommand, CATNull);

RecordingCommand::RecordingCommand(CATCommand* iFather) : CATCommand(iFather, "RecordingCommand") {}

RecordingCommand::~RecordingCommand() {
    Forget();
}

std::vector<std::string> RecordingCommand::Classes() const {
    std::vector<std::string> classes;
    for (const HeardNotification& each : _heard)
        classes.push_back(each.className);
    return classes;
}

std::vector<std::string> RecordingCommand::TakeClasses() {
    std::vector<std::string> classes = Classes();
    Forget();
    return classes;
}

void RecordingCommand::Forget() {
    for (const HeardNotification& each : _heard)
        each.notification->Release();
    _heard.clear();
}

CATNotifPropagationMode RecordingCommand::AnalyseNotification(CATCommand* iFrom,
                                                              CATNotification* iNotification) {
    iNotification->AddRef();
    _heard.push_back({iNotification->IsA(), iNotification, iFrom, host::CommandInspection::OriginalSender()});
    return CATNotifDontTransmitToFather;
}

CATNotification* RecordingCommand::LastOf(const char* iClassName) const {
    for (auto each = _heard.rbegin(); each != _heard.rend(); ++each)
        if (each->notification->IsAKindOf(iClassName) != 0)
            return each->notification;
    return nullptr;
}

} // namespace support
