#ifndef CATICkeParmFactory_H
#define CATICkeParmFactory_H

#include "CATICkeParm.h"

// Makes parameters. Numbers are in MKS units. A null handle where a parameter cannot be made, for a value
// that its type does not take for instance.
class CATICkeParmFactory : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    virtual CATICkeParm_var CreateLength(const CATUnicodeString& iName, double iMetres) = 0;
    virtual CATICkeParm_var CreateAngle(const CATUnicodeString& iName, double iRadians) = 0;
    virtual CATICkeParm_var CreateReal(const CATUnicodeString& iName, double iValue) = 0;
    virtual CATICkeParm_var CreateInteger(const CATUnicodeString& iName, int iValue) = 0;
    virtual CATICkeParm_var CreateBoolean(const CATUnicodeString& iName, int iValue) = 0;
    virtual CATICkeParm_var CreateString(const CATUnicodeString& iName, const CATUnicodeString& iText) = 0;
    // A parameter of a magnitude that is measured in numbers. A null handle for a null type, for one that has
    // another name than those of CATICkeType, and for a STRING.
    virtual CATICkeParm_var CreateDimension(const CATICkeType_var& iMagnitude, const CATUnicodeString& iName,
                                            double iValue) = 0;
    // A parameter of a type that another one has, with the value zero, false or empty. A null handle for a
    // null type and for one that has another name than those of CATICkeType.
    virtual CATICkeParm_var CreateParameter(const CATICkeType_var& iType, const CATUnicodeString& iName) = 0;
};

CATDeclareHandler(CATICkeParmFactory, CATBaseUnknown);

#endif
