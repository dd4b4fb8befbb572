#ifndef OrvKvThreadPitchNotification_H
#define OrvKvThreadPitchNotification_H

#include "CATNotification.h"
#include "CATUnicodeString.h"

// Another thread pitch is chosen.
//
// No panel sends it; the command uses it for itself.
class OrvKvThreadPitchNotification : public CATNotification {
    CATDeclareClass;

  public:
    // The pitch is in mm.
    OrvKvThreadPitchNotification(unsigned char iInitMode, const CATUnicodeString& iType,
                                 const CATUnicodeString& iDimension, double iPitch);
    ~OrvKvThreadPitchNotification() override;

    // Whether the panel is being initialised: 0 or 1.
    unsigned char IsInitMode() const;
    // Writes type, dimension and pitch. Fails on the first null pointer, and then writes nothing.
    HRESULT GetThreadInfo(CATUnicodeString* pType, CATUnicodeString* pDim, double* pPitch) const;

  private:
    OrvKvThreadPitchNotification(OrvKvThreadPitchNotification& iOther) = delete;
    OrvKvThreadPitchNotification& operator=(OrvKvThreadPitchNotification& iOther) = delete;

    unsigned char _initMode;
    CATUnicodeString _type;
    CATUnicodeString _dimension;
    double _pitch; // mm
};

#endif
