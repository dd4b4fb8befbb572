#include "engineering/Magnitude.h"

#include <algorithm>
#include <array>

namespace engineering {

namespace {

struct NamedMagnitude {
    std::string_view name;
    Magnitude magnitude;
};

constexpr std::array magnitudes{
    NamedMagnitude{"LENGTH", Magnitude::Length}, NamedMagnitude{"ANGLE", Magnitude::Angle},
    NamedMagnitude{"REAL", Magnitude::Real},     NamedMagnitude{"INTEGER", Magnitude::Integer},
    NamedMagnitude{"STRING", Magnitude::String}, NamedMagnitude{"BOOLEAN", Magnitude::Boolean},
};

constexpr std::array units{
    Unit{"mm", Magnitude::Length, 1},
    Unit{"in", Magnitude::Length, 25.4},
    Unit{"deg", Magnitude::Angle, 1},
};

} // namespace

std::optional<Magnitude> MagnitudeNamed(std::string_view name) {
    const auto* found = std::ranges::find(magnitudes, name, &NamedMagnitude::name);
    if (found == magnitudes.end()) {
        return std::nullopt;
    }
    return found->magnitude;
}

std::string_view NameOf(Magnitude magnitude) {
    return std::ranges::find(magnitudes, magnitude, &NamedMagnitude::magnitude)->name;
}

bool HasUnit(Magnitude magnitude) {
    return magnitude == Magnitude::Length || magnitude == Magnitude::Angle;
}

const Unit* UnitNamed(std::string_view name) {
    const auto* found = std::ranges::find(units, name, &Unit::name);
    return found == units.end() ? nullptr : found;
}

} // namespace engineering
