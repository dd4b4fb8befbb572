#include "ParameterEvents.h"

#include "Parameter.h"
#include "ParameterNotifications.h"

namespace host {

CATImplementClass(ParameterEvents, TransientExtension, CATBaseUnknown, Parameter);

const char* ParameterEvents::GetValueChangedEvent() {
    return ParameterValueChanged::ClassName();
}

const char* ParameterEvents::GetToleranceChangedEvent() {
    return ParameterToleranceChanged::ClassName();
}

CATBaseUnknown* ParameterEvents::GetPublisher() {
    return &_owner;
}

void ParameterEvents::RaiseChange(int) {
    ParameterValueChanged notification;
    _owner.Raise(notification);
}

void ParameterEvents::RaiseToleranceChange() {
    ParameterToleranceChanged notification;
    _owner.Raise(notification);
}

} // namespace host
