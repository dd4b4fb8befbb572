#include "CellText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace engineering {

namespace {

constexpr std::string_view keyCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";
constexpr std::size_t longestQuotation = 60;

// std::from_chars takes a minus sign but no plus sign.
std::string_view WithoutPlus(std::string_view text) {
    const bool plainPlus = text.size() > 1 && text[0] == '+' && text[1] != '-' && text[1] != '+';
    return plainPlus ? text.substr(1) : text;
}

template<class Number>
Parsed<Number> ParseWhole(std::string_view text, std::string_view kind) {
    const std::string_view digits = WithoutPlus(text);
    const char* end = digits.data() + digits.size();
    Number number{};
    const auto [rest, error] = std::from_chars(digits.data(), end, number);
    if (error == std::errc::invalid_argument) {
        return Parsed<Number>::Failed(Quoted(text) + " is not " + std::string(kind));
    }
    if (rest != end) {
        return Parsed<Number>::Failed(Quoted(text) + " has " + Quoted({rest, end}) + " after the number");
    }
    if (error == std::errc::result_out_of_range) {
        return Parsed<Number>::Failed(Quoted(text) + " is out of range");
    }
    return Parsed<Number>::Of(number);
}

Parsed<Value> ParseBoolean(std::string_view text) {
    if (text != "true" && text != "false") {
        return Parsed<Value>::Failed(Quoted(text) + " is neither true nor false");
    }
    return Parsed<Value>::Of(text == "true");
}

template<class T>
Parsed<Value> AsValue(Parsed<T> parsed) {
    if (!parsed.value) {
        return Parsed<Value>::Failed(std::move(parsed.error));
    }
    return Parsed<Value>::Of(*parsed.value);
}

} // namespace

std::string Quoted(std::string_view text) {
    std::string quoted(text.substr(0, longestQuotation));
    if (text.size() > longestQuotation) {
        // A cut within a character takes the whole character away.
        while (!quoted.empty() && (static_cast<unsigned char>(text[quoted.size()]) & 0xC0U) == 0x80U) {
            quoted.pop_back();
        }
        quoted += "...";
    }
    std::ranges::replace_if(
        quoted, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return "'" + quoted + "'";
}

Parsed<std::string> ParseKey(std::string_view text) {
    if (text.empty()) {
        return Parsed<std::string>::Failed("is empty");
    }
    if (text.find_first_not_of(keyCharacters) != std::string_view::npos) {
        return Parsed<std::string>::Failed(Quoted(text) + " has a character other than A-Z, a-z, 0-9 and _");
    }
    return Parsed<std::string>::Of(std::string(text));
}

Parsed<std::string> ParseTableName(std::string_view text, std::string_view folder) {
    if (text.empty()) {
        return Parsed<std::string>::Failed("is empty");
    }
    if (!text.ends_with(".csv") || text.find('/') != std::string_view::npos || text.starts_with('.')) {
        return Parsed<std::string>::Failed(Quoted(text) + " is not the name of a .csv file in the folder " +
                                           std::string(folder));
    }
    return Parsed<std::string>::Of(std::string(text));
}

Parsed<bool> ParseFlag(std::string_view text) {
    if (text != "0" && text != "1") {
        return Parsed<bool>::Failed(Quoted(text) + " is neither 0 nor 1");
    }
    return Parsed<bool>::Of(text == "1");
}

Parsed<double> ParseNumber(std::string_view text) {
    Parsed<double> number = ParseWhole<double>(text, "a number");
    if (number.value && !std::isfinite(*number.value)) {
        return Parsed<double>::Failed(Quoted(text) + " is not a finite number");
    }
    return number;
}

Parsed<double> ParsePositive(std::string_view text) {
    Parsed<double> number = ParseNumber(text);
    if (number.value && *number.value <= 0) {
        return Parsed<double>::Failed(Quoted(text) + " is not above zero");
    }
    return number;
}

Parsed<Value> ParseValue(std::string_view text, Magnitude magnitude, double unitToBase) {
    switch (magnitude) {
    case Magnitude::String:
        return Parsed<Value>::Of(std::string(text));
    case Magnitude::Boolean:
        return ParseBoolean(text);
    case Magnitude::Integer:
        return AsValue(ParseWhole<std::int64_t>(text, "an integer"));
    case Magnitude::Length:
    case Magnitude::Angle:
    case Magnitude::Real:
        break;
    }
    Parsed<double> number = ParseNumber(text);
    if (number.value && !std::isfinite(*number.value * unitToBase)) {
        return Parsed<Value>::Failed(Quoted(text) + " is out of range");
    }
    if (number.value) {
        *number.value *= unitToBase;
    }
    return AsValue(std::move(number));
}

} // namespace engineering
