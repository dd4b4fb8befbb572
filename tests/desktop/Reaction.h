#pragma once

#include "CATCommand.h"

#include <functional>
#include <string>

namespace desktop_test {

// The active command of an application for as long as it lives: does something when a notification of one
// class reaches it, as a program would.
class Reaction : public CATCommand {
    CATDeclareClass;

  public:
    Reaction(std::string iNotificationClass, std::function<void()> iReact);
    ~Reaction() override;
    Reaction(const Reaction&) = delete;
    Reaction& operator=(const Reaction&) = delete;

    int Count() const { return _count; }

    CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification) override;

  private:
    std::string _notificationClass;
    std::function<void()> _react;
    CATCommand* _before; // not owned
    int _count = 0;
};

} // namespace desktop_test
