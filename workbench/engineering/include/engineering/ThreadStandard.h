#pragma once

// A thread standard with its sizes, as a designer chooses among them: "Metric coarse", "UNC".

#include "engineering/Thread.h"

#include <string>
#include <string_view>
#include <vector>

namespace engineering {

struct ThreadStandard {
    std::string name;            ///< as shown; unique in the catalogue
    std::string standard;        ///< where the numbers come from: "ISO 261, ISO 724"
    std::vector<Thread> threads; ///< in the order of the table; designations are unique

    /// The position of the thread with exactly that designation, or -1.
    int PositionOf(std::string_view designation) const;
};

} // namespace engineering
