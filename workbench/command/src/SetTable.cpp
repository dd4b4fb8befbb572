#include "SetTable.h"

#include "ParameterMaking.h"

#include <algorithm>

namespace workbench {

namespace {

using engineering::FeatureType;
using engineering::ParameterSet;
using engineering::ParameterValue;
using engineering::Tolerance;

bool SomeSetHasTolerance(const FeatureType& type, std::size_t parameter) {
    return std::any_of(type.Sets().begin(), type.Sets().end(), [parameter](const ParameterSet& set) {
        return set.values[parameter].tolerance.kind != Tolerance::Kind::None;
    });
}

// A dash also stands for the tolerance of what is not tabulated: there are no limits to look for then.
CATUnicodeString ToleranceText(const ParameterValue& entry) {
    return entry.value ? FitText(entry.tolerance) : NotTabulated();
}

} // namespace

ParameterLists ColumnsOf(const FeatureType& type) {
    ParameterLists columns;
    for (std::size_t i = 0; i < type.Parameters().size(); ++i) {
        const engineering::Parameter& parameter = type.Parameters()[i];
        const bool showsTolerance = parameter.toleranceEditable || SomeSetHasTolerance(type, i);
        columns.names.Append(parameter.name.c_str());
        columns.valueShown.Append(1);
        columns.valueEditable.Append(parameter.valueEditable ? 1 : 0);
        columns.toleranceShown.Append(showsTolerance ? 1 : 0);
        columns.toleranceEditable.Append(parameter.toleranceEditable ? 1 : 0);
    }
    return columns;
}

ParameterLists CellsOf(const FeatureType& type, const std::vector<ParameterValue>& values) {
    ParameterLists cells;
    for (std::size_t i = 0; i < type.Parameters().size(); ++i) {
        const engineering::Parameter& parameter = type.Parameters()[i];
        cells.names.Append(parameter.name.c_str());
        cells.parameters.Append(NewParameterFor(parameter, values[i]));
        cells.tolerances.Append(ToleranceText(values[i]));
    }
    return cells;
}

} // namespace workbench
