#pragma once

// An input of a feature type: a geometry element that a designer picks to place the feature.

#include "engineering/ElementKind.h"

#include <set>

namespace engineering {

struct Input {
    int number = 0;              ///< 1 insertion point, 2 direction, 3 limit
    std::set<ElementKind> kinds; ///< the kinds of elements it takes; never empty

    bool operator==(const Input&) const = default;
};

} // namespace engineering
