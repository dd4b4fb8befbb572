#include "ParameterNotifications.h"

namespace host {

CATImplementClass(ParameterValueChanged, Implementation, CATNotification, CATNull);
CATImplementClass(ParameterToleranceChanged, Implementation, CATNotification, CATNull);

} // namespace host
