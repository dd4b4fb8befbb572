#ifndef CATICkeParm_H
#define CATICkeParm_H

#include "CATBaseUnknown.h"
#include "CATMacForInterfaces.h"
#include "CATUnicodeString.h"

// A parameter: a named value with a magnitude and a unit.
class CATICkeParm : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    virtual CATUnicodeString Name() = 0;
    // The value as text with its unit, "10mm" for instance.
    virtual CATUnicodeString Show() = 0;
    // Who may change the value: 1 nobody, 3 the user.
    virtual void SetUserAccessMode(int iMode) = 0;
    virtual int GetUserAccessMode() = 0;
};

CATDeclareHandler(CATICkeParm, CATBaseUnknown);

#endif
