#include "host/ParameterEntry.h"

#include "BinaryNoise.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "Magnitude.h"
#include "TypedExpression.h"
#include "TypedNumber.h"

#include <cmath>

namespace host {

namespace {

Outcome Refuse(const std::string& iText, const std::string& iReason) {
    return Outcome::Refused(Quoted(WithoutOuterBlanks(iText)) + " " + iReason);
}

Outcome RefuseFor(CATICkeParm& iParameter, const std::string& iReason) {
    return Outcome::Refused(std::string(iParameter.Name().ConvertToChar()) + " " + iReason);
}

Outcome ReadNumber(const std::string& iText, const std::string& iMagnitude, double& oStored) {
    Outcome outcome = TypedExpression::Read(iText, iMagnitude, oStored);
    if (outcome && iMagnitude == "INTEGER" && !Magnitude::Integer().Takes(oStored))
        return Refuse(iText, "is not a whole number from -2147483648 to 2147483647");
    return outcome;
}

Outcome ReadTruth(const std::string& iText, double& oStored) {
    const std::string typed = WithoutOuterBlanks(iText);
    const bool isTrue = typed == "true" || typed == "1";
    oStored = isTrue ? 1.0 : 0.0;
    if (isTrue || typed == "false" || typed == "0")
        return Outcome::Done();
    return Refuse(typed, "is neither true nor false");
}

Outcome NotTaken(CATICkeParm& ioParameter) {
    return RefuseFor(ioParameter, "does not take the value");
}

std::string InFull(double iNumber) {
    CATUnicodeString text;
    text.BuildFromNum(iNumber, "%.15g");
    return text.ConvertToChar();
}

Outcome Write(CATICkeParm& ioParameter, double iStored) {
    const CATIParmAsStored_var asStored(&ioParameter);
    const CATIParmEvents_var events(&ioParameter);
    if (!asStored || !events || FAILED(asStored->SetValue(iStored)))
        return NotTaken(ioParameter);
    events->RaiseChange(1);
    return Outcome::Done();
}

Outcome TypeText(CATICkeParm& ioParameter, const std::string& iText) {
    const CATICkeParm_var kept(&ioParameter); // a callback may let go of it
    return FAILED(kept->Valuate(CATUnicodeString(iText.c_str()))) ? NotTaken(*kept) : Outcome::Done();
}

} // namespace

Outcome ParameterEntry::Type(CATICkeParm& ioParameter, const std::string& iText) {
    if (ioParameter.GetUserAccessMode() != 3)
        return RefuseFor(ioParameter, "is read-only");
    const std::string magnitude = ioParameter.Type()->Name().ConvertToChar();
    if (magnitude == "STRING")
        return TypeText(ioParameter, iText);
    double stored = 0.0;
    Outcome read = magnitude == "BOOLEAN" ? ReadTruth(iText, stored) : ReadNumber(iText, magnitude, stored);
    return read ? Write(ioParameter, stored) : read;
}

Outcome ParameterEntry::Step(CATICkeParm& ioParameter, int iSteps, double iIncrement) {
    if (ioParameter.GetUserAccessMode() != 3)
        return RefuseFor(ioParameter, "is read-only");
    Magnitude* const magnitude = Magnitude::Named(ioParameter.Type()->Name());
    const CATIParmAsStored_var asStored(&ioParameter);
    if (magnitude == nullptr || !magnitude->HasSteps() || !asStored)
        return RefuseFor(ioParameter, "has no steps");
    const double before = asStored->GetValue();
    const double stored = SumWithoutBinaryNoise(before, iSteps * iIncrement);
    if (iSteps == 0)
        return Outcome::Done();
    if (!std::isfinite(stored))
        return RefuseFor(ioParameter, "would be too large");
    if (!magnitude->Takes(stored))
        return RefuseFor(ioParameter, "does not take " + InFull(stored));
    if (stored == before)
        return RefuseFor(ioParameter, "is too large for steps of " + InFull(iIncrement));
    return Write(ioParameter, stored);
}

} // namespace host
