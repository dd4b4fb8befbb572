#include "OrvKvThreadTakeNotification.h"

#include "OrvKvOutPointers.h"
#include "OrvKvReport.h"

CATImplementClass(OrvKvThreadTakeNotification, Implementation, CATNotification, CATNull);

static const char SourceFile[] = "OrvKv9Notifications.m/src/OrvKvThreadTakeNotification";

OrvKvThreadTakeNotification::OrvKvThreadTakeNotification(const CATUnicodeString& iGB, double iP, double iDK,
                                                         double iDG, const CATUnicodeString& iSR,
                                                         const CATUnicodeString& iThrType)
    : CATNotification(CATNotificationDeleteOff), _designation(iGB), _pitch(iP), _internalDiameter(iDK),
      _diameter(iDG), _direction(iSR), _threadType(iThrType) {}

OrvKvThreadTakeNotification::~OrvKvThreadTakeNotification() = default;

HRESULT OrvKvThreadTakeNotification::GetThreadInfo(CATUnicodeString* pGB, double* pP, double* pDK,
                                                   double* pDG, CATUnicodeString* pSR,
                                                   CATUnicodeString* pThrType) {
    const char* const complaint = OrvKvFirstComplaint({{pGB, "NULL == pGB"},
                                                       {pP, "NULL == pP"},
                                                       {pDK, "NULL == pDK"},
                                                       {pDG, "NULL == pDG"},
                                                       {pSR, "NULL == pSR"},
                                                       {pThrType, "NULL == pThrType"}});
    if (complaint != nullptr)
        return OrvKvReport::Failure(complaint, OrvKvHere);
    *pGB = _designation;
    *pP = _pitch;
    *pDK = _internalDiameter;
    *pDG = _diameter;
    *pSR = _direction;
    *pThrType = _threadType;
    return OrvKvReport::Success(OrvKvHere);
}
