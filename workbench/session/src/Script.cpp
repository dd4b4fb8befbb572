#include "session/Script.h"

#include <fstream>
#include <set>

namespace session {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool SaysNothing(const std::string& line) {
    return line.empty() || line.front() == '#' || line.find_first_not_of(" \t") == std::string::npos;
}

std::string Place(const std::string& file, int line) {
    return file + ":" + std::to_string(line) + ": ";
}

struct ParsedLine {
    Json json;
    std::string fault; ///< empty when there is a value
};

/// What the parser says, without its own name and number before it.
std::string Reason(const std::string& message) {
    const std::size_t colon = message.find(": ");
    return colon == std::string::npos ? message : message.substr(colon + 2);
}

ParsedLine Parse(const std::string& line) {
    std::set<std::string> keys;
    std::string twice;
    const auto watchKeys = [&](int depth, Json::parse_event_t event, Json& value) {
        if (event == Json::parse_event_t::key && depth == 1 && !keys.insert(value.get<std::string>()).second)
            twice = value.get<std::string>();
        return true;
    };
    try {
        ParsedLine parsed{Json::parse(line, watchKeys), {}};
        if (!twice.empty())
            parsed.fault = "the key '" + twice + "' is there twice";
        return parsed;
    } catch (const Json::exception& error) {
        return {Json(), "not JSON: " + Reason(error.what())};
    }
}

} // namespace

Reading ReadScript(const std::filesystem::path& file, const Vocabulary& vocabulary) {
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored))
        return {std::nullopt, file.string() + ": is a folder, not a session"};
    std::ifstream input(file, std::ios::binary);
    if (!input)
        return {std::nullopt, file.string() + ": cannot be read"};
    return ReadScript(input, file.string(), vocabulary);
}

Reading ReadScript(std::istream& input, const std::string& name, const Vocabulary& vocabulary) {
    Script script{name, {}};
    int number = 0;
    for (std::string line; std::getline(input, line);) {
        ++number;
        if (number == 1 && line.starts_with(byteOrderMark))
            line.erase(0, byteOrderMark.size());
        if (line.ends_with('\r'))
            line.pop_back();
        if (SaysNothing(line))
            continue;
        ParsedLine parsed = Parse(line);
        const std::string fault = parsed.fault.empty() ? vocabulary.Fault(parsed.json) : parsed.fault;
        if (!fault.empty())
            return {std::nullopt, Place(name, number) + fault};
        script.steps.push_back({number, std::move(parsed.json)});
    }
    if (input.bad())
        return {std::nullopt, name + ": cannot be read"};
    return {std::move(script), {}};
}

} // namespace session
