#include "ToleranceSight.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace tolerance {

namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

std::string InWords(bool iIsSo, const char* iYes, const char* iNo) {
    return iIsSo ? iYes : iNo;
}

std::string InWords(const Sight::Editor& iEditor) {
    return "'" + iEditor.text + "'" + InWords(iEditor.isRefused, " refused", "") +
           InWords(iEditor.isEnabled, "", " disabled");
}

std::string InWords(const Sight::List& iList) {
    return Quoted(iList.lines) + " line " + std::to_string(iList.selected) + " height " +
           std::to_string(iList.visibleHeight);
}

template<std::size_t count>
std::string InWords(const std::array<bool, count>& iFlags, const std::array<const char*, count>& iNames) {
    std::string names;
    for (std::size_t index = 0; index < count; ++index)
        if (iFlags[index])
            names += (names.empty() ? "" : ", ") + std::string(iNames[index]);
    return names.empty() ? "none" : names;
}

Rows RowsOf(const Sight& iSight) {
    return {{"answer", iSight.answer},
            {"panel", InWords(iSight.isPanelShown, "shown", "hidden")},
            {"checked", InWords<3>(iSight.checkedRadios, {"plus/minus", "symmetric", "ISO fit"})},
            {"ISO fit radio", InWords(iSight.isFitRadioShown, "shown", "hidden")},
            {"shown of the fit",
             InWords<4>(iSight.shownFitWidgets, {"group label", "groups", "field label", "fields"})},
            {"hidden or disabled", Quoted(iSight.unusable)},
            {"maximum", InWords(iSight.maximum)},
            {"minimum", InWords(iSight.minimum)},
            {"nominal", InWords(iSight.nominal)},
            {"value", InFull(iSight.value)},
            {"tolerance", InWords(iSight.isToleranceSet, "set", "none")},
            {"  maximum", InFull(iSight.toleranceMaximum)},
            {"  minimum", InFull(iSight.toleranceMinimum)},
            {"groups", InWords(iSight.groups)},
            {"fields", InWords(iSight.fields)},
            {"fitting info", Quoted({iSight.group, iSight.field})},
            {"heard: parameter", std::to_string(iSight.subscriptionsOnParameter)},
            {"heard: maximum", std::to_string(iSight.subscriptionsOnMaximum)},
            {"heard: minimum", std::to_string(iSight.subscriptionsOnMinimum)}};
}

// The event lists of both, one event a row.
void AppendEvents(const char* iName, const std::vector<std::string>& iEvents, std::size_t iRows,
                  Rows& ioRows) {
    for (std::size_t row = 0; row < iRows; ++row)
        ioRows.emplace_back(iName, row < iEvents.size() ? iEvents[row] : "-");
}

void AppendEvents(const Sight& iSight, const Sight& iOther, Rows& ioRows) {
    const auto rows = [](const auto& iLeft, const auto& iRight) {
        return std::max(iLeft.size(), iRight.size());
    };
    AppendEvents("event", iSight.events, rows(iSight.events, iOther.events), ioRows);
    AppendEvents("notification", iSight.notifications, rows(iSight.notifications, iOther.notifications),
                 ioRows);
    AppendEvents("message", iSight.messages, rows(iSight.messages, iOther.messages), ioRows);
    AppendEvents("trace", iSight.traces, rows(iSight.traces, iOther.traces), ioRows);
}

std::string Padded(std::string iText, std::size_t iWidth) {
    iText.resize(std::max(iText.size(), iWidth), ' ');
    return iText;
}

} // namespace

std::string SideBySide(const Sight& iExpected, const Sight& iActual) {
    constexpr std::size_t nameWidth = 20;
    Rows expected = RowsOf(iExpected);
    Rows actual = RowsOf(iActual);
    AppendEvents(iExpected, iActual, expected);
    AppendEvents(iActual, iExpected, actual);
    Rows left = {{"", "expected"}};
    std::vector<std::string> right = {"actual"};
    for (std::size_t row = 0; row < expected.size(); ++row)
        if (expected[row] != actual[row]) {
            left.push_back(expected[row]);
            right.push_back(actual[row].second);
        }
    std::size_t width = 0;
    for (const auto& [name, text] : left)
        width = std::max(width, text.size() + 2);
    std::string table;
    for (std::size_t row = 0; row < left.size(); ++row)
        table += Padded(left[row].first, nameWidth) + Padded(left[row].second, width) + right[row] + '\n';
    return table;
}

std::string InFull(double iNumber) {
    char text[32];
    std::snprintf(text, sizeof text, "%.15g", iNumber);
    if (std::strtod(text, nullptr) != iNumber)
        std::snprintf(text, sizeof text, "%.17g", iNumber);
    return text;
}

std::string Quoted(const std::vector<std::string>& iTexts) {
    std::string quoted = "{";
    for (const std::string& text : iTexts)
        quoted += (quoted.size() > 1 ? ", \"" : "\"") + text + "\"";
    return quoted + "}";
}

} // namespace tolerance
