#include "OrvKvDeleteParameterSetNotification.h"

CATImplementClass(OrvKvDeleteParameterSetNotification, Implementation, CATNotification, CATNull);

OrvKvDeleteParameterSetNotification::OrvKvDeleteParameterSetNotification()
    : CATNotification(CATNotificationDeleteOff) {}

OrvKvDeleteParameterSetNotification::~OrvKvDeleteParameterSetNotification() = default;
