#include "Commands.h"

#include "ExitStatus.h"
#include "engineering/ThreadTables.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <iostream>

namespace app {

namespace {

using engineering::FoundThread;
using engineering::Thread;
using engineering::ThreadStandard;
using engineering::ThreadTables;

constexpr int jsonIndent = 2;
constexpr std::size_t longest = 100;
constexpr std::size_t proposals = 3;

std::string Joined(const std::vector<std::string>& texts, const char* between) {
    std::string joined;
    for (const std::string& text : texts)
        joined += (joined.empty() ? "" : between) + text;
    return joined;
}

/// The shortest text that gives the same number: as the table has it, without zeros at the end.
std::string TextOf(double number) {
    std::array<char, 32> text{};
    const std::to_chars_result result = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), result.ptr};
}

std::string Millimetres(double length) {
    return TextOf(length) + " mm";
}

void PrintLine(const std::string& name, const std::string& value) {
    constexpr std::size_t width = 18;
    std::cout << name << std::string(width - name.size(), ' ') << value << '\n';
}

void PrintThread(const FoundThread& found) {
    const Thread& thread = *found.thread;
    PrintLine("thread", thread.designation);
    PrintLine("table", found.standard->name);
    PrintLine("standard", found.standard->standard);
    PrintLine("major diameter", Millimetres(thread.majorDiameter));
    PrintLine("pitch", Millimetres(thread.pitch));
    if (thread.threadsPerInch)
        PrintLine("threads per inch", TextOf(*thread.threadsPerInch));
    PrintLine("pitch diameter", Millimetres(thread.pitchDiameter));
    PrintLine("minor diameter", Millimetres(thread.minorDiameter));
    PrintLine("tap drill", thread.tapDrill ? Millimetres(*thread.tapDrill) : "none tabulated");
}

nlohmann::ordered_json NumberOrNull(const std::optional<double>& number) {
    return number ? nlohmann::ordered_json(*number) : nlohmann::ordered_json();
}

void PrintJson(const FoundThread& found) {
    const Thread& thread = *found.thread;
    const nlohmann::ordered_json answer{{"designation", thread.designation},
                                        {"table", found.standard->name},
                                        {"standard", found.standard->standard},
                                        {"major_diameter_mm", thread.majorDiameter},
                                        {"pitch_mm", thread.pitch},
                                        {"tpi", NumberOrNull(thread.threadsPerInch)},
                                        {"pitch_diameter_mm", thread.pitchDiameter},
                                        {"minor_diameter_mm", thread.minorDiameter},
                                        {"tap_drill_mm", NumberOrNull(thread.tapDrill)}};
    std::cout << answer.dump(jsonIndent) << '\n';
}

/// Why no thread can be asked for with it; empty for a text that may name one.
std::string FaultOf(const std::string& designation) {
    if (designation.find_first_not_of(" \t") == std::string::npos)
        return "the designation of the thread is empty";
    if (designation.size() > longest)
        return "the designation of the thread has more than " + std::to_string(longest) + " characters";
    const auto isControl = [](char c) {
        return std::iscntrl(static_cast<unsigned char>(c)) != 0 && c != '\t';
    };
    if (std::ranges::any_of(designation, isControl))
        return "the designation of the thread has a control character";
    return {};
}

std::string TellUnknown(const ThreadTables& tables, const std::string& designation) {
    const std::string told = "there is no thread '" + designation + "'";
    if (tables.Standards().empty())
        return told + ": the catalogue has no threads";
    std::vector<std::string> names;
    for (const ThreadStandard& standard : tables.Standards())
        names.push_back(standard.name);
    std::vector<std::string> nearest;
    for (const FoundThread& found : tables.Nearest(designation, proposals))
        nearest.push_back(found.thread->designation);
    return told + " in " + Joined(names, ", ") + "; the nearest are " + Joined(nearest, ", ");
}

} // namespace

int ShowThread(const Options& options, const WorkData& data) {
    const std::string designation = Joined(options.designation, " ");
    const std::string fault = FaultOf(designation);
    if (!fault.empty())
        return Complain(ExitUnusable, fault.c_str());
    const ThreadTables& tables = data.catalogue.Threads();
    const FoundThread found = tables.Find(designation);
    if (found.thread == nullptr)
        return Complain(ExitFailed, TellUnknown(tables, designation).c_str());
    if (options.json)
        PrintJson(found);
    else
        PrintThread(found);
    return ExitDone;
}

} // namespace app
