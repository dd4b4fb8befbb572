#include "LineDiff.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace support {

namespace {

using Lines = std::vector<std::string>;

// A last line without line break counts as another line than one with it.
Lines Split(const std::string& iText) {
    Lines lines;
    std::size_t start = 0;
    while (start < iText.size()) {
        const std::size_t end = iText.find('\n', start);
        if (end == std::string::npos) {
            lines.push_back(iText.substr(start) + "  (no line break)");
            break;
        }
        lines.push_back(iText.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

// lengths[i][j]: length of the longest common sequence of lines from expected line i and actual line j on.
std::vector<std::vector<int>> CommonLengths(const Lines& iExpected, const Lines& iActual) {
    std::vector<std::vector<int>> lengths(iExpected.size() + 1, std::vector<int>(iActual.size() + 1, 0));
    for (std::size_t i = iExpected.size(); i-- > 0;)
        for (std::size_t j = iActual.size(); j-- > 0;)
            lengths[i][j] = iExpected[i] == iActual[j] ? lengths[i + 1][j + 1] + 1
                                                       : std::max(lengths[i + 1][j], lengths[i][j + 1]);
    return lengths;
}

} // namespace

std::string LineDiff(const std::string& iExpected, const std::string& iActual) {
    const Lines expected = Split(iExpected);
    const Lines actual = Split(iActual);
    const std::vector<std::vector<int>> lengths = CommonLengths(expected, actual);
    std::ostringstream diff;
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < expected.size() || j < actual.size()) {
        if (i < expected.size() && j < actual.size() && expected[i] == actual[j]) {
            ++i;
            ++j;
        } else if (j == actual.size() || (i < expected.size() && lengths[i + 1][j] >= lengths[i][j + 1])) {
            diff << "-" << i + 1 << ": " << expected[i] << "\n";
            ++i;
        } else {
            diff << "+" << j + 1 << ": " << actual[j] << "\n";
            ++j;
        }
    }
    return diff.str();
}

} // namespace support
