#pragma once

// Turns the values of the catalogue into parameters of the platform.

#include "CATICkeParm.h"
#include "engineering/Parameter.h"
#include "engineering/ParameterSet.h"

namespace workbench {

/// A parameter of the definition's magnitude with the value zero, false or empty. A null handle where memory
/// is short.
CATICkeParm_var NewParameter(const engineering::Parameter& definition);

/// A parameter that shows the entry: its value and its limits, or a dash for what is not tabulated.
CATICkeParm_var NewParameterFor(const engineering::Parameter& definition,
                                const engineering::ParameterValue& entry);

/// Gives a parameter a value and raises its change event. False, and nothing raised, when it does not take
/// it.
[[nodiscard]] bool Write(const CATICkeParm_var& parameter, const engineering::Value& value);
/// Writes limits, or takes them away for any other tolerance, without raising an event.
void StoreLimits(const CATICkeParm_var& parameter, const engineering::Tolerance& tolerance);

/// The limits that the parameter itself has; None otherwise.
engineering::Tolerance LimitsOf(const CATICkeParm_var& parameter);

/// The value that a parameter of that magnitude has.
engineering::Value ValueOf(const CATICkeParm_var& parameter, engineering::Magnitude magnitude);

/// What a panel shows as tolerance text: a fit or thread class, or an empty text for limits and for none.
CATUnicodeString FitText(const engineering::Tolerance& tolerance);

/// The sign for a value that a standard does not tabulate.
CATUnicodeString NotTabulated();

} // namespace workbench
