#ifndef TypedExpression_H
#define TypedExpression_H

#include "host/Outcome.h"

#include <string>

namespace host {

// A number, or a small computation with numbers, as a person types it: "(3+4)/2 mm". What may be typed stands
// in host/ParameterEntry.h.
class TypedExpression {
  public:
    // The value in storage units of a magnitude, LENGTH for instance. It is finite. Refused with the reason
    // when iText is no such computation.
    static Outcome Read(const std::string& iText, const std::string& iMagnitude, double& oStored);
};

} // namespace host

#endif
