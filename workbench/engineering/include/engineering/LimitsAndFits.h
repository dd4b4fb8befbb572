#pragma once

// Limit deviations and fits after ISO 286-1 and ISO 286-2, for nominal sizes above 0 up to 500 mm.
//
//   const LimitsAndFits& fits = catalogue.Fits();
//   const auto limits = fits.DeviationsOf(25, *ParseToleranceClass("H7").value);
//   limits.value->upper == 0.021; limits.value->lower == 0;
//   FitOf(*hole.value, *shaft.value).kind == FitKind::Clearance;

#include "engineering/FitTables.h"
#include "engineering/Parsed.h"
#include "engineering/ToleranceClass.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace engineering {

/// Deviations from the nominal size, in mm; the exact value of the table, rounded once to the nearest double.
struct Deviations {
    double upper = 0;
    double lower = 0; ///< at most the upper one

    bool operator==(const Deviations&) const = default;
};

enum class FitKind { Clearance, Transition, Interference };

/// What a hole and a shaft of one nominal size make together, in mm; of deviations in whole hundredths of a
/// micrometre the exact differences, rounded once to the nearest double.
struct Fit {
    FitKind kind = FitKind::Clearance;
    double greatestClearance = 0; ///< of the largest hole and the smallest shaft; an interference below 0
    double leastClearance = 0;    ///< of the smallest hole and the largest shaft; an interference below 0
};

/// Clearance: the least clearance is 0 or more. Interference: the greatest clearance is 0 or less, and the
/// least below 0. Transition: anything between.
Fit FitOf(const Deviations& hole, const Deviations& shaft);

class LimitsAndFits {
  public:
    LimitsAndFits() = default;
    explicit LimitsAndFits(FitTables tables);

    /// Whether there are tables; a catalogue without them knows no deviations.
    bool IsEmpty() const;
    /// How many fundamental deviations the tables have, of holes and shafts together.
    std::size_t CountOfDeviations() const;

    /// The deviations of a class at a nominal size in mm; a size on the border of two ranges belongs to the
    /// lower one. Failed, with a sentence that says why, for a size that is not above 0 and up to 500 (not
    /// finite included), and for a class that the standard does not define at that size.
    Parsed<Deviations> DeviationsOf(double nominal, const ToleranceClass& toleranceClass) const;

    /// The classes that a person chooses from at that size: those for which ISO 286-2 prints limits, in the
    /// order of the standard, fine grades first. Empty for a size outside the scope and for unknown letters.
    std::vector<ToleranceClass> OfferedClasses(double nominal, FitSide side,
                                               const std::string& letters) const;
    /// The letters with at least one offered class at that size, in the order of the standard.
    std::vector<std::string> OfferedLetters(double nominal, FitSide side) const;

    /// The offered class that comes nearest to one that is not offered at that size: the same letters and the
    /// nearest grade, the finer of two; without those letters the same of H or h. None outside the scope.
    std::optional<ToleranceClass> Nearest(double nominal, const ToleranceClass& toleranceClass) const;

  private:
    double GreatestSize() const;
    const LetterTable* Find(FitSide side, const std::string& letters) const;
    std::string SizeFault(double nominal) const;
    std::string ClassFault(double nominal, const ToleranceClass& toleranceClass) const;

    FitTables _tables;
};

} // namespace engineering
