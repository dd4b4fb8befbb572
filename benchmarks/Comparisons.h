#ifndef Comparisons_H
#define Comparisons_H

#include <string>
#include <vector>

// What the measured figures are held against.
enum class Measure {
    OursOverFloor, // time of the host divided by that of the floor
    PeerOverOurs,  // time of the Qt peer divided by that of the host
    CostPerRow,    // time for one row of the first benchmark divided by that of the second
    Growth,        // time of the first benchmark divided by that of the second, which has fewer rows
    Microseconds,  // time of the first benchmark
    Counter        // a counter of the first benchmark, in bytes
};

// One line of the closing tables. Names are those of benchmarks without their options:
// "ListFill/Ours/1000".
struct Comparison {
    std::string subject;
    std::string line;
    Measure measure = Measure::OursOverFloor;
    std::string ours;
    std::string other;  // floor, peer or second size; the name of the counter; empty for a time
    double limit = 0.0; // the target: at least this for PeerOverOurs, at most this otherwise; 0 for none
};

// All comparisons, those of a subject next to one another. The target of each stands here alone.
std::vector<Comparison> AllComparisons();

#endif
