#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"

#include "OrvKvOutPointers.h"
#include "OrvKvReport.h"

CATImplementClass(OrvKvParameterEditUpdateISOFittingValuesNotification, Implementation, CATNotification,
                  CATNull);

static const char SourceFile[] =
    "OrvKv9Notifications.m/src/OrvKvParameterEditUpdateISOFittingValuesNotification";

OrvKvParameterEditUpdateISOFittingValuesNotification::OrvKvParameterEditUpdateISOFittingValuesNotification(
    CATUnicodeString& iFittingGroup, CATUnicodeString& iFittingField, double iParmValue)
    : CATNotification(CATNotificationDeleteOff), _fittingGroup(iFittingGroup), _fittingField(iFittingField),
      _parmValue(iParmValue) {}

OrvKvParameterEditUpdateISOFittingValuesNotification::
    ~OrvKvParameterEditUpdateISOFittingValuesNotification() = default;

HRESULT OrvKvParameterEditUpdateISOFittingValuesNotification::GetFittingInfo(CATUnicodeString* pFittingGroup,
                                                                             CATUnicodeString* pFittingField,
                                                                             double* pParmValue) {
    if (OrvKvAnyNull(pFittingGroup, pFittingField, pParmValue))
        return OrvKvReport::Failure("The method GetFittingInfo failed.", OrvKvHere);
    *pFittingGroup = _fittingGroup;
    *pFittingField = _fittingField;
    *pParmValue = _parmValue;
    return OrvKvReport::Success(OrvKvHere);
}
