#pragma once

// What a parameter measures, and the units a catalogue may write it in.
//
//   MagnitudeNamed("LENGTH") == Magnitude::Length;
//   UnitNamed("in")->toBase == 25.4;

#include <optional>
#include <string_view>

namespace engineering {

enum class Magnitude { Length, Angle, Real, Integer, String, Boolean };

/// The magnitude of that exact name (LENGTH, ANGLE, REAL, INTEGER, STRING, BOOLEAN), or none.
std::optional<Magnitude> MagnitudeNamed(std::string_view name);

/// The name of a magnitude, in capitals.
std::string_view NameOf(Magnitude magnitude);

/// True for magnitudes that carry a unit and can carry a tolerance: lengths and angles.
bool HasUnit(Magnitude magnitude);

/// A unit of a catalogue. The base unit of lengths is the millimetre, that of angles the degree.
struct Unit {
    std::string_view name;
    Magnitude magnitude;
    double toBase; ///< factor from this unit to the base unit
};

/// The unit of that exact name (mm, in, deg), or nullptr.
const Unit* UnitNamed(std::string_view name);

} // namespace engineering
