#include "OrvKvThreadDiameterNotification.h"

#include "OrvKvOutPointers.h"
#include "OrvKvReport.h"
#include "OrvKvThreadInfo.h"

CATImplementClass(OrvKvThreadDiameterNotification, Implementation, CATNotification, CATNull);

static const char SourceFile[] = "OrvKv9Notifications.m/src/OrvKvThreadDiameterNotification";

OrvKvThreadDiameterNotification::OrvKvThreadDiameterNotification(unsigned char iInitMode,
                                                                 const CATUnicodeString& iType,
                                                                 const CATUnicodeString& iDimension)
    : OrvKvThreadDiameterNotification(iInitMode, iType, iDimension, 0.0) {}

OrvKvThreadDiameterNotification::OrvKvThreadDiameterNotification(unsigned char iInitMode,
                                                                 const CATUnicodeString& iType,
                                                                 const CATUnicodeString& iDimension,
                                                                 double iPitch)
    : CATNotification(CATNotificationDeleteOff), _initMode(iInitMode), _type(iType), _dimension(iDimension),
      _pitch(iPitch) {}

OrvKvThreadDiameterNotification::~OrvKvThreadDiameterNotification() = default;

unsigned char OrvKvThreadDiameterNotification::IsInitMode() const {
    return _initMode;
}

HRESULT OrvKvThreadDiameterNotification::GetThreadInfo(CATUnicodeString* pType,
                                                       CATUnicodeString* pDim) const {
    const char* const complaint = OrvKvFirstComplaint({{pType, "NULL == pType"}, {pDim, "NULL == pDim"}});
    if (complaint != nullptr)
        return OrvKvReport::Failure(complaint, OrvKvHere);
    *pType = _type;
    *pDim = _dimension;
    return OrvKvReport::Success(OrvKvHere);
}

HRESULT OrvKvThreadDiameterNotification::GetThreadInfo(CATUnicodeString* pType, CATUnicodeString* pDim,
                                                       double* pPitch) const {
    return OrvKvThreadInfo{_type, _dimension, _pitch}.GiveTo(pType, pDim, pPitch, OrvKvHere);
}
