#include "Expectation.h"

#include "host/DialogPath.h"
#include "session/WidgetValues.h"

#include <algorithm>

namespace session {

namespace {

std::string Text(const Json& json, const char* key) {
    return json.at(key).get<std::string>();
}

/// What the widget at the step's path has, in the form in which the step states its expectation.
WidgetValue Actual(const CATDialog& widget, const Json& step) {
    const std::string aspect = Text(step, "expect");
    if (aspect == "cell")
        return CellOf(widget, step.at("row").get<int>(), step.at("column").get<int>());
    if (aspect == "line" && step.contains("line"))
        return LineOf(widget, step.at("line").get<int>());
    const Json& wanted = step.at("is");
    if ((aspect == "lines" || aspect == "rows") && wanted.is_number())
        return CountOf(widget, aspect);
    return ValueOf(widget, aspect == "line" && wanted.is_string() ? "text" : aspect);
}

std::string Describe(const Json& step) {
    std::string text = Text(step, "expect");
    if (step.contains("line"))
        text.append(" ").append(ToLine(step.at("line")));
    if (step.contains("row"))
        text.append(" ").append(ToLine(step.at("row"))).append(", ").append(ToLine(step.at("column")));
    return text + " of " + Text(step, "at");
}

std::optional<Failure> Compare(const Step& step, const WidgetValue& actual) {
    const Json& wanted = step.json.at("is");
    if (actual.value && *actual.value == wanted)
        return std::nullopt;
    return Failure{Failure::Expectation, step.line, Describe(step.json), ToLine(wanted),
                   actual.value ? ToLine(*actual.value) : actual.reason};
}

/// A path that names several widgets is neither there nor not there.
WidgetValue Existence(const host::Found& found, const std::string& path) {
    if (found.widget != nullptr)
        return {true, {}};
    if (found.reason == "there is no widget '" + path + "'")
        return {false, {}};
    return {std::nullopt, found.reason};
}

std::optional<Failure> CheckWidget(const Step& step) {
    const std::string path = Text(step.json, "at");
    const host::Found found = host::DialogPath::Find(path);
    if (step.Word() == "exists")
        return Compare(step, Existence(found, path));
    if (found.widget == nullptr)
        return Compare(step, {std::nullopt, found.reason});
    return Compare(step, Actual(*found.widget, step.json));
}

Json Describe(const HeardNotification& heard) {
    return {{"class", heard.className}, {"with", heard.values}};
}

Json Describe(const host::Message& message) {
    return {{"title", message.title}, {"text", message.text}};
}

Json Describe(const host::TraceLine& trace) {
    return {{"channel", trace.channel}, {"level", trace.level}, {"text", trace.text}};
}

bool Has(const Json& values, const Json& wanted) {
    return std::all_of(wanted.items().begin(), wanted.items().end(), [&values](const auto& each) {
        return values.contains(each.key()) && values.at(each.key()) == each.value();
    });
}

/// What the step says of the thing it waits for.
Json Wanted(const Json& step) {
    Json wanted = step;
    wanted.erase("expect");
    wanted.erase("times");
    return wanted;
}

bool IsWanted(const HeardNotification& heard, const Json& wanted) {
    return heard.className == Text(wanted, "class") &&
           (!wanted.contains("with") || Has(heard.values, wanted.at("with")));
}

template<class Event>
bool IsWanted(const Event& event, const Json& wanted) {
    return Has(Describe(event), wanted);
}

/// One of the events is the wanted one, or as many of them as the step says.
template<class Event>
std::optional<Failure> CheckEvents(const Step& step, const std::vector<Event>& events) {
    const Json wanted = Wanted(step.json);
    const auto found = std::count_if(events.begin(), events.end(),
                                     [&wanted](const Event& each) { return IsWanted(each, wanted); });
    const bool holds = step.json.contains("times") ? found == step.json.at("times").get<int>() : found > 0;
    if (holds)
        return std::nullopt;
    Json expected = step.json;
    expected.erase("expect");
    Json actual = Json::array();
    for (const Event& each : events)
        actual.push_back(Describe(each));
    return Failure{Failure::Expectation, step.line, step.Word() + " since the last step", ToLine(expected),
                   ToLine(actual)};
}

} // namespace

std::optional<Failure> CheckExpectation(const Step& step, const Happenings& happenings) {
    const std::string word = step.Word();
    if (word == "notified")
        return CheckEvents(step, happenings.notifications);
    if (word == "message")
        return CheckEvents(step, happenings.messages);
    if (word == "trace")
        return CheckEvents(step, happenings.traces);
    return CheckWidget(step);
}

} // namespace session
