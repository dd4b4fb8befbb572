#pragma once

// The tables that limits and fits are computed from, in whole hundredths of a micrometre, so that every sum
// and every half of a tabulated number is exact.

#include "engineering/ToleranceClass.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace engineering {

/// Nominal sizes over one border, up to and including the other, in mm.
struct SizeRange {
    double over = 0;
    double upTo = 0;

    bool Holds(double size) const { return over < size && size <= upTo; }
};

struct GradeRange {
    Grade finest;
    Grade coarsest;

    bool Holds(Grade grade) const { return finest <= grade && grade <= coarsest; }
};

/// A number for each grade, by its position.
struct GradeRow {
    SizeRange sizes;
    std::array<int, gradeCount> values{};
};

/// Which limit a fundamental deviation gives; the other one is the standard tolerance away.
enum class FitReference { Upper, Lower, Symmetric };

struct DeviationRow {
    SizeRange sizes;
    GradeRange grades;
    FitReference reference = FitReference::Upper;
    int deviation = 0;      ///< 0 where symmetric
    bool plusDelta = false; ///< the delta of size and grade is added to the deviation
};

struct LetterTable {
    std::vector<DeviationRow> rows;    ///< at most one holds for a size and grade
    std::optional<GradeRange> offered; ///< the grades that a person chooses from
};

struct FitTables {
    std::vector<GradeRow> tolerances; ///< from 0 on without a gap; all numbers above 0 and even
    std::vector<GradeRow> deltas;     ///< the same sizes; 0 for grades that have none
    std::map<std::pair<FitSide, std::string>, LetterTable> letters;
};

} // namespace engineering
