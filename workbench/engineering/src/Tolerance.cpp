#include "engineering/Tolerance.h"

#include "CellText.h"

#include <algorithm>
#include <array>

namespace engineering {

namespace {

constexpr std::array<std::string_view, 28> shaftLetters{"a", "b", "c",  "cd", "d", "e",  "ef", "f", "fg", "g",
                                                        "h", "j", "js", "k",  "m", "n",  "p",  "r", "s",  "t",
                                                        "u", "v", "x",  "y",  "z", "za", "zb", "zc"};
constexpr std::array<std::string_view, 20> grades{"01", "0",  "1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",
                                                  "9",  "10", "11", "12", "13", "14", "15", "16", "17", "18"};
constexpr std::string_view threadGrades = "3456789";
constexpr std::string_view threadPositions = "GHabcdefgh";
constexpr std::string_view digits = "0123456789";

bool IsUpper(char c) {
    return c >= 'A' && c <= 'Z';
}

std::string ToLower(std::string_view letters) {
    std::string lower(letters);
    std::ranges::transform(lower, lower.begin(),
                           [](char c) { return IsUpper(c) ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

bool IsFitLetter(std::string_view letters) {
    const bool oneCase = std::ranges::all_of(letters, IsUpper) || std::ranges::none_of(letters, IsUpper);
    return oneCase && std::ranges::find(shaftLetters, ToLower(letters)) != shaftLetters.end();
}

bool IsFitClass(std::string_view text) {
    const std::size_t gradeStart = std::min(text.find_first_of(digits), text.size());
    return IsFitLetter(text.substr(0, gradeStart)) &&
           std::ranges::find(grades, text.substr(gradeStart)) != grades.end();
}

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
    const bool fitClass = IsFitClass(text);
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
