#include "OrvKvInvertFeatureNotification.h"

CATImplementClass(OrvKvInvertFeatureNotification, Implementation, CATNotification, CATNull);

OrvKvInvertFeatureNotification::OrvKvInvertFeatureNotification()
    : CATNotification(CATNotificationDeleteOff) {}

OrvKvInvertFeatureNotification::~OrvKvInvertFeatureNotification() = default;
