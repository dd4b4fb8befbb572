#ifndef SetFacts_H
#define SetFacts_H

#include "ParameterFacts.h"

#include <array>
#include <string>
#include <vector>

// Parameter sets as every kind of set table is given them.
constexpr int parametersOfSet = 20;
constexpr int distinctSets = 1000; // longer tables begin again, under other names

// What is said once about each parameter of all sets.
struct SetColumnFacts {
    std::string name;
    bool isToleranceShown = false;
    bool isValueEditable = true;
    bool isToleranceEditable = true;
};

inline SetColumnFacts ColumnFactsOf(int iParameter) {
    SetColumnFacts facts;
    facts.name = "P" + std::to_string(iParameter + 1);
    facts.isToleranceShown = iParameter % 4 == 0;
    facts.isValueEditable = iParameter % 5 != 0;
    facts.isToleranceEditable = iParameter % 8 == 0;
    return facts;
}

// The value and tolerance of a parameter in one of the sets: half of the shown tolerances are fits, the other
// half limits of the parameter.
inline ParameterFacts FactsInSet(int iSet, int iParameter) {
    ParameterFacts facts;
    facts.name = ColumnFactsOf(iParameter).name;
    facts.millimetres = 1.5 * (iParameter + 1) + 0.25 * (iSet % distinctSets);
    facts.tolerance = iParameter % 12 == 0 ? "H7" : "";
    facts.hasLimits = iParameter % 12 != 0;
    facts.upper = 0.1;
    facts.lower = -0.05;
    return facts;
}

inline std::string NameOfSet(int iSet) {
    return "Counterbore set " + std::to_string(iSet);
}

#endif
