#pragma once

#include "engineering/FeatureType.h"

namespace command {

// A type with a parameter of every magnitude and two sets: the first has limits and leaves T open, the second
// has a fit.
engineering::FeatureType Plate();

} // namespace command
