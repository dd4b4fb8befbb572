#pragma once

// One size of a thread standard. Diameters and pitch in millimetres.

#include <optional>
#include <string>

namespace engineering {

struct Thread {
    std::string designation;    ///< as the standard writes it: "M10", "M10x1.25", "1/4-20 UNC", "G1/2"
    double majorDiameter = 0.0; ///< nominal
    double pitch = 0.0;
    double pitchDiameter = 0.0;
    double minorDiameter = 0.0;           ///< of the internal thread, basic
    std::optional<double> tapDrill;       ///< advice, not a limit; none where none is tabulated
    std::optional<double> threadsPerInch; ///< of inch threads
};

} // namespace engineering
