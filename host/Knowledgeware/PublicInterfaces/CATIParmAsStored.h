#ifndef CATIParmAsStored_H
#define CATIParmAsStored_H

#include "CATMacForInterfaces.h"

// The value of a parameter in the units in which documents keep it: lengths in millimetres, angles in
// degrees, everything else without a unit. Every parameter but a STRING has it.
class CATIParmAsStored : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    virtual double GetValue() = 0;
    // Raises no event. E_FAIL, and nothing changed, where Valuate would refuse the value too.
    virtual HRESULT SetValue(double iValue) = 0;
};

CATDeclareHandler(CATIParmAsStored, CATBaseUnknown);

#endif
