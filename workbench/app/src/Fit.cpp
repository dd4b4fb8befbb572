#include "Commands.h"

#include "ExitStatus.h"
#include "Words.h"
#include "engineering/LimitsAndFits.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iostream>
#include <string_view>

namespace app {

namespace {

using engineering::Deviations;
using engineering::Fit;
using engineering::FitKind;
using engineering::FitSide;
using engineering::LimitsAndFits;
using engineering::Parsed;
using engineering::ToleranceClass;
using nlohmann::ordered_json;

constexpr int jsonIndent = 2;
constexpr std::string_view blanks = " \t";

/// What stops the program, and how it ends then.
struct Refusal {
    ExitStatus status = ExitDone;
    std::string sentence; ///< empty for none
};

/// A class with what the tables tell of it.
struct Part {
    ToleranceClass toleranceClass;
    Deviations deviations;
};

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

/// Reads a size in mm, with or without the unit, with decimal point or comma; none for any other text.
std::optional<double> SizeOf(std::string text) {
    std::ranges::replace(text, ',', '.');
    std::string_view number = WithoutBlanks(text);
    if (number.ends_with("mm"))
        number = WithoutBlanks(number.substr(0, number.size() - 2));
    if (number.starts_with('+') && !number.starts_with("+-"))
        number.remove_prefix(1);
    double size = 0;
    const char* const end = number.data() + number.size();
    const std::from_chars_result read = std::from_chars(number.data(), end, size);
    const bool isRead = read.ec == std::errc() && read.ptr == end && std::isfinite(size);
    return isRead ? std::optional(size) : std::nullopt;
}

/// Letters and digits behind them; such a text names a class, if not one of the standard.
bool LooksLikeClass(std::string_view text) {
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto grade = std::ranges::find_if_not(text, isLetter);
    return grade != text.begin() && grade != text.end() && std::all_of(grade, text.end(), isDigit);
}

/// Decimals that a size and a deviation have together, without the noise of their sum.
double Sum(double nominal, double deviation) {
    constexpr double perMillimetre = 1e10;
    return std::round((nominal + deviation) * perMillimetre) / perMillimetre;
}

std::string Signed(double deviation) {
    return (deviation > 0 ? "+" : "") + TextOf(deviation);
}

std::string SignedText(const Deviations& deviations) {
    return Signed(deviations.upper) + " " + Signed(deviations.lower);
}

const char* NameOf(FitKind kind) {
    switch (kind) {
    case FitKind::Clearance:
        return "clearance";
    case FitKind::Transition:
        return "transition";
    case FitKind::Interference:
        break;
    }
    return "interference";
}

/// An interference is a clearance below zero.
double Interference(double clearance) {
    return 0 - clearance;
}

void Print(const std::string& name, const std::string& value) {
    constexpr std::size_t width = 23;
    PrintLine(name, value, width);
}

void PrintPart(const std::string& name, double nominal, const Part& part) {
    Print(name, ToText(part.toleranceClass));
    Print(name + " deviations", SignedText(part.deviations) + " mm");
    Print("greatest " + name, Millimetres(Sum(nominal, part.deviations.upper)));
    Print("least " + name, Millimetres(Sum(nominal, part.deviations.lower)));
}

void PrintFit(double nominal, const Part& hole, const Part& shaft) {
    const Fit fit = FitOf(hole.deviations, shaft.deviations);
    Print("nominal size", Millimetres(nominal));
    PrintPart("hole", nominal, hole);
    PrintPart("shaft", nominal, shaft);
    Print("fit", NameOf(fit.kind) + std::string(" fit"));
    if (fit.kind != FitKind::Interference)
        Print("greatest clearance", Millimetres(fit.greatestClearance));
    if (fit.kind == FitKind::Clearance)
        Print("least clearance", Millimetres(fit.leastClearance));
    if (fit.kind != FitKind::Clearance)
        Print("greatest interference", Millimetres(Interference(fit.leastClearance)));
    if (fit.kind == FitKind::Interference)
        Print("least interference", Millimetres(Interference(fit.greatestClearance)));
}

ordered_json JsonOf(double nominal, const Part& part) {
    return {{"class", ToText(part.toleranceClass)},
            {"upper_deviation_mm", part.deviations.upper},
            {"lower_deviation_mm", part.deviations.lower},
            {"greatest_size_mm", Sum(nominal, part.deviations.upper)},
            {"least_size_mm", Sum(nominal, part.deviations.lower)}};
}

ordered_json NumberIf(bool isThere, double number) {
    return isThere ? ordered_json(number) : ordered_json();
}

ordered_json JsonOf(double nominal, const Part& hole, const Part& shaft) {
    const Fit fit = FitOf(hole.deviations, shaft.deviations);
    const bool isClearance = fit.kind == FitKind::Clearance;
    const bool isInterference = fit.kind == FitKind::Interference;
    return {{"hole", JsonOf(nominal, hole)},
            {"shaft", JsonOf(nominal, shaft)},
            {"fit", NameOf(fit.kind)},
            {"greatest_clearance_mm", NumberIf(!isInterference, fit.greatestClearance)},
            {"least_clearance_mm", NumberIf(isClearance, fit.leastClearance)},
            {"greatest_interference_mm", NumberIf(!isClearance, Interference(fit.leastClearance))},
            {"least_interference_mm", NumberIf(isInterference, Interference(fit.greatestClearance))}};
}

/// Answers one question: a nominal size and a class or a fit.
class FitAnswer {
  public:
    explicit FitAnswer(const LimitsAndFits& fits) : _fits(fits) {}

