#pragma once

// A tolerance class of ISO 286-1: a fundamental deviation and a standard tolerance grade, such as H7 or js01.
//
//   const Parsed<ToleranceClass> read = ParseToleranceClass("js6");
//   read.value->side == FitSide::Shaft; read.value->letters == "js"; ToText(*read.value) == "js6";

#include "engineering/Parsed.h"

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engineering {

/// Whether a class is one of internal features (holes, capital letters) or of external ones (shafts).
enum class FitSide { Hole, Shaft };

/// "hole" or "shaft"; none for any other name.
std::optional<FitSide> FitSideNamed(std::string_view name);

constexpr int gradeCount = 20;

/// A grade from IT01, the finest, to IT18; its position in that order: IT01 is 0, IT0 is 1, IT18 is 19.
struct Grade {
    int position = 0;

    auto operator<=>(const Grade&) const = default; // NOLINT(modernize-use-nullptr): it has no pointer
};

/// As written behind the letters: "01", "0", "1" ... "18"; empty for a position that is no grade's.
std::string ToText(Grade grade);

/// The grade that is written so, or none.
std::optional<Grade> GradeNamed(std::string_view text);

struct ToleranceClass {
    FitSide side = FitSide::Hole;
    std::string letters; ///< of the fundamental deviation: A, CD, JS ... for holes, a, cd, js ... for shafts
    Grade grade;

    bool operator==(const ToleranceClass&) const = default;
};

/// Reads a class as it is written: letters of one case that ISO 286 has, and a grade. Whether it exists at a
/// given size is told by LimitsAndFits.
Parsed<ToleranceClass> ParseToleranceClass(std::string_view text);

std::string ToText(const ToleranceClass& toleranceClass);

/// The letters of a side in the order of the standard, A to ZC.
const std::vector<std::string>& LettersOf(FitSide side);

} // namespace engineering
