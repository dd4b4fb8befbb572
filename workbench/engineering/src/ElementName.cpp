#include "ElementName.h"

#include "CellText.h"

#include <algorithm>
#include <cstdint>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace engineering {

namespace {

constexpr std::size_t longestName = 100;

std::u32string CharactersOf(const std::string& text) {
    const icu::UnicodeString unicode = icu::UnicodeString::fromUTF8(text);
    std::u32string characters;
    for (std::int32_t i = 0; i < unicode.length(); i = unicode.moveIndex32(i, 1)) {
        characters.push_back(static_cast<char32_t>(unicode.char32At(i)));
    }
    return characters;
}

bool IsControl(char32_t character) {
    return u_iscntrl(static_cast<UChar32>(character)) != 0;
}

bool IsBlank(char32_t character) {
    return u_isUWhiteSpace(static_cast<UChar32>(character)) != 0;
}

} // namespace

Parsed<std::string> ParseElementName(std::string_view text) {
    const std::string name(text);
    const std::u32string characters = CharactersOf(name);
    if (characters.empty()) {
        return Parsed<std::string>::Failed("is empty");
    }
    if (characters.size() > longestName) {
        return Parsed<std::string>::Failed(Quoted(text) + " has more than " + std::to_string(longestName) +
                                           " characters");
    }
    if (std::ranges::any_of(characters, IsControl)) {
        return Parsed<std::string>::Failed("has a control character");
    }
    if (IsBlank(characters.front()) || IsBlank(characters.back())) {
        return Parsed<std::string>::Failed(Quoted(text) + " begins or ends with a blank");
    }
    return Parsed<std::string>::Of(name);
}

} // namespace engineering
