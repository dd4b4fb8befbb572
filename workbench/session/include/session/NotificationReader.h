#pragma once

// Turns the notifications of a command's panels into values that a session can compare.
//
//   Json Reader::Read(CATNotification& notification) const {
//       if (auto* changed = dynamic_cast<GroupChanged*>(&notification))
//           return Json{{"group", GroupOf(*changed)}};
//       return Json::object();
//   }

#include "session/Json.h"

class CATNotification;

namespace session {

class NotificationReader {
  public:
    NotificationReader() = default;
    NotificationReader(const NotificationReader&) = delete;
    NotificationReader& operator=(const NotificationReader&) = delete;
    virtual ~NotificationReader() = default;

    /// An object with one key for each value that the notification's getters give; an empty object for a
    /// notification without values and for one that the reader does not know.
    virtual Json Read(CATNotification& notification) const = 0;
};

} // namespace session
