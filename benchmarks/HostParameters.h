#ifndef HostParameters_H
#define HostParameters_H

#include "CATIParmTolerance.h"
#include "ParameterFacts.h"
#include "host/Parameters.h"

constexpr double millimetresOfMetre = 1000.0;

// A parameter of the host with those facts.
inline CATICkeParm_var NewHostParameter(const ParameterFacts& iFacts) {
    const CATICkeParm_var parameter = host::Parameters::NewLength(iFacts.name.c_str(), iFacts.millimetres);
    if (iFacts.hasLimits) {
        const CATIParmTolerance_var tolerance(parameter);
        tolerance->SetMaxTolerance(iFacts.upper);
        tolerance->SetMinTolerance(iFacts.lower);
    }
    return parameter;
}

#endif
