#include "ThreadSpelling.h"

#include <array>
#include <charconv>

namespace engineering {

namespace {

constexpr std::string_view digits = "0123456789";
constexpr std::string_view digitsAndPoint = "0123456789.";
constexpr std::string_view multiplicationSign = "\xC3\x97";
constexpr std::string_view noBreakSpace = "\xC2\xA0";

bool IsDigit(char c) {
    return digits.find(c) != std::string_view::npos;
}

void ReplaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

char Simple(char c) {
    if (c >= 'A' && c <= 'Z') {
        return static_cast<char>(c - 'A' + 'a');
    }
    return c == ',' ? '.' : c;
}

// Blanks go, but for one between two digits: "1 1/8" is not "11/8".
std::string WithoutBlanks(std::string_view text) {
    std::string result;
    bool blank = false;
    for (const char c : text) {
        if (c == ' ' || c == '\t') {
            blank = true;
            continue;
        }
        if (blank && !result.empty() && IsDigit(result.back()) && IsDigit(c)) {
            result += ' ';
        }
        blank = false;
        result += Simple(c);
    }
    return result;
}

void DropTrailingZeros(std::string& text) {
    for (std::size_t point = text.find('.'); point != std::string::npos; point = text.find('.', point + 1)) {
        const std::size_t end = std::min(text.find_first_not_of(digits, point + 1), text.size());
        std::size_t last = end;
        while (last > point + 1 && text[last - 1] == '0') {
            --last;
        }
        const bool whole = last == point + 1 && end > last;
        text.erase(whole ? point : last, end - (whole ? point : last));
    }
}

std::string TextOf(double number) {
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), end};
}

} // namespace

std::string NormalSpelling(std::string_view designation) {
    std::string text(designation);
    ReplaceAll(text, multiplicationSign, "x");
    ReplaceAll(text, noBreakSpace, " ");
    text = WithoutBlanks(text);
    DropTrailingZeros(text);
    return text;
}

std::optional<std::string> SpellingWithPitch(const Thread& thread) {
    const std::string normal = NormalSpelling(thread.designation);
    const bool coarse = normal.size() > 1 && normal[0] == 'm' &&
                        normal.find_first_not_of(digitsAndPoint, 1) == std::string::npos;
    return coarse ? std::optional(normal + 'x' + TextOf(thread.pitch)) : std::nullopt;
}

} // namespace engineering
