#include "Words.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <iostream>

namespace app {

namespace {

constexpr std::size_t longest = 100;

bool IsControl(char c) {
    return std::iscntrl(static_cast<unsigned char>(c)) != 0 && c != '\t';
}

} // namespace

std::string Joined(const std::vector<std::string>& texts, const char* between) {
    std::string joined;
    for (const std::string& text : texts)
        joined += (joined.empty() ? "" : between) + text;
    return joined;
}

std::string TextFault(const std::string& text, const std::string& what) {
    if (text.find_first_not_of(" \t") == std::string::npos)
        return what + " is empty";
    if (text.size() > longest)
        return what + " has more than " + std::to_string(longest) + " characters";
    if (std::ranges::any_of(text, IsControl))
        return what + " has a control character";
    return {};
}

std::string TextOf(double number) {
    std::array<char, 400> text{}; // the longest doubles have some 340 characters
    const std::to_chars_result result =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return {text.data(), result.ptr};
}

std::string Millimetres(double length) {
    return TextOf(length) + " mm";
}

void PrintLine(const std::string& name, const std::string& value, std::size_t width) {
    std::cout << name << std::string(width - name.size(), ' ') << value << '\n';
}

} // namespace app
