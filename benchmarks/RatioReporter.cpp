#include "RatioReporter.h"

#include <cstdio>
#include <iostream>
#include <utility>

namespace {

typedef benchmark::BenchmarkReporter::Run Run;

std::string NameOf(const Run& iRun) {
    const std::string& name = iRun.run_name.function_name;
    return iRun.run_name.args.empty() ? name : name + "/" + iRun.run_name.args;
}

// Processor time for one iteration; a benchmark that is timed by hand gives it itself.
double NanosecondsOf(const Run& iRun) {
    const bool isManual = iRun.run_name.time_type == "manual_time";
    const double time = isManual ? iRun.GetAdjustedRealTime() : iRun.GetAdjustedCPUTime();
    return time / benchmark::GetTimeUnitMultiplier(iRun.time_unit) * 1e9;
}

std::string Readable(double iNanoseconds) {
    const char* unit = "ns";
    double number = iNanoseconds;
    for (const char* larger : {"us", "ms", "s"}) {
        if (number < 1000.0)
            break;
        number /= 1000.0;
        unit = larger;
    }
    char text[32] = {};
    std::snprintf(text, sizeof text, "%.3g %s", number, unit);
    return text;
}

// Size at the end of a name such as "ListFill/Ours/1000".
double RowsOf(const std::string& iName) {
    return std::stod(iName.substr(iName.rfind('/') + 1));
}

} // namespace

RatioReporter::RatioReporter(std::vector<Comparison> iComparisons) : _comparisons(std::move(iComparisons)) {}

bool RatioReporter::ReportContext(const Context& iContext) {
    PrintBasicContext(&std::cerr, iContext);
    std::printf("%-36s %12s %10s\n", "benchmark", "median", "variation");
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& iRuns) {
    bool isComplete = false; // the single repetitions come first, then what they amount to
    for (const Run& run : iRuns) {
        Keep(run);
        isComplete = isComplete || run.run_type == Run::RT_Aggregate || run.repetitions <= 1;
    }
    if (isComplete)
        PrintFigure(NameOf(iRuns.front()));
}

void RatioReporter::Keep(const Run& iRun) {
    if (iRun.error_occurred) {
        _hasFailures = true;
        std::printf("%-36s %s\n", NameOf(iRun).c_str(), iRun.error_message.c_str());
        return;
    }
    const bool isAggregate = iRun.run_type == Run::RT_Aggregate;
    Figure& figure = _figures[NameOf(iRun)];
    if (isAggregate && iRun.aggregate_name == "cv")
        figure.variation =
            iRun.run_name.time_type == "manual_time" ? iRun.real_accumulated_time : iRun.cpu_accumulated_time;
    if (isAggregate && iRun.aggregate_name != "median")
        return;
    figure.nanoseconds = NanosecondsOf(iRun);
    for (const auto& [name, counter] : iRun.counters)
        figure.counters[name] = counter.value;
}

void RatioReporter::PrintFigure(const std::string& iName) const {
    const auto found = _figures.find(iName);
    if (found == _figures.end())
        return;
    const Figure& figure = found->second;
    std::printf("%-36s %12s %9.0f%%\n", iName.c_str(), Readable(figure.nanoseconds).c_str(),
                figure.variation * 100.0);
    std::fflush(stdout);
}

void RatioReporter::Finalize() {
    std::string subject;
    for (const Comparison& comparison : _comparisons) {
        double value = 0.0;
        if (!Evaluate(comparison, value))
            continue;
        if (comparison.subject != subject)
            std::printf("\n%s\n", comparison.subject.c_str());
        subject = comparison.subject;
        PrintComparison(comparison, value);
    }
}

bool RatioReporter::Evaluate(const Comparison& iComparison, double& oValue) const {
    const auto ours = _figures.find(iComparison.ours);
    if (ours == _figures.end())
        return false;
    if (iComparison.measure == Measure::Counter) {
        const auto counter = ours->second.counters.find(iComparison.other);
        if (counter == ours->second.counters.end())
            return false;
        oValue = counter->second;
        return true;
    }
    if (iComparison.measure == Measure::Microseconds) {
        oValue = ours->second.nanoseconds / 1000.0;
        return true;
    }
    const auto other = _figures.find(iComparison.other);
    if (other == _figures.end())
        return false;
    const double ratio = ours->second.nanoseconds / other->second.nanoseconds;
    switch (iComparison.measure) {
    case Measure::PeerOverOurs:
        oValue = 1.0 / ratio;
        break;
    case Measure::CostPerRow:
        oValue = ratio * RowsOf(iComparison.other) / RowsOf(iComparison.ours);
        break;
    default:
        oValue = ratio;
    }
    return true;
}

void RatioReporter::PrintComparison(const Comparison& iComparison, double iValue) const {
    const bool isPeer = iComparison.measure == Measure::PeerOverOurs;
    std::printf("  %-60s %8.2f", iComparison.line.c_str(), iValue);
    if (iComparison.limit > 0.0) {
        const bool isMet = isPeer ? iValue >= iComparison.limit : iValue <= iComparison.limit;
        std::printf("   %s %6.1f   %s", isPeer ? "at least" : "at most ", iComparison.limit,
                    isMet ? "met" : "MISSED");
    }
    std::printf("\n");
}
