#pragma once

// A thread as the feature has taken it. Lengths in mm.

#include <string>

namespace workbench {

struct TakenThread {
    std::string type;        ///< name of the standard; "No Standard" or empty for none
    std::string designation; ///< empty without a standard
    std::string direction;   ///< "RH" or "LH"; empty before one is chosen
    double diameter = 0.0;
    double internalDiameter = 0.0;
    double pitch = 0.0;

    bool operator==(const TakenThread&) const = default;
};

} // namespace workbench
