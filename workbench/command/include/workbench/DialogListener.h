#pragma once

// What a command hears of one dialog. Widgets are heard only by commands to which their notifications climb,
// so the command listens for whoever does a part of its work.
//
//   DialogListener listener(command);
//   listener.ListenTo(panel, panel->GetDiaOKNotification(), [this] { Accept(); });

#include "workbench/DialogCommand.h"

#include <functional>
#include <memory>
#include <vector>

namespace workbench {

class DialogListener {
  public:
    /// The command is not owned and outlives the listening.
    explicit DialogListener(DialogCommand& command) : _command(command) {}

    /// `answer` is called when the widget sends its notification. False, and nothing heard, without a
    /// notification: the widget would be heard with everything that it sends.
    [[nodiscard]] bool ListenTo(CATCommand* widget, CATNotification* notification,
                                std::function<void()> answer);
    /// Hears nothing any more. To be called while the widgets are there.
    void Stop();

  private:
    struct Subscription {
        CATCommand* widget;            ///< of the dialog
        CATNotification* notification; ///< that widget's own
        std::unique_ptr<std::function<void()>> answer;
    };

    DialogCommand& _command;
    std::vector<Subscription> _subscriptions;
};

} // namespace workbench
