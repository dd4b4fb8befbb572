#include "OrvKvTypeSelectedNotification.h"

#include "OrvKvOutPointers.h"
#include "OrvKvReport.h"

#include <utility>

CATImplementClass(OrvKvTypeSelectedNotification, Implementation, CATNotification, CATNull);

static const char SourceFile[] = "OrvKv9Notifications.m/src/OrvKvTypeSelectedNotification";
// The getter fails with the name of the setter, too: those who read traces know the text.
static const char Message[] = "Error in method SetFeatureInformation.";

OrvKvTypeSelectedNotification::OrvKvTypeSelectedNotification()
    : CATNotification(CATNotificationDeleteOff), _group(0), _type(0) {}

OrvKvTypeSelectedNotification::~OrvKvTypeSelectedNotification() = default;

OrvKvTypeSelectedNotification::OrvKvTypeSelectedNotification(const OrvKvTypeSelectedNotification& iOther) =
    default;

OrvKvTypeSelectedNotification&
OrvKvTypeSelectedNotification::operator=(const OrvKvTypeSelectedNotification& iOther) = default;

HRESULT OrvKvTypeSelectedNotification::SetFeatureInformation(int iGroup, int iType, CATString iTypeIdentifier,
                                                             CATUnicodeString iTypeName) {
    if (iGroup < 0 || iType < 0)
        return OrvKvReport::Failure(Message, OrvKvHere);
    _group = iGroup;
    _type = iType;
    _typeIdentifier = std::move(iTypeIdentifier);
    _typeName = std::move(iTypeName);
    return OrvKvReport::Success(OrvKvHere);
}

HRESULT OrvKvTypeSelectedNotification::GetFeatureInformation(int* oGroup, int* oType,
                                                             CATString* oTypeIdentifier,
                                                             CATUnicodeString* oTypeName) {
    if (OrvKvAnyNull(oGroup, oType, oTypeIdentifier, oTypeName))
        return OrvKvReport::Failure(Message, OrvKvHere);
    *oGroup = _group;
    *oType = _type;
    *oTypeIdentifier = _typeIdentifier;
    *oTypeName = _typeName;
    return OrvKvReport::Success(OrvKvHere);
}
