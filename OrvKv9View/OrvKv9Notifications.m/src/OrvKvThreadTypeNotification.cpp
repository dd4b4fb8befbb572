#include "OrvKvThreadTypeNotification.h"

#include "OrvKvReport.h"
#include "OrvKvThreadInfo.h"

CATImplementClass(OrvKvThreadTypeNotification, Implementation, CATNotification, CATNull);

static const char SourceFile[] = "OrvKv9Notifications.m/src/OrvKvThreadTypeNotification";

OrvKvThreadTypeNotification::OrvKvThreadTypeNotification(unsigned char iInitMode,
                                                         const CATUnicodeString& iType)
    : OrvKvThreadTypeNotification(iInitMode, iType, CATUnicodeString(), 0.0) {}

OrvKvThreadTypeNotification::OrvKvThreadTypeNotification(unsigned char iInitMode,
                                                         const CATUnicodeString& iType,
                                                         const CATUnicodeString& iDimension, double iPitch)
    : CATNotification(CATNotificationDeleteOff), _initMode(iInitMode), _type(iType), _dimension(iDimension),
      _pitch(iPitch) {}

OrvKvThreadTypeNotification::~OrvKvThreadTypeNotification() = default;

unsigned char OrvKvThreadTypeNotification::IsInitMode() const {
    return _initMode;
}

HRESULT OrvKvThreadTypeNotification::GetThreadInfo(CATUnicodeString* pType) const {
    if (pType == nullptr)
        return OrvKvReport::Failure("NULL == pType", OrvKvHere);
    *pType = _type;
    return OrvKvReport::Success(OrvKvHere);
}

HRESULT OrvKvThreadTypeNotification::GetThreadInfo(CATUnicodeString* pType, CATUnicodeString* pDim,
                                                   double* pPitch) const {
    return OrvKvThreadInfo{_type, _dimension, _pitch}.GiveTo(pType, pDim, pPitch, OrvKvHere);
}
