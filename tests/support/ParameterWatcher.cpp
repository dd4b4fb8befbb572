#include "ParameterWatcher.h"

#include "CATIParmEvents.h"

#include <utility>

namespace support {

CATImplementClass(ParameterWatcher, Implementation, CATEventSubscriber, CATNull);

void ParameterWatcher::Watch(const CATBaseUnknown_var& iParameter) {
    const CATIParmEvents_var events(iParameter);
    AddCallback(this, events->GetPublisher(), events->GetValueChangedEvent(),
                static_cast<CATSubscriberMethod>(&ParameterWatcher::OnValue));
    AddCallback(this, events->GetPublisher(), events->GetToleranceChangedEvent(),
                static_cast<CATSubscriberMethod>(&ParameterWatcher::OnTolerance));
}

void ParameterWatcher::Unwatch(const CATBaseUnknown_var& iParameter) {
    const CATIParmEvents_var events(iParameter);
    RemoveSubscriberCallbacks(this, events->GetPublisher());
}

std::vector<std::string> ParameterWatcher::Take() {
    return std::exchange(_events, {});
}

void ParameterWatcher::OnValue(CATCallbackEvent, void* iPublisher, CATNotification*, CATSubscriberData,
                               CATCallback) {
    Note("value of ", iPublisher);
}

void ParameterWatcher::OnTolerance(CATCallbackEvent, void* iPublisher, CATNotification*, CATSubscriberData,
                                   CATCallback) {
    Note("tolerance of ", iPublisher);
}

void ParameterWatcher::Note(const char* iWhat, void* iPublisher) {
    const CATICkeParm_var parameter(static_cast<CATBaseUnknown*>(iPublisher));
    _events.push_back(std::string(iWhat) + parameter->Name().ConvertToChar());
    const std::function<void()> act = onEvent; // may destroy this object
    if (act)
        act();
}

} // namespace support
