#include "OrvKvTriggerStateChangeToValidNotification.h"

CATImplementClass(OrvKvTriggerStateChangeToValidNotification, Implementation, CATNotification, CATNull);

OrvKvTriggerStateChangeToValidNotification::OrvKvTriggerStateChangeToValidNotification()
    : CATNotification(CATNotificationDeleteOff) {}

OrvKvTriggerStateChangeToValidNotification::~OrvKvTriggerStateChangeToValidNotification() = default;
