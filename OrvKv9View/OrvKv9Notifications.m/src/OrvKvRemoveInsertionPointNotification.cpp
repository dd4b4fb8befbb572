#include "OrvKvRemoveInsertionPointNotification.h"

CATImplementClass(OrvKvRemoveInsertionPointNotification, Implementation, CATNotification, CATNull);

OrvKvRemoveInsertionPointNotification::OrvKvRemoveInsertionPointNotification(int iPosition)
    : CATNotification(CATNotificationDeleteOff), _position(iPosition) {}

OrvKvRemoveInsertionPointNotification::~OrvKvRemoveInsertionPointNotification() = default;

OrvKvRemoveInsertionPointNotification::OrvKvRemoveInsertionPointNotification(
    OrvKvRemoveInsertionPointNotification& iOther)
    : CATNotification(iOther), _position(0) {}

OrvKvRemoveInsertionPointNotification&
OrvKvRemoveInsertionPointNotification::operator=(OrvKvRemoveInsertionPointNotification& iOther) {
    CATNotification::operator=(iOther);
    return *this;
}

int OrvKvRemoveInsertionPointNotification::GetPointCountToRemove() {
    return _position;
}
