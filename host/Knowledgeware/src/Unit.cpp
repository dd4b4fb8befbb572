#include "Unit.h"

#include <algorithm>
#include <numbers>

namespace host {

namespace {

constexpr Unit units[] = {
    {"LENGTH", "mm", 1.0},  {"LENGTH", "cm", 10.0}, {"LENGTH", "m", 1000.0},
    {"LENGTH", "in", 25.4}, {"ANGLE", "deg", 1.0},  {"ANGLE", "rad", 180.0 / std::numbers::pi},
};

} // namespace

const Unit* Unit::Find(std::string_view iName, std::string_view iMagnitude) {
    const Unit* const found = std::find_if(std::begin(units), std::end(units), [&](const Unit& iUnit) {
        return iUnit.magnitude == iMagnitude && iUnit.name == iName;
    });
    return found == std::end(units) ? nullptr : found;
}

std::string Unit::ListOf(std::string_view iMagnitude) {
    std::string list;
    for (const Unit& unit : units)
        if (unit.magnitude == iMagnitude)
            list.append(list.empty() ? "" : ", ").append(unit.name);
    return list;
}

} // namespace host