    /// Reads size and classes; the refusal tells what is wrong.
    Refusal Read(const std::string& nominal, const std::string& classes) {
        for (const std::string& fault :
             {TextFault(nominal, "the nominal size"), TextFault(classes, "the tolerance class")})
            if (!fault.empty())
                return {ExitUnusable, fault};
        const std::optional<double> size = SizeOf(nominal);
        if (!size)
            return {ExitUnusable, "'" + nominal + "' is no nominal size in mm"};
        _nominal = *size;
        for (std::size_t start = 0, end = 0; end != std::string::npos; start = end + 1) {
            end = classes.find('/', start);
            Refusal refusal = ReadClass(std::string_view(classes).substr(start, end - start));
            if (!refusal.sentence.empty())
                return refusal;
        }
        return IsClassOrFit() ? LookUp()
                              : Refusal{ExitUnusable, "'" + classes +
                                                          "' is no fit: first the hole in capitals, "
                                                          "then the shaft, such as H7/g6"};
    }

    void PrintText() const {
        if (_parts.size() == 2)
            PrintFit(_nominal, _parts[0], _parts[1]);
        else
            std::cout << SignedText(_parts[0].deviations) << '\n';
    }

    void PrintJson() const {
        ordered_json answer{{"nominal_size_mm", _nominal}};
        answer.update(_parts.size() == 2 ? JsonOf(_nominal, _parts[0], _parts[1])
                                         : JsonOf(_nominal, _parts[0]));
        std::cout << answer.dump(jsonIndent) << '\n';
    }

  private:
    Refusal ReadClass(std::string_view text) {
        const std::string_view word = WithoutBlanks(text);
        if (word.empty())
            return {ExitUnusable, "a tolerance class is missing: a fit is a hole and a shaft, such as H7/g6"};
        const Parsed<ToleranceClass> read = engineering::ParseToleranceClass(word);
        if (!read.value)
            return {LooksLikeClass(word) ? ExitFailed : ExitUnusable, read.error};
        _parts.push_back({*read.value, {}});
        return {};
    }

    bool IsClassOrFit() const {
        return _parts.size() == 1 || (_parts.size() == 2 && _parts[0].toleranceClass.side == FitSide::Hole &&
                                      _parts[1].toleranceClass.side == FitSide::Shaft);
    }

    Refusal LookUp() {
        for (Part& part : _parts) {
            const Parsed<Deviations> found = _fits.DeviationsOf(_nominal, part.toleranceClass);
            if (!found.value)
                return {_nominal > 0 ? ExitFailed : ExitUnusable, found.error};
            part.deviations = *found.value;
        }
        return {};
    }

    const LimitsAndFits& _fits;
    double _nominal = 0;
    std::vector<Part> _parts; ///< one class, or hole and shaft
};

} // namespace

int ShowFit(const Options& options, const WorkData& data) {
    FitAnswer answer(data.catalogue.Fits());
    const Refusal refusal = answer.Read(options.nominal, Joined(options.designation, " "));
    if (!refusal.sentence.empty())
        return Complain(refusal.status, refusal.sentence.c_str());
    if (options.json)
        answer.PrintJson();
    else
        answer.PrintText();
    return ExitDone;
}

} // namespace app
