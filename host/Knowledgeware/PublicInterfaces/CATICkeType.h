#ifndef CATICkeType_H
#define CATICkeType_H

#include "CATBaseUnknown.h"
#include "CATMacForInterfaces.h"
#include "CATUnicodeString.h"

// What a parameter measures.
class CATICkeType : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    // LENGTH, ANGLE, REAL, INTEGER, BOOLEAN or STRING.
    virtual CATUnicodeString Name() = 0;
};

CATDeclareHandler(CATICkeType, CATBaseUnknown);

#endif
