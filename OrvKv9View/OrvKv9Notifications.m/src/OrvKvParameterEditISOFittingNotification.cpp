#include "OrvKvParameterEditISOFittingNotification.h"

#include "OrvKvOutPointers.h"
#include "OrvKvReport.h"

#include <utility>

CATImplementClass(OrvKvParameterEditISOFittingNotification, Implementation, CATNotification, CATNull);

static const char SourceFile[] = "OrvKv9Notifications.m/src/OrvKvParameterEditISOFittingNotification";

OrvKvParameterEditISOFittingNotification::OrvKvParameterEditISOFittingNotification(
    const CATICkeParm_var& iParmToEdit, CATString iFittingGroup, CATString iFittingField)
    : CATNotification(CATNotificationDeleteOff), _parmToEdit(iParmToEdit),
      _fittingGroup(std::move(iFittingGroup)), _fittingField(std::move(iFittingField)) {}

OrvKvParameterEditISOFittingNotification::~OrvKvParameterEditISOFittingNotification() = default;

HRESULT OrvKvParameterEditISOFittingNotification::GetFittingInfo(CATICkeParm_var* pParmToEdit,
                                                                 CATString* pFittingGroup,
                                                                 CATString* pFittingField) {
    if (OrvKvAnyNull(pParmToEdit, pFittingGroup, pFittingField))
        return OrvKvReport::Failure("NULL == pParmToEdit", OrvKvHere);
    *pParmToEdit = _parmToEdit;
    *pFittingGroup = _fittingGroup;
    *pFittingField = _fittingField;
    return OrvKvReport::Success(OrvKvHere);
}
