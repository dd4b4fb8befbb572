#include "PreferencesText.h"

#include <charconv>
#include <sstream>
#include <vector>

namespace host {

namespace {

constexpr int knownVersion = 1;

PreferencesContent Broken(const std::string& iProblem) {
    return PreferencesContent{PanelRectangle(), iProblem};
}

bool IsNumber(const std::string& iText, int& oNumber) {
    const char* const end = iText.data() + iText.size();
    const std::from_chars_result result = std::from_chars(iText.data(), end, oNumber);
    return result.ec == std::errc() && result.ptr == end;
}

// The numbers of a line "KEY = N N N"; empty when it is none.
std::vector<int> NumbersOf(const std::string& iLine, const std::string& iKey) {
    std::istringstream words(iLine);
    std::string key;
    std::string sign;
    words >> key >> sign;
    if (key != iKey || sign != "=")
        return {};
    std::vector<int> numbers;
    for (std::string word; words >> word;) {
        int number = 0;
        if (!IsNumber(word, number))
            return {};
        numbers.push_back(number);
    }
    return numbers;
}

std::vector<std::string> LinesOf(const std::string& iText) {
    std::istringstream text(iText);
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

} // namespace

std::string PreferencesText(const PanelRectangle& iRectangle) {
    return "version = " + std::to_string(knownVersion) + "\npanel = " + std::to_string(iRectangle.left) +
           ' ' + std::to_string(iRectangle.top) + ' ' + std::to_string(iRectangle.third) + ' ' +
           std::to_string(iRectangle.fourth) + '\n';
}

PreferencesContent ReadPreferencesText(const std::string& iText) {
    const std::vector<std::string> lines = LinesOf(iText);
    if (lines.empty())
        return Broken("is empty");
    const std::vector<int> version = NumbersOf(lines[0], "version");
    if (version.size() != 1 || version[0] < 1)
        return Broken("has no version in line 1");
    if (version[0] > knownVersion)
        return Broken("comes from a newer version of the program");
    if (lines.size() < 2 || iText.back() != '\n')
        return Broken("is cut off");
    const std::vector<int> panel = NumbersOf(lines[1], "panel");
    if (panel.size() != 4)
        return Broken("has no place of a panel in line 2: four whole numbers");
    if (lines.size() > 2)
        return Broken("has more lines than it should");
    return PreferencesContent{PanelRectangle{panel[0], panel[1], panel[2], panel[3]}, std::string()};
}

} // namespace host
