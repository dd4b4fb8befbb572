#pragma once

#include "host/Parameters.h"

#include <string>

// A parameter P with the value 7, or true where the magnitude is BOOLEAN.
inline CATICkeParm_var NewParameter(const std::string& iMagnitude) {
    if (iMagnitude == "LENGTH")
        return host::Parameters::NewLength("P", 7.0);
    if (iMagnitude == "ANGLE")
        return host::Parameters::NewAngle("P", 7.0);
    if (iMagnitude == "REAL")
        return host::Parameters::NewReal("P", 7.0);
    if (iMagnitude == "INTEGER")
        return host::Parameters::NewInteger("P", 7);
    return host::Parameters::NewBoolean("P", true);
}
