#ifndef ParameterFacts_H
#define ParameterFacts_H

#include <string>

// One parameter of a feature as every kind of panel is given it. All are lengths; value and tolerance are
// shown.
struct ParameterFacts {
    std::string name;
    double millimetres = 0.0;
    bool hasLimits = false; // the parameter itself has a tolerance
    double upper = 0.0;
    double lower = 0.0;
    std::string tolerance; // the given text; empty to show the limits
    bool isValueEditable = true;
    bool isToleranceEditable = true;
    bool isModified = false;
    std::string description; // empty: the catalogue has none
};

constexpr int describedParameters = 100000;
constexpr const char* lengthUnit = "mm";

// Parameter iNumber, from 0 on. Four kinds take turns: limits of its own; neither limits nor editable value;
// a fit; limits that cannot be edited. One in ten is modified.
inline ParameterFacts FactsOf(int iNumber) {
    ParameterFacts facts;
    facts.name = "Diameter " + std::to_string(iNumber);
    facts.millimetres = 0.25 * (iNumber % 10000) + 1.0;
    facts.isModified = iNumber % 10 == 7;
    if (iNumber < describedParameters)
        facts.description = "Diameter of the hole in position " + std::to_string(iNumber);
    switch (iNumber % 4) {
    case 0:
        facts.hasLimits = true;
        facts.upper = 0.1;
        facts.lower = -0.05;
        break;
    case 1:
        facts.isValueEditable = false;
        break;
    case 2:
        facts.tolerance = "H7";
        break;
    default:
        facts.hasLimits = true;
        facts.upper = 0.2;
        facts.isToleranceEditable = false;
    }
    return facts;
}

#endif
