#include "OrvKvModifiedParameterInMultiListNotification.h"

CATImplementClass(OrvKvModifiedParameterInMultiListNotification, Implementation, CATNotification, CATNull);

OrvKvModifiedParameterInMultiListNotification::OrvKvModifiedParameterInMultiListNotification(
    const CATString& iParameterName)
    : CATNotification(CATNotificationDeleteOff), _parameterName(iParameterName) {}

OrvKvModifiedParameterInMultiListNotification::~OrvKvModifiedParameterInMultiListNotification() = default;

HRESULT OrvKvModifiedParameterInMultiListNotification::GetParameterName(CATString& oParameterName) {
    oParameterName = _parameterName;
    return S_OK;
}
