#ifndef VolatileFactory_H
#define VolatileFactory_H

#include "CATICkeParmFactory.h"
#include "CATMacForIUnknown.h"
#include "host/Component.h"

namespace host {

class VolatileFactory : public Component<CATICkeParmFactory> {
    CATDeclareClass;

  public:
    CATICkeParm_var CreateLength(const CATUnicodeString& iName, double iMetres) override;
    CATICkeParm_var CreateAngle(const CATUnicodeString& iName, double iRadians) override;
    CATICkeParm_var CreateReal(const CATUnicodeString& iName, double iValue) override;
    CATICkeParm_var CreateInteger(const CATUnicodeString& iName, int iValue) override;
    CATICkeParm_var CreateBoolean(const CATUnicodeString& iName, int iValue) override;
    CATICkeParm_var CreateString(const CATUnicodeString& iName, const CATUnicodeString& iText) override;
    CATICkeParm_var CreateDimension(const CATICkeType_var& iMagnitude, const CATUnicodeString& iName,
                                    double iValue) override;
    CATICkeParm_var CreateParameter(const CATICkeType_var& iType, const CATUnicodeString& iName) override;
};

} // namespace host

#endif
