#include "OrvKvThreadInitNotification.h"

#include "OrvKvThreadInfo.h"

CATImplementClass(OrvKvThreadInitNotification, Implementation, CATNotification, CATNull);

static const char SourceFile[] = "OrvKv9Notifications.m/src/OrvKvThreadInitNotification";

OrvKvThreadInitNotification::OrvKvThreadInitNotification(unsigned char iInitMode)
    : OrvKvThreadInitNotification(iInitMode, 0) {}

OrvKvThreadInitNotification::OrvKvThreadInitNotification(unsigned char iInitMode, unsigned char iActivateMode)
    : OrvKvThreadInitNotification(iInitMode, iActivateMode, CATUnicodeString(), CATUnicodeString(), 0.0) {}

OrvKvThreadInitNotification::OrvKvThreadInitNotification(unsigned char iInitMode, unsigned char iActivateMode,
                                                         const CATUnicodeString& iType,
                                                         const CATUnicodeString& iDimension, double iPitch)
    : CATNotification(CATNotificationDeleteOff), _initMode(iInitMode), _activateMode(iActivateMode),
      _type(iType), _dimension(iDimension), _pitch(iPitch) {}

OrvKvThreadInitNotification::~OrvKvThreadInitNotification() = default;

unsigned char OrvKvThreadInitNotification::IsInitMode() const {
    return _initMode;
}

unsigned char OrvKvThreadInitNotification::IsActivateMode() const {
    return _activateMode;
}

HRESULT OrvKvThreadInitNotification::GetThreadInfo(CATUnicodeString* pType, CATUnicodeString* pDim,
                                                   double* pPitch) const {
    return OrvKvThreadInfo{_type, _dimension, _pitch}.GiveTo(pType, pDim, pPitch, OrvKvHere);
}
