#pragma once

// Hears everything that a command hears, before the command does, and passes it on.
//
//   FeatureCommand command(...);
//   NotificationRecorder recorder(&command, &reader);
//   host::Application::SetActiveCommand(&recorder);
//   ... a panel is used ...
//   recorder.Heard().back().className == "OrvKvTypeSelectedNotification"

#include "CATCommand.h"
#include "session/Json.h"

#include <string>
#include <vector>

namespace session {

class NotificationReader;

struct HeardNotification {
    std::string className;
    Json values; ///< an object; what the reader made of it

    bool operator==(const HeardNotification&) const = default;
};

/// The recorder stands below the command, so that what it hears climbs on to it untouched.
class NotificationRecorder : public CATCommand {
    CATDeclareClass;

  public:
    /// The command may be null; the reader too, then no notification has values. Neither is owned, both
    /// outlive the recorder.
    NotificationRecorder(CATCommand* command, const NotificationReader* reader);
    NotificationRecorder(const NotificationRecorder&) = delete;
    NotificationRecorder& operator=(const NotificationRecorder&) = delete;

    const std::vector<HeardNotification>& Heard() const { return _heard; }
    void Forget() { _heard.clear(); }

    // CATCommand
    CATNotifPropagationMode AnalyseNotification(CATCommand* from, CATNotification* notification) override;

  private:
    const NotificationReader* _reader; ///< not owned; may be null
    std::vector<HeardNotification> _heard;
};

} // namespace session
