#pragma once

// A command that hears the widgets of its dialogs; see DialogListener.

#include "CATCommand.h"

namespace workbench {

class DialogCommand : public CATCommand {
  public:
    DialogCommand(const DialogCommand&) = delete;
    DialogCommand& operator=(const DialogCommand&) = delete;

  protected:
    explicit DialogCommand(const CATString& name) : CATCommand(nullptr, name) {}
    ~DialogCommand() override;

  private:
    friend class DialogListener;

    /// `answer` is a std::function<void()>.
    void OnHeard(CATCommand* from, CATNotification* notification, CATCommandClientData answer);
};

} // namespace workbench
