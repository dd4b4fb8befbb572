#ifndef ParameterNotifications_H
#define ParameterNotifications_H

#include "CATNotification.h"

namespace host {

// What a parameter dispatches. The class names are the names of the events.
class ParameterValueChanged : public CATNotification {
    CATDeclareClass;
};

class ParameterToleranceChanged : public CATNotification {
    CATDeclareClass;
};

} // namespace host

#endif
