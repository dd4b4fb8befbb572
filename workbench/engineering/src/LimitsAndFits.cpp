#include "engineering/LimitsAndFits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <numeric>
#include <system_error>
#include <utility>

namespace engineering {

namespace {

constexpr double hundredthsPerMillimetre = 100'000;

// One division, so that 2100 gives the same double as the text 0.021.
double Millimetres(long long hundredths) {
    return static_cast<double>(hundredths) / hundredthsPerMillimetre;
}

// The exact difference of two numbers of the tables.
double Difference(double left, double right) {
    return Millimetres(std::llround((left - right) * hundredthsPerMillimetre));
}

// As a person writes it, 0.0001 and not 1e-04; with an exponent only where that would be too long.
std::string TextOf(double number) {
    std::array<char, 32> text{};
    char* const end = text.data() + text.size();
    std::to_chars_result result = std::to_chars(text.data(), end, number, std::chars_format::fixed);
    if (result.ec != std::errc()) {
        result = std::to_chars(text.data(), end, number);
    }
    return {text.data(), result.ptr};
}

const char* NameOf(FitSide side) {
    return side == FitSide::Hole ? "holes" : "shafts";
}

int ValueOf(const std::vector<GradeRow>& rows, double nominal, Grade grade) {
    const auto row =
        std::ranges::find_if(rows, [=](const GradeRow& each) { return each.sizes.Holds(nominal); });
    return row->values.at(static_cast<std::size_t>(grade.position));
}

const DeviationRow* RowFor(const LetterTable& table, double nominal, Grade grade) {
    const auto row = std::ranges::find_if(table.rows, [=](const DeviationRow& each) {
        return each.sizes.Holds(nominal) && each.grades.Holds(grade);
    });
    return row == table.rows.end() ? nullptr : &*row;
}

Deviations DeviationsFrom(FitReference reference, int deviation, int tolerance) {
    switch (reference) {
    case FitReference::Upper:
        return {Millimetres(deviation), Millimetres(deviation - tolerance)};
    case FitReference::Lower:
        return {Millimetres(deviation + tolerance), Millimetres(deviation)};
    case FitReference::Symmetric:
        break;
    }
    return {Millimetres(tolerance / 2), Millimetres(-tolerance / 2)};
}

// Where the letters have any class, for a size at which they have none.
std::string SizesOf(const LetterTable& table, double nominal) {
    double over = table.rows.front().sizes.over;
    double upTo = table.rows.front().sizes.upTo;
    for (const DeviationRow& row : table.rows) {
        over = std::min(over, row.sizes.over);
        upTo = std::max(upTo, row.sizes.upTo);
    }
    if (SizeRange{over, upTo}.Holds(nominal)) {
        return "other sizes";
    }
    return "sizes over " + TextOf(over) + " up to " + TextOf(upTo) + " mm";
}

// "6 to 8", or "3 to 5, 7": the grades that the letters have at a size; empty for none.
std::string GradesAt(const LetterTable& table, double nominal) {
    std::string text;
    int first = 0;
    for (int position = 0; position <= gradeCount; ++position) {
        if (RowFor(table, nominal, {position}) != nullptr) {
            continue;
        }
        if (first < position) {
            text += (text.empty() ? "" : ", ") + ToText(Grade{first});
            text += first + 1 < position ? " to " + ToText(Grade{position - 1}) : "";
        }
        first = position + 1;
    }
    return text;
}

} // namespace

Fit FitOf(const Deviations& hole, const Deviations& shaft) {
    Fit fit;
    fit.greatestClearance = Difference(hole.upper, shaft.lower);
    fit.leastClearance = Difference(hole.lower, shaft.upper);
    if (fit.leastClearance >= 0) {
        fit.kind = FitKind::Clearance;
    } else {
        fit.kind = fit.greatestClearance <= 0 ? FitKind::Interference : FitKind::Transition;
    }
    return fit;
}

LimitsAndFits::LimitsAndFits(FitTables tables) : _tables(std::move(tables)) {}

bool LimitsAndFits::IsEmpty() const {
    return _tables.tolerances.empty();
}

std::size_t LimitsAndFits::CountOfDeviations() const {
    return std::accumulate(
        _tables.letters.begin(), _tables.letters.end(), std::size_t{0},
        [](std::size_t count, const auto& table) { return count + table.second.rows.size(); });
}

Parsed<Deviations> LimitsAndFits::DeviationsOf(double nominal, const ToleranceClass& toleranceClass) const {
    std::string fault = SizeFault(nominal);
    if (fault.empty()) {
        fault = ClassFault(nominal, toleranceClass);
    }
    if (!fault.empty()) {
        return Parsed<Deviations>::Failed("there is no " + ToText(toleranceClass) + " at " + TextOf(nominal) +
                                          " mm: " + fault);
    }
    const LetterTable& table = *Find(toleranceClass.side, toleranceClass.letters);
    const Grade grade = toleranceClass.grade;
    const DeviationRow& row = *RowFor(table, nominal, grade);
    const int delta = row.plusDelta ? ValueOf(_tables.deltas, nominal, grade) : 0;
    return Parsed<Deviations>::Of(
        DeviationsFrom(row.reference, row.deviation + delta, ValueOf(_tables.tolerances, nominal, grade)));
}

std::vector<ToleranceClass> LimitsAndFits::OfferedClasses(double nominal, FitSide side,
                                                          const std::string& letters) const {
    const LetterTable* table = Find(side, letters);
    if (table == nullptr || !table->offered || !SizeFault(nominal).empty()) {
        return {};
    }
    std::vector<ToleranceClass> classes;
    for (Grade grade = table->offered->finest; grade <= table->offered->coarsest; ++grade.position) {
        if (RowFor(*table, nominal, grade) != nullptr) {
            classes.push_back({side, letters, grade});
        }
    }
    return classes;
}

std::vector<std::string> LimitsAndFits::OfferedLetters(double nominal, FitSide side) const {
    std::vector<std::string> offered;
    std::ranges::copy_if(LettersOf(side), std::back_inserter(offered), [&](const std::string& letters) {
        return !OfferedClasses(nominal, side, letters).empty();
    });
    return offered;
}

std::optional<ToleranceClass> LimitsAndFits::Nearest(double nominal,
                                                     const ToleranceClass& toleranceClass) const {
    const FitSide side = toleranceClass.side;
    std::vector<ToleranceClass> offered = OfferedClasses(nominal, side, toleranceClass.letters);
    if (offered.empty()) {
        offered = OfferedClasses(nominal, side, side == FitSide::Hole ? "H" : "h");
    }
    const auto distance = [&](const ToleranceClass& each) {
        return std::abs(each.grade.position - toleranceClass.grade.position);
    };
    const auto nearest = std::ranges::min_element(offered, {}, distance); // the first, finer one of two
    return nearest == offered.end() ? std::nullopt : std::optional(*nearest);
}

double LimitsAndFits::GreatestSize() const {
    return _tables.tolerances.back().sizes.upTo;
}

const LetterTable* LimitsAndFits::Find(FitSide side, const std::string& letters) const {
    const auto found = _tables.letters.find({side, letters});
    return found == _tables.letters.end() ? nullptr : &found->second;
}

// Why there is no class at all at that size; empty within the scope of the tables.
std::string LimitsAndFits::SizeFault(double nominal) const {
    if (IsEmpty()) {
        return "the catalogue has no limits and fits";
    }
    if (!std::isfinite(nominal)) {
        return "the nominal size is not a finite number";
    }
    if (nominal <= 0) {
        return "the nominal size is not above 0";
    }
    return nominal > GreatestSize() ? "the tables end at " + TextOf(GreatestSize()) + " mm" : std::string();
}

// Why there is no such class at a size within the scope; empty where there is one.
std::string LimitsAndFits::ClassFault(double nominal, const ToleranceClass& toleranceClass) const {
    const std::string& letters = toleranceClass.letters;
    const LetterTable* table = Find(toleranceClass.side, letters);
    if (table == nullptr || table->rows.empty()) {
        return "the tables have no letter " + letters + " for " + NameOf(toleranceClass.side);
    }
    if (RowFor(*table, nominal, toleranceClass.grade) != nullptr) {
        return {};
    }
    const std::string grades = GradesAt(*table, nominal);
    return grades.empty() ? letters + " is defined for " + SizesOf(*table, nominal)
                          : "at that size " + letters + " is defined for the grades " + grades;
}

} // namespace engineering
