#ifndef RatioReporter_H
#define RatioReporter_H

#include "Comparisons.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

// Prints one line for each benchmark as it ends, and at the end one table for each subject: the ratios of the
// medians of this run, with their targets. Comparisons with a benchmark that did not run are left out.
class RatioReporter : public benchmark::BenchmarkReporter {
  public:
    explicit RatioReporter(std::vector<Comparison> iComparisons);

    // Whether a benchmark ended with an error: its figures are then missing.
    bool HasFailures() const { return _hasFailures; }

    // benchmark::BenchmarkReporter
    bool ReportContext(const Context& iContext) override;
    void ReportRuns(const std::vector<Run>& iRuns) override;
    void Finalize() override;

  private:
    // The median of the repetitions.
    struct Figure {
        double nanoseconds = 0.0;
        double variation = 0.0; // standard deviation divided by the mean; 0 for a single repetition
        std::map<std::string, double> counters;
    };

    void Keep(const Run& iRun);
    void PrintFigure(const std::string& iName) const;
    // False when a benchmark of the comparison has not run.
    bool Evaluate(const Comparison& iComparison, double& oValue) const;
    void PrintComparison(const Comparison& iComparison, double iValue) const;

    std::vector<Comparison> _comparisons;
    std::map<std::string, Figure> _figures;
    bool _hasFailures = false;
};

#endif
