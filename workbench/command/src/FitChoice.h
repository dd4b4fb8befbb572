#pragma once

// What a designer chooses from for the ISO 286 fit of one parameter: the letters of its side, and the classes
// of each letter, as far as they exist at the nominal size.
//
//   const FitChoice choice(catalogue.Fits(), FitSide::Hole);
//   choice.Groups(25, choice.Usual());            // "A", "B" ... "ZC"
//   choice.Fields(25, "H", choice.Usual());       // "H1" ... "H18"

#include "CATListValCATUnicodeString.h"
#include "engineering/LimitsAndFits.h"

#include <optional>
#include <string>

namespace workbench {

class FitChoice {
  public:
    /// The fits are not owned and outlive the choice.
    FitChoice(const engineering::LimitsAndFits& fits, engineering::FitSide side) : _fits(fits), _side(side) {}

    /// The class that a designer starts with: H7 for a hole, h6 for a shaft.
    engineering::ToleranceClass Usual() const;
    /// The class of that text; none where it is no class of this side.
    std::optional<engineering::ToleranceClass> Read(const std::string& text) const;
    /// The class of another letter that comes nearest; none at a size without classes.
    std::optional<engineering::ToleranceClass> InGroup(double nominal, const std::string& letters,
                                                       const engineering::ToleranceClass& current) const;
    /// The class itself where it exists at that size, else the nearest one that is offered; none at a size
    /// without classes.
    std::optional<engineering::ToleranceClass> AtSize(double nominal,
                                                      const engineering::ToleranceClass& wanted) const;
    /// The deviations of a class; none where it does not exist.
    std::optional<engineering::Deviations> Deviations(double nominal,
                                                      const engineering::ToleranceClass& fit) const;

    /// What is offered at that size; the current class is there too where it exists.
    CATListValCATUnicodeString Groups(double nominal, const engineering::ToleranceClass& current) const;
    CATListValCATUnicodeString Fields(double nominal, const std::string& letters,
                                      const engineering::ToleranceClass& current) const;

  private:
    const engineering::LimitsAndFits& _fits;
    engineering::FitSide _side;
};

} // namespace workbench
