#pragma once

// What came of one step: notifications, messages, traces and changes of widgets.

#include "host/Messages.h"
#include "host/Trace.h"
#include "session/NotificationRecorder.h"

#include <string>
#include <vector>

namespace session {

struct Happenings {
    std::vector<HeardNotification> notifications; ///< in the order in which the command heard them
    std::vector<host::Message> messages;
    std::vector<host::TraceLine> traces;
    std::vector<std::string> changes; ///< a sentence each; empty unless changes are watched
};

} // namespace session
