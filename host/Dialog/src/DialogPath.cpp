#include "host/DialogPath.h"

#include "CATDlgWindow.h"
#include "WidgetTree.h"
#include "host/Inspector.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace host {

namespace {

// One name of a path; number 0 stands for any of the siblings of that name.
struct Step {
    std::string name;
    int number = 0;
};

std::string Escaped(const std::string& iName) {
    std::string text;
    for (const char character : iName) {
        if (character == '/' || character == '[' || character == '\\')
            text.push_back('\\');
        text.push_back(character);
    }
    return text;
}

struct Place {
    int number = 1; // among the siblings of the same name, from 1; 0 for a widget on its way out
    int count = 1;  // of those siblings
};

Place PlaceAmongNamesakes(const CATDialog& iWidget) {
    const CATDialog* const parent = Inspector::Parent(iWidget);
    Place place{0, 0};
    if (parent == nullptr)
        return Place();
    for (const CATDialog* sibling : Inspector::Children(*parent)) {
        if (sibling->GetName() != iWidget.GetName())
            continue;
        ++place.count;
        if (sibling == &iWidget)
            place.number = place.count;
    }
    return place;
}

std::string StepOf(const CATDialog& iWidget) {
    const Place place = PlaceAmongNamesakes(iWidget);
    const std::string name = Escaped(iWidget.GetName().ConvertToChar());
    return place.count > 1 && place.number > 0 ? name + "[" + std::to_string(place.number) + "]" : name;
}

// The number in "[n]" from iAt on; 0 when there is no such number.
int ReadNumber(const std::string& iPath, std::size_t& ioAt) {
    int number = 0;
    const char* const first = iPath.data() + ioAt + 1;
    const std::from_chars_result result = std::from_chars(first, iPath.data() + iPath.size(), number);
    if (result.ec != std::errc() || *result.ptr != ']' || number < 1)
        return 0;
    ioAt = static_cast<std::size_t>(result.ptr - iPath.data()) + 1;
    return number;
}

std::optional<std::vector<Step>> Parse(const std::string& iPath) {
    std::vector<Step> steps(1);
    for (std::size_t at = 0; at < iPath.size();) {
        const char character = iPath[at];
        if (character == '[') {
            steps.back().number = ReadNumber(iPath, at);
            if (steps.back().number == 0 || (at < iPath.size() && iPath[at] != '/'))
                return std::nullopt;
        } else if (character == '/') {
            steps.emplace_back();
            ++at;
        } else {
            at += character == '\\' && at + 1 < iPath.size() ? 1U : 0U;
            steps.back().name.push_back(iPath[at++]);
        }
    }
    for (const Step& step : steps)
        if (step.name.empty())
            return std::nullopt;
    return steps;
}

bool Matches(const CATDialog& iWidget, const std::vector<Step>& iSteps) {
    const CATDialog* widget = &iWidget;
    for (auto step = iSteps.rbegin(); step != iSteps.rend(); ++step) {
        if (widget == nullptr || widget->GetName() != step->name.c_str())
            return false;
        if (step->number != 0 && PlaceAmongNamesakes(*widget).number != step->number)
            return false;
        widget = Inspector::Parent(*widget);
    }
    return true;
}

std::string AmbiguityReason(const std::string& iPath, const std::vector<CATDialog*>& iWidgets) {
    std::string reason = "the path '" + iPath + "' names " + std::to_string(iWidgets.size()) + " widgets: ";
    const std::size_t shown = std::min<std::size_t>(iWidgets.size(), 4);
    for (std::size_t index = 0; index < shown; ++index)
        reason += (index == 0 ? "" : ", ") + DialogPath::Of(*iWidgets[index]);
    return shown < iWidgets.size() ? reason + ", ..." : reason;
}

} // namespace

std::string DialogPath::Of(const CATDialog& iWidget) {
    std::string path = StepOf(iWidget);
    const CATDialog* widget = &iWidget;
    while (!Inspector::IsWindow(*widget)) {
        widget = Inspector::Parent(*widget);
        if (widget == nullptr)
            return path;
        path.insert(0, StepOf(*widget) + "/");
    }
    return path;
}

Found DialogPath::Find(const std::string& iPath) {
    const std::optional<std::vector<Step>> steps = Parse(iPath);
    if (!steps.has_value())
        return Found{nullptr, "'" + iPath + "' is not a path"};
    std::vector<CATDialog*> widgets = Named(steps->back().name);
    widgets.erase(std::remove_if(widgets.begin(), widgets.end(),
                                 [&steps](const CATDialog* iWidget) { return !Matches(*iWidget, *steps); }),
                  widgets.end());
    if (widgets.empty())
        return Found{nullptr, "there is no widget '" + iPath + "'"};
    if (widgets.size() == 1)
        return Found{widgets.front(), std::string()};
    const auto isWhole = [&iPath](const CATDialog* iWidget) { return Of(*iWidget) == iPath; };
    if (std::count_if(widgets.begin(), widgets.end(), isWhole) == 1)
        return Found{*std::find_if(widgets.begin(), widgets.end(), isWhole), std::string()};
    return Found{nullptr, AmbiguityReason(iPath, widgets)};
}

std::vector<CATDialog*> DialogPath::Named(const std::string& iName) {
    return WidgetTree::Named(iName);
}

} // namespace host
