#include "session/NotificationRecorder.h"

#include "session/NotificationReader.h"

namespace session {

CATImplementClass(NotificationRecorder, Implementation, CATCommand, CATNull);

NotificationRecorder::NotificationRecorder(CATCommand* command, const NotificationReader* reader)
    : CATCommand(command, "NotificationRecorder"), _reader(reader) {}

CATNotifPropagationMode NotificationRecorder::AnalyseNotification(CATCommand*,
                                                                  CATNotification* notification) {
    Json values = _reader == nullptr ? Json::object() : _reader->Read(*notification);
    _heard.push_back({notification->IsA(), std::move(values)});
    return CATNotifTransmitToFather;
}

} // namespace session
