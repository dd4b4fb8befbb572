#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"

#include "OrvKvOutPointers.h"
#include "OrvKvReport.h"

CATImplementClass(OrvKvParameterEditISOFittingGroupSelectNotification, Implementation, CATNotification,
                  CATNull);

OrvKvParameterEditISOFittingGroupSelectNotification::OrvKvParameterEditISOFittingGroupSelectNotification(
    CATUnicodeString& iTolGroup, double iParmValue)
    : CATNotification(CATNotificationDeleteOff), _tolGroup(iTolGroup), _parmValue(iParmValue) {}

OrvKvParameterEditISOFittingGroupSelectNotification::~OrvKvParameterEditISOFittingGroupSelectNotification() =
    default;

HRESULT
OrvKvParameterEditISOFittingGroupSelectNotification::GetSelectedToleranceGroup(CATUnicodeString* pTolGroup,
                                                                               double* pParmValue) {
    if (OrvKvAnyNull(pTolGroup, pParmValue))
        return OrvKvReport::SilentFailure();
    *pTolGroup = _tolGroup;
    *pParmValue = _parmValue;
    return S_OK;
}
