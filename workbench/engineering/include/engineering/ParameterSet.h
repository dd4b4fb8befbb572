#pragma once

// One line of a standard's table: a named set with a value for each parameter of its type.

#include "engineering/Tolerance.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace engineering {

/// Lengths in mm, angles in degrees and reals are double; integers int64_t; booleans bool; texts std::string.
using Value = std::variant<double, std::int64_t, bool, std::string>;

struct ParameterValue {
    std::optional<Value> value; ///< none: not tabulated, which is not zero
    Tolerance tolerance; ///< the set's own, else the parameter's; None for a value that is not tabulated
};

/// Whether value and tolerance are exactly the same.
inline bool SameValue(const ParameterValue& left, const ParameterValue& right) {
    return left.value == right.value && left.tolerance == right.tolerance;
}

struct ParameterSet {
    std::string name;                   ///< unique within its type
    std::vector<ParameterValue> values; ///< one for each parameter of the type, in the type's order
};

} // namespace engineering
