#include "OrvKvInsertionSketchProvidedNotification.h"

CATImplementClass(OrvKvInsertionSketchProvidedNotification, Implementation, CATNotification, CATNull);

OrvKvInsertionSketchProvidedNotification::OrvKvInsertionSketchProvidedNotification()
    : CATNotification(CATNotificationDeleteOff) {}

OrvKvInsertionSketchProvidedNotification::~OrvKvInsertionSketchProvidedNotification() = default;

OrvKvInsertionSketchProvidedNotification::OrvKvInsertionSketchProvidedNotification(
    const OrvKvInsertionSketchProvidedNotification& iOther) = default;

OrvKvInsertionSketchProvidedNotification& OrvKvInsertionSketchProvidedNotification::operator=(
    const OrvKvInsertionSketchProvidedNotification& iOther) = default;
