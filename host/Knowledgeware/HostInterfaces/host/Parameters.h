#ifndef host_Parameters_H
#define host_Parameters_H

#include "CATICkeParm.h"
#include "CATIParmPublisher.h"

namespace host {

// Makes the parameters and publishers of a model, with values as documents keep them: lengths in millimetres,
// angles in degrees. A number that is not finite counts as 0. A null handle where memory is short.
//
//     const CATICkeParm_var depth = host::Parameters::NewLength("T", 12.5);
class Parameters {
  public:
    static CATICkeParm_var NewLength(const CATUnicodeString& iName, double iMillimetres);
    static CATICkeParm_var NewAngle(const CATUnicodeString& iName, double iDegrees);
    static CATICkeParm_var NewReal(const CATUnicodeString& iName, double iValue);
    static CATICkeParm_var NewInteger(const CATUnicodeString& iName, int iValue);
    static CATICkeParm_var NewBoolean(const CATUnicodeString& iName, bool iValue);
    static CATICkeParm_var NewString(const CATUnicodeString& iName, const CATUnicodeString& iText);

    static CATIParmPublisher_var NewPublisher(const CATUnicodeString& iName);
};

} // namespace host

#endif
