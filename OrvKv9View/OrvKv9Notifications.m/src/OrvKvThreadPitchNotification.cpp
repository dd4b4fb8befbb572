#include "OrvKvThreadPitchNotification.h"

#include "OrvKvThreadInfo.h"

CATImplementClass(OrvKvThreadPitchNotification, Implementation, CATNotification, CATNull);

static const char SourceFile[] = "OrvKv9Notifications.m/src/OrvKvThreadPitchNotification";

OrvKvThreadPitchNotification::OrvKvThreadPitchNotification(unsigned char iInitMode,
                                                           const CATUnicodeString& iType,
                                                           const CATUnicodeString& iDimension, double iPitch)
    : CATNotification(CATNotificationDeleteOff), _initMode(iInitMode), _type(iType), _dimension(iDimension),
      _pitch(iPitch) {}

OrvKvThreadPitchNotification::~OrvKvThreadPitchNotification() = default;

unsigned char OrvKvThreadPitchNotification::IsInitMode() const {
    return _initMode;
}

HRESULT OrvKvThreadPitchNotification::GetThreadInfo(CATUnicodeString* pType, CATUnicodeString* pDim,
                                                    double* pPitch) const {
    return OrvKvThreadInfo{_type, _dimension, _pitch}.GiveTo(pType, pDim, pPitch, OrvKvHere);
}
