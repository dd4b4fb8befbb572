#pragma once

// The running feature command with everything around it, in the order in which it has to come and go.

#include "Catalogue.h"
#include "host/Application.h"
#include "session/NotificationRecorder.h"
#include "session/Player.h"
#include "workbench/CommandSteps.h"
#include "workbench/FeatureCommand.h"
#include "workbench/PanelNotificationReader.h"

namespace app {

class Scene {
  public:
    /// The data outlive the scene.
    Scene(const WorkData& data, workbench::FeatureCommand::Mode mode);

    workbench::FeatureCommand& Command() { return _command; }
    session::NotificationRecorder& Recorder() { return _recorder; }

    /// Lets sessions do what the command can do.
    void AddStepsTo(session::Player& player);
    /// Opens the dialog; false where memory is short.
    [[nodiscard]] bool Start() { return _command.Start(); }

  private:
    workbench::PanelNotificationReader _reader;
    workbench::FeatureCommand _command;
    workbench::PickStep _pick{_command};
    workbench::SetStep _set{_command};
    session::NotificationRecorder _recorder;
    host::Application _application; ///< its end destroys the dialogs, which may still reach the command
};

} // namespace app
