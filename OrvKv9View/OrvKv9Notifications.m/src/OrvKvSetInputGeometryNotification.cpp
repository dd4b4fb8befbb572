#include "OrvKvSetInputGeometryNotification.h"

CATImplementClass(OrvKvSetInputGeometryNotification, Implementation, CATNotification, CATNull);

OrvKvSetInputGeometryNotification::OrvKvSetInputGeometryNotification(int iInputGeometryNo)
    : CATNotification(CATNotificationDeleteOff), _inputGeometryNo(iInputGeometryNo) {}

OrvKvSetInputGeometryNotification::~OrvKvSetInputGeometryNotification() = default;

int OrvKvSetInputGeometryNotification::GetInputGeometryNo() {
    return _inputGeometryNo;
}
