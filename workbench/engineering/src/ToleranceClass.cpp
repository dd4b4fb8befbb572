#include "engineering/ToleranceClass.h"

#include "CellText.h"

#include <algorithm>
#include <array>

namespace engineering {

namespace {

constexpr std::array<std::string_view, gradeCount> grades{"01", "0",  "1",  "2",  "3",  "4",  "5",
                                                          "6",  "7",  "8",  "9",  "10", "11", "12",
                                                          "13", "14", "15", "16", "17", "18"};
constexpr std::string_view digits = "0123456789";

char ToCapital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::vector<std::string> Capitals(std::vector<std::string> letters) {
    for (std::string& each : letters) {
        std::ranges::transform(each, each.begin(), ToCapital);
    }
    return letters;
}

bool IsLetterOf(FitSide side, std::string_view letters) {
    return std::ranges::find(LettersOf(side), letters) != LettersOf(side).end();
}

Parsed<ToleranceClass> Bad(std::string_view text, const std::string& reason) {
    return Parsed<ToleranceClass>::Failed(Quoted(text) + " is no class of ISO 286: " + reason);
}

} // namespace

std::optional<FitSide> FitSideNamed(std::string_view name) {
    if (name == "hole") {
        return FitSide::Hole;
    }
    return name == "shaft" ? std::optional(FitSide::Shaft) : std::nullopt;
}

std::string ToText(Grade grade) {
    return grade.position >= 0 && grade.position < gradeCount
               ? std::string(grades.at(static_cast<std::size_t>(grade.position)))
               : std::string();
}

std::optional<Grade> GradeNamed(std::string_view text) {
    const auto found = std::ranges::find(grades, text);
    return found == grades.end() ? std::nullopt
                                 : std::optional(Grade{static_cast<int>(found - grades.begin())});
}

Parsed<ToleranceClass> ParseToleranceClass(std::string_view text) {
    const std::string_view letters = text.substr(0, text.find_first_of(digits));
    if (letters.empty()) {
        return Bad(text, "it begins with a letter, such as H in H7");
    }
    const bool isHole = IsLetterOf(FitSide::Hole, letters);
    if (!isHole && !IsLetterOf(FitSide::Shaft, letters)) {
        return Bad(text, "there is no letter " + Quoted(letters));
    }
    const std::string_view grade = text.substr(letters.size());
    const std::optional<Grade> named = GradeNamed(grade);
    if (!named) {
        return Bad(text, grade.empty() ? "a grade is missing, such as 7 in H7"
                                       : "there is no grade " + Quoted(grade) + ", only 01, 0 and 1 to 18");
    }
    return Parsed<ToleranceClass>::Of(
        {isHole ? FitSide::Hole : FitSide::Shaft, std::string(letters), *named});
}

std::string ToText(const ToleranceClass& toleranceClass) {
    return toleranceClass.letters + ToText(toleranceClass.grade);
}

const std::vector<std::string>& LettersOf(FitSide side) {
    static const std::vector<std::string> shafts{"a", "b",  "c", "cd", "d", "e",  "ef", "f", "fg", "g",
                                                 "h", "js", "j", "k",  "m", "n",  "p",  "r", "s",  "t",
                                                 "u", "v",  "x", "y",  "z", "za", "zb", "zc"};
    static const std::vector<std::string> holes = Capitals(shafts);
    return side == FitSide::Hole ? holes : shafts;
}

} // namespace engineering
