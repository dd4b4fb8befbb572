#include "Commands.h"

#include "ExitStatus.h"
#include "Words.h"
#include "engineering/ThreadTables.h"

#include <nlohmann/json.hpp>

#include <iostream>

namespace app {

namespace {

using engineering::FoundThread;
using engineering::Thread;
using engineering::ThreadStandard;
using engineering::ThreadTables;

constexpr int jsonIndent = 2;
constexpr std::size_t proposals = 3;

void Print(const std::string& name, const std::string& value) {
    constexpr std::size_t width = 18;
    PrintLine(name, value, width);
}

void PrintThread(const FoundThread& found) {
    const Thread& thread = *found.thread;
    Print("thread", thread.designation);
    Print("table", found.standard->name);
    Print("standard", found.standard->standard);
    Print("major diameter", Millimetres(thread.majorDiameter));
    Print("pitch", Millimetres(thread.pitch));
    if (thread.threadsPerInch)
        Print("threads per inch", TextOf(*thread.threadsPerInch));
    Print("pitch diameter", Millimetres(thread.pitchDiameter));
    Print("minor diameter", Millimetres(thread.minorDiameter));
    Print("tap drill", thread.tapDrill ? Millimetres(*thread.tapDrill) : "none tabulated");
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
    const std::string fault = TextFault(designation, "the designation of the thread");
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
