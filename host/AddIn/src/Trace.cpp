#include "host/Trace.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <map>
#include <optional>
#include <sstream>

namespace host {

namespace {

struct Settings {
    std::map<std::string, int> levels; // the empty name stands for all channels without a level of their own
    std::vector<TraceSink*> sinks;
};

Settings& Current() {
    static auto* settings = new Settings;
    return *settings;
}

std::optional<int> Number(const std::string& iText) {
    int number = 0;
    const char* const last = iText.data() + iText.size();
    const std::from_chars_result result = std::from_chars(iText.data(), last, number);
    if (result.ec != std::errc() || result.ptr != last || number < 0)
        return std::nullopt;
    return number;
}

} // namespace

void Trace::AddSink(TraceSink& ioSink) {
    Current().sinks.push_back(&ioSink);
}

void Trace::RemoveSink(TraceSink& ioSink) {
    std::vector<TraceSink*>& sinks = Current().sinks;
    sinks.erase(std::remove(sinks.begin(), sinks.end(), &ioSink), sinks.end());
}

int Trace::SinkCount() {
    return static_cast<int>(Current().sinks.size());
}

void Trace::SetLevel(const std::string& iChannel, int iLevel) {
    Current().levels[iChannel] = iLevel;
}

bool Trace::Passes(const std::string& iChannel, int iLevel) {
    const std::map<std::string, int>& levels = Current().levels;
    auto found = levels.find(iChannel);
    if (found == levels.end())
        found = levels.find(std::string());
    return found == levels.end() || iLevel <= found->second;
}

bool Trace::SetLevels(const std::string& iText) {
    std::map<std::string, int> levels;
    std::istringstream parts(iText);
    for (std::string part; std::getline(parts, part, ',');) {
        const std::size_t colon = part.rfind(':');
        const std::string channel = colon == std::string::npos ? std::string() : part.substr(0, colon);
        const std::optional<int> level = Number(colon == std::string::npos ? part : part.substr(colon + 1));
        if (!level.has_value() || (colon != std::string::npos && channel.empty()))
            return false;
        levels[channel] = *level;
    }
    for (const auto& [channel, level] : levels)
        SetLevel(channel, level);
    return true;
}

bool Trace::SetLevelsFromEnvironment() {
    const char* text = std::getenv("KELVANE_TRACE");
    return text == nullptr || SetLevels(text);
}

void Trace::Reset() {
    Current() = Settings();
}

void Trace::Write(const TraceLine& iLine) {
    if (Current().sinks.empty() || !Passes(iLine.channel, iLine.level))
        return;
    const std::vector<TraceSink*> sinks = Current().sinks;
    for (TraceSink* sink : sinks)
        sink->Write(iLine);
}

} // namespace host
