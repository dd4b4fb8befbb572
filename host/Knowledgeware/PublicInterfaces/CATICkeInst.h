#ifndef CATICkeInst_H
#define CATICkeInst_H

#include "CATBaseUnknown.h"
#include "CATICkeType.h"
#include "CATMacForInterfaces.h"
#include "CATUnicodeString.h"

// A typed value in MKS units: lengths in metres, angles in radians; reals and whole numbers have no unit.
class CATICkeInst : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    virtual CATICkeType_var Type() = 0;

    // The value as a number; a boolean reads 0 or 1, a text 0.
    virtual double AsReal() = 0;
    // The same as a whole number, cut off towards zero and kept within the range of int.
    virtual int AsInteger() = 0;
    // The text of a STRING; of any other type the value as it is shown.
    virtual CATUnicodeString AsString() = 0;

    // A new value, which raises the change event, also when it equals the old one. E_FAIL, and nothing
    // changed or raised, for a kind of value that the type does not take: a number that is not finite in
    // storage units, a broken number for an INTEGER or one outside the range of int, other than 0 and 1 for a
    // BOOLEAN, a text for anything but a STRING, a number for a STRING. Minus zero counts as zero. Who may
    // edit the parameter is not looked at.
    virtual HRESULT Valuate(double iValue) = 0;
    virtual HRESULT Valuate(int iValue) = 0;
    virtual HRESULT Valuate(const CATUnicodeString& iText) = 0;
};

CATDeclareHandler(CATICkeInst, CATBaseUnknown);

#endif
