#include "OrvKvParameterSetSelectedNotification.h"

#include "OrvKvReport.h"

CATImplementClass(OrvKvParameterSetSelectedNotification, Implementation, CATNotification, CATNull);

static const char SourceFile[] = "OrvKv9Notifications.m/src/OrvKvParameterSetSelectedNotification";

OrvKvParameterSetSelectedNotification::OrvKvParameterSetSelectedNotification(
    const CATUnicodeString& iParameterSetName)
    : CATNotification(CATNotificationDeleteOff), _parameterSetName(iParameterSetName) {}

OrvKvParameterSetSelectedNotification::~OrvKvParameterSetSelectedNotification() = default;

HRESULT OrvKvParameterSetSelectedNotification::GetParameterSetName(CATUnicodeString* oParameterSetName) {
    *oParameterSetName = _parameterSetName;
    return OrvKvReport::Success(OrvKvHere);
}
