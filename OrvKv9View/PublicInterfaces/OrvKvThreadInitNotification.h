#ifndef OrvKvThreadInitNotification_H
#define OrvKvThreadInitNotification_H

#include "CATNotification.h"
#include "CATUnicodeString.h"

// The thread panel is built and wants to be filled.
//
// Sent by OrvKvThreadSub at the end of its Build. What a constructor does not take is empty or 0.
class OrvKvThreadInitNotification : public CATNotification {
    CATDeclareClass;

  public:
    // The flags are 0 or 1, the pitch is in mm.
    explicit OrvKvThreadInitNotification(unsigned char iInitMode);
    OrvKvThreadInitNotification(unsigned char iInitMode, unsigned char iActivateMode);
    OrvKvThreadInitNotification(unsigned char iInitMode, unsigned char iActivateMode,
                                const CATUnicodeString& iType, const CATUnicodeString& iDimension,
                                double iPitch);
    ~OrvKvThreadInitNotification() override;

    // Whether the panel is being initialised: 0 or 1.
    unsigned char IsInitMode() const;
    // Whether the thread is being switched on: 0 or 1.
    unsigned char IsActivateMode() const;
    // Writes type, dimension and pitch. Fails on the first null pointer, and then writes nothing.
    HRESULT GetThreadInfo(CATUnicodeString* pType, CATUnicodeString* pDim, double* pPitch) const;

  private:
    OrvKvThreadInitNotification(OrvKvThreadInitNotification& iOther) = delete;
    OrvKvThreadInitNotification& operator=(OrvKvThreadInitNotification& iOther) = delete;

    unsigned char _initMode;
    unsigned char _activateMode;
    CATUnicodeString _type;
    CATUnicodeString _dimension;
    double _pitch; // mm
};

#endif
