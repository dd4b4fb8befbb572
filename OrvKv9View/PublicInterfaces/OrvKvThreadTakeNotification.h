#ifndef OrvKvThreadTakeNotification_H
#define OrvKvThreadTakeNotification_H

#include "CATNotification.h"
#include "CATUnicodeString.h"

// The feature is to take the thread that the panel shows.
//
// Sent by OrvKvThreadSub after a change of type or direction and when the thread values are set, once all
// thread parameters are there.
class OrvKvThreadTakeNotification : public CATNotification {
    CATDeclareClass;

  public:
    // iGB is the designation ("M10"), iP the pitch, iDK the internal diameter and iDG the diameter, all in
    // mm; iSR is the direction, "RH" or "LH", and iThrType the thread type.
    OrvKvThreadTakeNotification(const CATUnicodeString& iGB, double iP, double iDK, double iDG,
                                const CATUnicodeString& iSR, const CATUnicodeString& iThrType);
    ~OrvKvThreadTakeNotification() override;

    // Writes all six values. Fails on the first null pointer, and then writes nothing.
    HRESULT GetThreadInfo(CATUnicodeString* pGB, double* pP, double* pDK, double* pDG, CATUnicodeString* pSR,
                          CATUnicodeString* pThrType);

  private:
    OrvKvThreadTakeNotification(OrvKvThreadTakeNotification& iOther) = delete;
    OrvKvThreadTakeNotification& operator=(OrvKvThreadTakeNotification& iOther) = delete;

    CATUnicodeString _designation;
    double _pitch;               // mm
    double _internalDiameter;    // mm
    double _diameter;            // mm
    CATUnicodeString _direction; // "RH" or "LH"
    CATUnicodeString _threadType;
};

#endif
