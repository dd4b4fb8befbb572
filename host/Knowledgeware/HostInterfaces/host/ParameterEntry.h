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
// A number has a decimal point or comma, no grouping of digits, and may have an exponent; blanks around
// number and unit do not count. Units of lengths are mm, cm, m and in, of angles deg and rad; without a unit
// millimetres and degrees are meant. A boolean is true or false (or 1 or 0), a text is taken as it is.
class ParameterEntry {
  public:
    // Gives the parameter the typed value and raises its change event. Refused with a sentence that says why,
    // and the old value kept, for a text that is no such value, for a unit of another magnitude, for a number
    // that is too large, and for a parameter that the user may not edit. A callback may let go of the
    // parameter meanwhile.
    static Outcome Type(CATICkeParm& ioParameter, const std::string& iText);
};

} // namespace host

#endif
