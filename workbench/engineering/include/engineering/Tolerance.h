#pragma once

// The tolerance of a parameter value: a class of a standard, or two limits, or nothing.
//
//   ParseTolerance("H13", Magnitude::Length).value->kind == Tolerance::Kind::FitClass;   // ISO 286
//   ParseTolerance("6H", Magnitude::Length).value->kind == Tolerance::Kind::ThreadClass; // ISO 965
//   ParseTolerance("+0.25/0", Magnitude::Length).value->upper == 0.25;

#include "engineering/Magnitude.h"
#include "engineering/Parsed.h"

#include <string>
#include <string_view>

namespace engineering {

struct Tolerance {
    enum class Kind {
        None,        ///< the standard states none
        FitClass,    ///< ISO 286: fundamental deviation and grade, such as H13 or js9
        ThreadClass, ///< ISO 965: grade and position, such as 6H
        Limits       ///< upper and lower deviation
    };

    Kind kind = Kind::None;
    std::string fitClass; ///< the class as written; empty for None and Limits
    double upper = 0;     ///< upper deviation in mm or degrees; 0 unless Limits
    double lower = 0;     ///< lower deviation in mm or degrees, less than the upper; 0 unless Limits

    bool operator==(const Tolerance&) const = default;
};

/// Reads a class (lengths only) or "upper/lower" (lengths and angles); an empty text is no tolerance.
/// `unitToBase` converts limits to mm or degrees. Whether ISO 286 prints limits for the class at a given size
/// is not checked here.
Parsed<Tolerance> ParseTolerance(std::string_view text, Magnitude magnitude, double unitToBase = 1);

} // namespace engineering
