#ifndef Sizes_H
#define Sizes_H

#include <benchmark/benchmark.h>

#include <array>

// Numbers of lines that combos and lists are measured with. The Qt item classes stop at largestItemList,
// where they already take long.
constexpr std::array<int, 3> comboSizes = {10, 100, 1000};
constexpr std::array<int, 5> listSizes = {100, 1000, 10000, 100000, 1000000};
constexpr int largestItemList = 100000;

// For BENCHMARK(...)->Apply.
inline void ComboSizes(benchmark::internal::Benchmark* ioBenchmark) {
    for (const int lines : comboSizes)
        ioBenchmark->Arg(lines);
}

// Lists are timed by hand, the filling alone.
inline void ListSizes(benchmark::internal::Benchmark* ioBenchmark) {
    ioBenchmark->UseManualTime();
    for (const int rows : listSizes)
        ioBenchmark->Arg(rows);
}

inline void ItemListSizes(benchmark::internal::Benchmark* ioBenchmark) {
    ioBenchmark->UseManualTime();
    for (const int rows : listSizes)
        if (rows <= largestItemList)
            ioBenchmark->Arg(rows);
}

#endif
