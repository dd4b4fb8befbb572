#include "workbench/DialogListener.h"

namespace workbench {

bool DialogListener::ListenTo(CATCommand* widget, CATNotification* notification,
                              std::function<void()> answer) {
    if (notification == nullptr)
        return false;
    _subscriptions.push_back(
        {widget, notification, std::make_unique<std::function<void()>>(std::move(answer))});
    _command.AddAnalyseNotificationCB(widget, notification,
                                      static_cast<CATCommandMethod>(&DialogCommand::OnHeard),
                                      _subscriptions.back().answer.get());
    return true;
}

void DialogListener::Stop() {
    for (const Subscription& each : _subscriptions)
        _command.RemoveAnalyseNotificationCB(each.widget, each.notification, each.answer.get());
    _subscriptions.clear();
}

} // namespace workbench
