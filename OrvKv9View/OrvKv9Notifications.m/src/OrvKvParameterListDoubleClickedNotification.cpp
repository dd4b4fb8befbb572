#include "OrvKvParameterListDoubleClickedNotification.h"

#include "OrvKvOutPointers.h"
#include "OrvKvReport.h"

CATImplementClass(OrvKvParameterListDoubleClickedNotification, Implementation, CATNotification, CATNull);

static const char SourceFile[] = "OrvKv9Notifications.m/src/OrvKvParameterListDoubleClickedNotification";

OrvKvParameterListDoubleClickedNotification::OrvKvParameterListDoubleClickedNotification(
    const CATString& iParameterName, const int& iRowIndex, const unsigned char& iEditParameter,
    const unsigned char& iEditToleranceOrFitting)
    : CATNotification(CATNotificationDeleteOff), _parameterName(iParameterName), _rowIndex(iRowIndex),
      _editParameter(iEditParameter), _editToleranceOrFitting(iEditToleranceOrFitting) {}

OrvKvParameterListDoubleClickedNotification::~OrvKvParameterListDoubleClickedNotification() = default;

OrvKvParameterListDoubleClickedNotification::OrvKvParameterListDoubleClickedNotification(
    const OrvKvParameterListDoubleClickedNotification& iOther) = default;

OrvKvParameterListDoubleClickedNotification& OrvKvParameterListDoubleClickedNotification::operator=(
    const OrvKvParameterListDoubleClickedNotification& iOther) = default;

HRESULT OrvKvParameterListDoubleClickedNotification::GetParameterName(CATString* oParameterName,
                                                                      int* oRowIndex) {
    if (OrvKvAnyNull(oParameterName, oRowIndex))
        return OrvKvReport::Failure("oParameterName == NULL\n or oRowIndex == NULL", OrvKvHere);
    *oParameterName = _parameterName;
    *oRowIndex = _rowIndex;
    return OrvKvReport::Success(OrvKvHere);
}

HRESULT OrvKvParameterListDoubleClickedNotification::GetEditParameterFlag(unsigned char& oEditParameter) {
    oEditParameter = _editParameter;
    return OrvKvReport::Success(OrvKvHere);
}

HRESULT OrvKvParameterListDoubleClickedNotification::GetEditToleranceOrFittingFlag(
    unsigned char& oEditToleranceOrFitting) {
    oEditToleranceOrFitting = _editToleranceOrFitting;
    return OrvKvReport::Success(OrvKvHere);
}
