#include "VolatileFactory.h"

#include "Parameter.h"

namespace host {

CATImplementClass(VolatileFactory, Implementation, CATBaseUnknown, CATNull);

namespace {

CATICkeParm_var NewFromMks(Magnitude& iMagnitude, const CATUnicodeString& iName, double iMks) {
    return Parameter::New(iMagnitude, iName, iMagnitude.FromMks(iMks));
}

Magnitude* MagnitudeOf(const CATICkeType_var& iType) {
    return !iType ? nullptr : Magnitude::Named(iType->Name());
}

} // namespace

CATICkeParm_var VolatileFactory::CreateLength(const CATUnicodeString& iName, double iMetres) {
    return NewFromMks(Magnitude::Length(), iName, iMetres);
}

CATICkeParm_var VolatileFactory::CreateAngle(const CATUnicodeString& iName, double iRadians) {
    return NewFromMks(Magnitude::Angle(), iName, iRadians);
}

CATICkeParm_var VolatileFactory::CreateReal(const CATUnicodeString& iName, double iValue) {
    return NewFromMks(Magnitude::Real(), iName, iValue);
}

CATICkeParm_var VolatileFactory::CreateInteger(const CATUnicodeString& iName, int iValue) {
    return NewFromMks(Magnitude::Integer(), iName, iValue);
}

CATICkeParm_var VolatileFactory::CreateBoolean(const CATUnicodeString& iName, int iValue) {
    return NewFromMks(Magnitude::Boolean(), iName, iValue);
}

CATICkeParm_var VolatileFactory::CreateString(const CATUnicodeString& iName, const CATUnicodeString& iText) {
    return Parameter::NewText(iName, iText);
}

CATICkeParm_var VolatileFactory::CreateDimension(const CATICkeType_var& iMagnitude,
                                                 const CATUnicodeString& iName, double iValue) {
    Magnitude* const magnitude = MagnitudeOf(iMagnitude);
    return magnitude == nullptr ? CATICkeParm_var() : NewFromMks(*magnitude, iName, iValue);
}

CATICkeParm_var VolatileFactory::CreateParameter(const CATICkeType_var& iType,
                                                 const CATUnicodeString& iName) {
    Magnitude* const magnitude = MagnitudeOf(iType);
    return magnitude == nullptr ? CATICkeParm_var() : Parameter::New(*magnitude, iName);
}

} // namespace host
