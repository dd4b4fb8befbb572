#pragma once

// The table of a type's parameter sets: its columns and the cells of a line.

#include "ParameterLists.h"
#include "engineering/FeatureType.h"

namespace workbench {

/// A column for each value, and one for its tolerance where some set has one or a designer may give one.
/// Without parameters and tolerances.
ParameterLists ColumnsOf(const engineering::FeatureType& type);

/// Parameters and tolerance texts of one line; entry i belongs to parameter i of the type. What is not
/// tabulated is a dash.
ParameterLists CellsOf(const engineering::FeatureType& type,
                       const std::vector<engineering::ParameterValue>& values);

} // namespace workbench
