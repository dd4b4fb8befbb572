#include "OrvKvNewParameterSetNotification.h"

CATImplementClass(OrvKvNewParameterSetNotification, Implementation, CATNotification, CATNull);

OrvKvNewParameterSetNotification::OrvKvNewParameterSetNotification()
    : CATNotification(CATNotificationDeleteOff) {}

OrvKvNewParameterSetNotification::~OrvKvNewParameterSetNotification() = default;
