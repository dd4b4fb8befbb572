#include "OrvKvLimitingSketchProvidedNotification.h"

CATImplementClass(OrvKvLimitingSketchProvidedNotification, Implementation, CATNotification, CATNull);

OrvKvLimitingSketchProvidedNotification::OrvKvLimitingSketchProvidedNotification()
    : CATNotification(CATNotificationDeleteOff) {}

OrvKvLimitingSketchProvidedNotification::~OrvKvLimitingSketchProvidedNotification() = default;

OrvKvLimitingSketchProvidedNotification::OrvKvLimitingSketchProvidedNotification(
    const OrvKvLimitingSketchProvidedNotification& iOther) = default;

OrvKvLimitingSketchProvidedNotification& OrvKvLimitingSketchProvidedNotification::operator=(
    const OrvKvLimitingSketchProvidedNotification& iOther) = default;
