#include "OrvKvUpdateParameterEditNotification.h"

CATImplementClass(OrvKvUpdateParameterEditNotification, Implementation, CATNotification, CATNull);

OrvKvUpdateParameterEditNotification::OrvKvUpdateParameterEditNotification()
    : CATNotification(CATNotificationDeleteOff) {}

OrvKvUpdateParameterEditNotification::~OrvKvUpdateParameterEditNotification() = default;

OrvKvUpdateParameterEditNotification::OrvKvUpdateParameterEditNotification(
    OrvKvUpdateParameterEditNotification& iOther)
    : CATNotification(iOther) {}

OrvKvUpdateParameterEditNotification&
OrvKvUpdateParameterEditNotification::operator=(OrvKvUpdateParameterEditNotification& iOther) {
    CATNotification::operator=(iOther);
    return *this;
}
