#ifndef OrvKvThreadTypeNotification_H
#define OrvKvThreadTypeNotification_H

#include "CATNotification.h"
#include "CATUnicodeString.h"

// The user has chosen another thread type.
//
// Sent by OrvKvThreadSub with the new type, the name of a thread standard, or with an empty type for a thread
// without a standard.
class OrvKvThreadTypeNotification : public CATNotification {
    CATDeclareClass;

  public:
    // What a constructor does not take is empty or 0. The pitch is in mm.
    OrvKvThreadTypeNotification(unsigned char iInitMode, const CATUnicodeString& iType);
    OrvKvThreadTypeNotification(unsigned char iInitMode, const CATUnicodeString& iType,
                                const CATUnicodeString& iDimension, double iPitch);
    ~OrvKvThreadTypeNotification() override;

    // Whether the panel is being initialised: 0 or 1.
    unsigned char IsInitMode() const;
    // Writes the type. Fails, and writes nothing, when the pointer is null.
    HRESULT GetThreadInfo(CATUnicodeString* pType) const;
    // Writes type, dimension and pitch. Fails on the first null pointer, and then writes nothing.
    HRESULT GetThreadInfo(CATUnicodeString* pType, CATUnicodeString* pDim, double* pPitch) const;

  private:
    OrvKvThreadTypeNotification(OrvKvThreadTypeNotification& iOther) = delete;
    OrvKvThreadTypeNotification& operator=(OrvKvThreadTypeNotification& iOther) = delete;

    unsigned char _initMode;
    CATUnicodeString _type;
    CATUnicodeString _dimension;
    double _pitch; // mm
};

#endif
