#include "engineering/Tolerance.h"

#include "CellText.h"
#include "engineering/ToleranceClass.h"

namespace engineering {

namespace {

constexpr std::string_view threadGrades = "3456789";
constexpr std::string_view threadPositions = "GHabcdefgh";

bool IsThreadClass(std::string_view text) {
    return text.size() == 2 && threadGrades.find(text[0]) != std::string_view::npos &&
           threadPositions.find(text[1]) != std::string_view::npos;
}

Parsed<Tolerance> Bad(std::string_view text, const std::string& reason) {
    return Parsed<Tolerance>::Failed("bad tolerance " + Quoted(text) + ": " + reason);
}

Parsed<Tolerance> ParseLimits(std::string_view text, std::size_t slash, double unitToBase) {
    const Parsed<double> upper = ParseNumber(text.substr(0, slash));
    const Parsed<double> lower = ParseNumber(text.substr(slash + 1));
    if (!upper.value || !lower.value) {
        return Bad(text, upper.value ? lower.error : upper.error);
    }
    if (*upper.value <= *lower.value) {
        return Bad(text, "the upper limit comes first and is the greater one");
    }
    return Parsed<Tolerance>::Of(
        {Tolerance::Kind::Limits, {}, *upper.value * unitToBase, *lower.value * unitToBase});
}

} // namespace

Parsed<Tolerance> ParseTolerance(std::string_view text, Magnitude magnitude, double unitToBase) {
    if (text.empty()) {
        return Parsed<Tolerance>::Of({});
    }
    if (!HasUnit(magnitude)) {
        return Bad(text, "a parameter of magnitude " + std::string(NameOf(magnitude)) + " carries none");
    }
    const std::size_t slash = text.find('/');
    if (slash != std::string_view::npos) {
        return ParseLimits(text, slash, unitToBase);
    }
    const bool fitClass = ParseToleranceClass(text).value.has_value();
    if (!fitClass && !IsThreadClass(text)) {
        return Bad(text, "neither a class such as H13 or 6H nor upper/lower such as +0.25/0");
    }
    if (magnitude != Magnitude::Length) {
        return Bad(text, "a class is for lengths only");
    }
    const auto kind = fitClass ? Tolerance::Kind::FitClass : Tolerance::Kind::ThreadClass;
    return Parsed<Tolerance>::Of({kind, std::string(text), 0, 0});
}

} // namespace engineering
