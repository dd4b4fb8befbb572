#include "host/Parameters.h"

#include "Parameter.h"
#include "Publisher.h"

#include <cmath>

namespace host {

namespace {

CATICkeParm_var NewNumber(Magnitude& iMagnitude, const CATUnicodeString& iName, double iStored) {
    return Parameter::New(iMagnitude, iName, std::isfinite(iStored) ? iStored : 0.0);
}

} // namespace

CATICkeParm_var Parameters::NewLength(const CATUnicodeString& iName, double iMillimetres) {
    return NewNumber(Magnitude::Length(), iName, iMillimetres);
}

CATICkeParm_var Parameters::NewAngle(const CATUnicodeString& iName, double iDegrees) {
    return NewNumber(Magnitude::Angle(), iName, iDegrees);
}

CATICkeParm_var Parameters::NewReal(const CATUnicodeString& iName, double iValue) {
    return NewNumber(Magnitude::Real(), iName, iValue);
}

CATICkeParm_var Parameters::NewInteger(const CATUnicodeString& iName, int iValue) {
    return NewNumber(Magnitude::Integer(), iName, iValue);
}

CATICkeParm_var Parameters::NewBoolean(const CATUnicodeString& iName, bool iValue) {
    return NewNumber(Magnitude::Boolean(), iName, iValue ? 1.0 : 0.0);
}

CATICkeParm_var Parameters::NewString(const CATUnicodeString& iName, const CATUnicodeString& iText) {
    return Parameter::NewText(iName, iText);
}

CATIParmPublisher_var Parameters::NewPublisher(const CATUnicodeString& iName) {
    return Adopt<CATIParmPublisher>(new Publisher(iName));
}

} // namespace host
