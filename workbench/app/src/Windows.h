#pragma once

// Real windows, as far as this build and this machine have them.

#include "engineering/Part.h"
#include "workbench/FeatureCommand.h"

#include <filesystem>
#include <memory>
#include <string>

namespace app {

/// The windows of the dialogs, for as long as the object lives. Made after the host's application and
/// destroyed before it.
class DialogWindows {
  public:
    DialogWindows() = default;
    DialogWindows(const DialogWindows&) = delete;
    DialogWindows& operator=(const DialogWindows&) = delete;
    virtual ~DialogWindows() = default;

    /// Shows the part, in which a person picks elements for the command. Both outlive the windows' use of
    /// them.
    virtual void ShowPart(const engineering::Part& part, workbench::FeatureCommand& command) = 0;
    /// Shows what has changed, before the next step of a session.
    virtual void Settle() = 0;
    /// Writes folder/name-DIALOG.png for each dialog that is shown. Gives the path that cannot be written, or
    /// an empty one.
    virtual std::filesystem::path SavePictures(const std::filesystem::path& folder,
                                               const std::string& name) = 0;
};

/// Who answers messages: a person, or the session that is replayed.
enum class Answering { ByPerson, BySession };

/// The connection to the display. Made before everything that it shows and destroyed after it.
class WindowSystem {
  public:
    WindowSystem() = default;
    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;
    virtual ~WindowSystem() = default;

    virtual std::unique_ptr<DialogWindows> ShowDialogs(Answering answering) = 0;
    /// Serves the windows until Quit is called.
    virtual void Run() = 0;
    virtual void Quit() = 0;
};

enum class Display {
    Required, ///< a person is to see the windows
    Optional  ///< windows that nobody sees will do
};

struct OpenedWindows {
    std::unique_ptr<WindowSystem> system;
    std::string reason; ///< why there is none; empty when there is
};

OpenedWindows OpenWindowSystem(Display display);

} // namespace app
