#include "Reaction.h"

#include "host/Application.h"

namespace desktop_test {

CATImplementClass(Reaction, Implementation, CATCommand, CATNull);

Reaction::Reaction(std::string iNotificationClass, std::function<void()> iReact)
    : CATCommand(nullptr, "Reaction"), _notificationClass(std::move(iNotificationClass)),
      _react(std::move(iReact)), _before(host::Application::ActiveCommand()) {
    host::Application::SetActiveCommand(this);
}

Reaction::~Reaction() {
    host::Application::SetActiveCommand(_before);
}

CATNotifPropagationMode Reaction::AnalyseNotification(CATCommand*, CATNotification* iNotification) {
    if (_notificationClass == iNotification->IsA()) {
        ++_count;
        _react();
    }
    return CATNotifDontTransmitToFather;
}

} // namespace desktop_test
