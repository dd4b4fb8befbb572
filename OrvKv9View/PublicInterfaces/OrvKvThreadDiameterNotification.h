#ifndef OrvKvThreadDiameterNotification_H
#define OrvKvThreadDiameterNotification_H

#include "CATNotification.h"
#include "CATUnicodeString.h"

// The user has chosen another thread diameter.
//
// Sent by OrvKvThreadSub with the current type and the new dimension, the designation of the diameter as the
// thread standard writes it, "M10" for instance.
class OrvKvThreadDiameterNotification : public CATNotification {
    CATDeclareClass;

  public:
    // The pitch is in mm; without one it is 0.
    OrvKvThreadDiameterNotification(unsigned char iInitMode, const CATUnicodeString& iType,
                                    const CATUnicodeString& iDimension);
    OrvKvThreadDiameterNotification(unsigned char iInitMode, const CATUnicodeString& iType,
                                    const CATUnicodeString& iDimension, double iPitch);
    ~OrvKvThreadDiameterNotification() override;

    // Whether the panel is being initialised: 0 or 1.
    unsigned char IsInitMode() const;
    // Writes type and dimension. Fails on the first null pointer, and then writes nothing.
    HRESULT GetThreadInfo(CATUnicodeString* pType, CATUnicodeString* pDim) const;
    // Writes type, dimension and pitch. Fails on the first null pointer, and then writes nothing.
    HRESULT GetThreadInfo(CATUnicodeString* pType, CATUnicodeString* pDim, double* pPitch) const;

  private:
    OrvKvThreadDiameterNotification(OrvKvThreadDiameterNotification& iOther) = delete;
    OrvKvThreadDiameterNotification& operator=(OrvKvThreadDiameterNotification& iOther) = delete;

    unsigned char _initMode;
    CATUnicodeString _type;
    CATUnicodeString _dimension;
    double _pitch; // mm
};

#endif
