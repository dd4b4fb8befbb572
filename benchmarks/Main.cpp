// Runs the benchmarks and prints, for each subject, the ratios of the medians.

#include "Comparisons.h"
#include "RatioReporter.h"

#include <benchmark/benchmark.h>

#ifdef KELVANE_HAS_QT
#include <QApplication>
#endif

#include <limits>
#include <malloc.h>
#include <string>
#include <vector>

namespace {

// Repetitions of the compared benchmarks alternate in random order, so that a busy moment of the machine
// falls on all of them alike. An option that is given on the command line wins.
std::vector<std::string> WithDefaults(int iCount, char** iArguments) {
    std::vector<std::string> arguments = {iArguments[0], "--benchmark_repetitions=9",
                                          "--benchmark_min_time=0.05",
                                          "--benchmark_enable_random_interleaving=true"};
    arguments.insert(arguments.end(), iArguments + 1, iArguments + iCount);
    return arguments;
}

// The heap keeps the pages that it once had: what the system takes to hand out fresh ones depends on what ran
// before, and would drown the rest.
void KeepHeapPages() {
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

} // namespace

int main(int iCount, char** iArguments) {
    KeepHeapPages();
#ifdef KELVANE_HAS_QT
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(iCount, iArguments);
#endif
    std::vector<std::string> arguments = WithDefaults(iCount, iArguments);
    std::vector<char*> pointers;
    pointers.reserve(arguments.size());
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return 2;
    RatioReporter reporter(AllComparisons());
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return reporter.HasFailures() ? 1 : 0;
}
