#ifndef host_ParameterEntry_H
#define host_ParameterEntry_H

#include "CATICkeParm.h"
#include "host/Outcome.h"

#include <string>

namespace host {

// What a person types as the value of a parameter.
//
//     const Outcome outcome = host::ParameterEntry::Type(*depth, "1,25 cm");   // T is 12.5 mm now
//     if (!outcome) std::cerr << outcome.reason;
//
// A number has a decimal point or comma, no grouping of digits, and may have a sign and an exponent; blanks
// around number and unit do not count. Units of lengths are mm, cm, m and in, of angles deg and rad; without
// a unit millimetres and degrees are meant. A boolean is true or false (or 1 or 0), a text is taken as it is.
//
// Where a number is wanted, a computation may be typed: + - * / and up to 100 parentheses in one another,
// with products before sums. The result is rounded to 15 digits that count, so that 0.1+0.2 gives 0.3.
//
//     computation   in mm   rule
//     (3+4)/2         3.5   numbers without unit are millimetres or degrees
//     10+2*3 cm       160   when one unit is typed, it holds for all that is added: also "10 cm+2*3"
//     1/2 in         12.7   a unit behind a product is that of the product
//     2*3mm + 1cm      16   several units are converted; each thing that is added needs its own then
//     3*(10mm/4mm)         refused: a ratio, as areas, lengths added to ratios and the like
//
// Reasons are English, German, French or Japanese, whichever host/MessageCatalogs.h names; else English.
class ParameterEntry {
  public:
    // Gives the parameter the typed value and raises its change event. Refused with a sentence that says why,
    // and the old value kept, for a text that is no such value, for a unit of another magnitude, for a number
    // that is too large, and for a parameter that the user may not edit. A callback may let go of the
    // parameter meanwhile.
    static Outcome Type(CATICkeParm& ioParameter, const std::string& iText);

    // Steps a number by the increment, in storage units, down for a negative number of steps, and raises its
    // change event; the value is rounded as that of a computation. Refused with a sentence that says why, and
    // the old value kept, where the parameter does not take the next value or has no steps, where the step is
    // too small for the size of the number, and for a parameter that the user may not edit.
    static Outcome Step(CATICkeParm& ioParameter, int iSteps, double iIncrement);
};

} // namespace host

#endif
