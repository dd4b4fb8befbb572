#include "OrvKvTriggerStateChangeToInvalidNotification.h"

CATImplementClass(OrvKvTriggerStateChangeToInvalidNotification, Implementation, CATNotification, CATNull);

OrvKvTriggerStateChangeToInvalidNotification::OrvKvTriggerStateChangeToInvalidNotification()
    : CATNotification(CATNotificationDeleteOff) {}

OrvKvTriggerStateChangeToInvalidNotification::~OrvKvTriggerStateChangeToInvalidNotification() = default;

OrvKvTriggerStateChangeToInvalidNotification::OrvKvTriggerStateChangeToInvalidNotification(
    OrvKvTriggerStateChangeToInvalidNotification& iOther)
    : CATNotification(iOther) {}

OrvKvTriggerStateChangeToInvalidNotification& OrvKvTriggerStateChangeToInvalidNotification::operator=(
    OrvKvTriggerStateChangeToInvalidNotification& iOther) {
    CATNotification::operator=(iOther);
    return *this;
}
