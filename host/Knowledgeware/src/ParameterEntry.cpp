#include "host/ParameterEntry.h"

#include "BinaryNoise.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "EntryTexts.h"
#include "Magnitude.h"
#include "TypedExpression.h"
#include "TypedNumber.h"

#include <cmath>

namespace host {

namespace {

Outcome RefuseText(const std::string& iText, EntryText iWhy) {
    return RefusedFor(iWhy, {Shortened(WithoutOuterBlanks(iText))});
}

Outcome RefuseFor(CATICkeParm& iParameter, EntryText iWhy, const std::string& iNumber = std::string()) {
    return RefusedFor(iWhy, {iParameter.Name().ConvertToChar(), iNumber});
}

Outcome ReadNumber(const std::string& iText, const std::string& iMagnitude, double& oStored) {
    Outcome outcome = TypedExpression::Read(iText, iMagnitude, oStored);
    if (outcome && iMagnitude == "INTEGER" && !Magnitude::Integer().Takes(oStored))
        return RefuseText(iText, EntryText::NotAWholeNumber);
    return outcome;
}

Outcome ReadTruth(const std::string& iText, double& oStored) {
    const std::string typed = WithoutOuterBlanks(iText);
    const bool isTrue = typed == "true" || typed == "1";
    oStored = isTrue ? 1.0 : 0.0;
    if (isTrue || typed == "false" || typed == "0")
        return Outcome::Done();
    return RefuseText(typed, EntryText::NeitherTrueNorFalse);
}

Outcome NotTaken(CATICkeParm& ioParameter) {
    return RefuseFor(ioParameter, EntryText::ValueNotTaken);
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
        return RefuseFor(ioParameter, EntryText::ReadOnly);
    const std::string magnitude = ioParameter.Type()->Name().ConvertToChar();
    if (magnitude == "STRING")
        return TypeText(ioParameter, iText);
    double stored = 0.0;
    Outcome read = magnitude == "BOOLEAN" ? ReadTruth(iText, stored) : ReadNumber(iText, magnitude, stored);
    return read ? Write(ioParameter, stored) : read;
}

Outcome ParameterEntry::Step(CATICkeParm& ioParameter, int iSteps, double iIncrement) {
    if (ioParameter.GetUserAccessMode() != 3)
        return RefuseFor(ioParameter, EntryText::ReadOnly);
    Magnitude* const magnitude = Magnitude::Named(ioParameter.Type()->Name());
    const CATIParmAsStored_var asStored(&ioParameter);
    if (magnitude == nullptr || !magnitude->HasSteps() || !asStored)
        return RefuseFor(ioParameter, EntryText::NoSteps);
    const double before = asStored->GetValue();
    const double stored = SumWithoutBinaryNoise(before, iSteps * iIncrement);
    if (iSteps == 0)
        return Outcome::Done();
    if (!std::isfinite(stored))
        return RefuseFor(ioParameter, EntryText::StepTooFar);
    if (!magnitude->Takes(stored))
        return RefuseFor(ioParameter, EntryText::StepNotTaken, InFull(stored));
    if (stored == before)
        return RefuseFor(ioParameter, EntryText::StepTooSmall, InFull(iIncrement));
    return Write(ioParameter, stored);
}

} // namespace host
