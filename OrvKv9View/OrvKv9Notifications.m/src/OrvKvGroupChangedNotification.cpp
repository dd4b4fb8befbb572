#include "OrvKvGroupChangedNotification.h"

#include "OrvKvReport.h"

CATImplementClass(OrvKvGroupChangedNotification, Implementation, CATNotification, CATNull);

static const char SourceFile[] = "OrvKv9Notifications.m/src/OrvKvGroupChangedNotification";

OrvKvGroupChangedNotification::OrvKvGroupChangedNotification(int iGroup)
    : CATNotification(CATNotificationDeleteOff), _group(iGroup) {}

OrvKvGroupChangedNotification::~OrvKvGroupChangedNotification() = default;

OrvKvGroupChangedNotification::OrvKvGroupChangedNotification(const OrvKvGroupChangedNotification& iOther) =
    default;

OrvKvGroupChangedNotification&
OrvKvGroupChangedNotification::operator=(const OrvKvGroupChangedNotification& iOther) = default;

HRESULT OrvKvGroupChangedNotification::GetGroup(int* oGroup) {
    *oGroup = _group;
    return OrvKvReport::Success(OrvKvHere);
}
