#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"

#include "OrvKvOutPointers.h"
#include "OrvKvReport.h"

CATImplementClass(OrvKvParameterEditISOFittingFieldSelectNotification, Implementation, CATNotification,
                  CATNull);

static const char SourceFile[] =
    "OrvKv9Notifications.m/src/OrvKvParameterEditISOFittingFieldSelectNotification";

OrvKvParameterEditISOFittingFieldSelectNotification::OrvKvParameterEditISOFittingFieldSelectNotification(
    CATUnicodeString& iTolGroup, CATUnicodeString& iTolField, double iParmValue)
    : CATNotification(CATNotificationDeleteOff), _tolGroup(iTolGroup), _tolField(iTolField),
      _parmValue(iParmValue) {}

OrvKvParameterEditISOFittingFieldSelectNotification::~OrvKvParameterEditISOFittingFieldSelectNotification() =
    default;

HRESULT OrvKvParameterEditISOFittingFieldSelectNotification::GetSelectedFittingValues(
    CATUnicodeString* pTolGroup, CATUnicodeString* pTolField, double* pParmValue) {
    if (OrvKvAnyNull(pTolGroup, pTolField, pParmValue))
        return OrvKvReport::Failure("NULL == pTolGroup \n NULL == pTolField \n NULL == pParmValue",
                                    OrvKvHere);
    *pTolGroup = _tolGroup;
    *pTolField = _tolField;
    *pParmValue = _parmValue;
    return OrvKvReport::Success(OrvKvHere);
}
