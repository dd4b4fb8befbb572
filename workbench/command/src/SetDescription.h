#pragma once

// The numbers of a parameter set as a designer reads them:
//
//   ISO 273 M6 fine
//   Clearance hole (ISO 273)
//
//   THREAD = M6  (Thread designation)
//   DH = 6.4 mm H12  (Clearance hole diameter)
//
//   Standard: ISO 273

#include "CATUnicodeString.h"

namespace engineering {
class FeatureType;
struct ParameterSet;
} // namespace engineering

namespace workbench {

/// The set with each parameter's value in the unit of the catalogue, its tolerance and its meaning, and the
/// standard. "—" stands for a value that is not tabulated. The decimal sign is the point in every language.
CATUnicodeString Describe(const engineering::FeatureType& type, const engineering::ParameterSet& set);

/// What stands there as long as there is no set.
CATUnicodeString NoSetChosen();

} // namespace workbench
