#pragma once

// Reads the notifications of the library's panels for sessions: every value that their getters give.

#include "session/NotificationReader.h"

#include <string>
#include <vector>

namespace workbench {

class PanelNotificationReader : public session::NotificationReader {
  public:
    /// The classes that are known, in alphabetical order.
    static std::vector<std::string> Classes();

    // session::NotificationReader
    session::Json Read(CATNotification& notification) const override;
};

} // namespace workbench
