#pragma once

// The definition of one parameter of a feature type: what it measures and what a designer may change.

#include "engineering/Magnitude.h"
#include "engineering/Tolerance.h"
#include "engineering/ToleranceClass.h"

#include <string>

namespace engineering {

struct Parameter {
    std::string name;                        ///< as drawn: D, T, DH; unique within its type
    Magnitude magnitude = Magnitude::String; ///< what it measures
    std::string unit;                        ///< unit of the catalogue files; empty without a unit
    Tolerance tolerance;                     ///< holds for sets that state no tolerance of their own
    bool valueEditable = false;              ///< a designer may depart from the tabulated value
    bool toleranceEditable = false;          ///< a designer may depart from the tabulated tolerance
    bool optional = false;                   ///< sets may leave the value open: not tabulated
    FitSide side{FitSide::Hole};             ///< which classes of ISO 286 a designer chooses from
};

} // namespace engineering
