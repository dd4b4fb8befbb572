#include "TypedNumber.h"

#include "EntryTexts.h"

#include <algorithm>
#include <charconv>
#include <sstream>

namespace host {

namespace {

constexpr std::size_t longestQuote = 60; // bytes

bool IsDigit(char iCharacter) {
    return iCharacter >= '0' && iCharacter <= '9';
}

// Whether one of the words of iText starts like a number.
bool HasNumber(const std::string& iText) {
    std::istringstream words(iText);
    std::string word;
    while (words >> word)
        if (word.find_first_of("0123456789.,+-") == 0)
            return true;
    return false;
}

// Whether iText starts with a digit or a point, behind a sign or not. "inf" and "nan" are no numbers here.
bool StartsLikeNumber(const std::string& iText) {
    const std::size_t first = iText.find_first_of("+-") == 0 ? 1 : 0;
    return first < iText.size() && (IsDigit(iText[first]) || iText[first] == '.');
}

Outcome NotANumber(const std::string& iText) {
    return iText.empty() ? RefusedFor(EntryText::NothingTyped)
                         : RefusedFor(EntryText::NotANumber, {Shortened(iText)});
}

} // namespace

std::string WithoutOuterBlanks(const std::string& iText) {
    const std::size_t first = iText.find_first_not_of(blanks);
    if (first == std::string::npos)
        return std::string();
    return iText.substr(first, iText.find_last_not_of(blanks) - first + 1);
}

// Cut where a character of UTF-8 begins.
std::string Shortened(const std::string& iText) {
    if (iText.size() <= longestQuote)
        return iText;
    std::size_t end = longestQuote;
    while (end > 0 && (static_cast<unsigned char>(iText[end]) & 0xC0U) == 0x80U)
        --end;
    return iText.substr(0, end) + "...";
}

Outcome TypedNumber::Read(const std::string& iText, TypedNumber& oTyped) {
    const std::string typed = WithoutOuterBlanks(iText);
    std::string text = typed;
    std::replace(text.begin(), text.end(), ',', '.');
    if (!StartsLikeNumber(text))
        return NotANumber(typed);
    const char* const first = text.data() + (text.front() == '+' ? 1 : 0);
    const std::from_chars_result read = std::from_chars(first, text.data() + text.size(), oTyped.number);
    if (read.ec == std::errc::result_out_of_range)
        return RefusedFor(EntryText::OutsideRange, {Shortened(typed)});
    if (read.ec != std::errc())
        return NotANumber(typed);
    oTyped.unit = WithoutOuterBlanks(typed.substr(static_cast<std::size_t>(read.ptr - text.data())));
    if (HasNumber(oTyped.unit))
        return RefusedFor(EntryText::SeveralNumbers, {Shortened(typed)});
    return Outcome::Done();
}

} // namespace host
