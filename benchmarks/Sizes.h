#ifndef Sizes_H
#define Sizes_H

#include <benchmark/benchmark.h>

#include <array>

// Numbers of lines that combos and lists are measured with. The Qt item classes stop at largestItemList,
// where they already take long.
constexpr std::array<int, 3> comboSizes = {10, 100, 1000};
constexpr std::array<int, 5> listSizes = {100, 1000, 10000, 100000, 1000000};
constexpr int largestItemList = 100000;

// Numbers of parameters in a parameter list, and of sets in a set table.
constexpr std::array<int, 5> parameterListSizes = {10, 100, 1000, 10000, 100000};
constexpr std::array<int, 5> parameterChangeSizes = {10, 1000, 10000, 100000, 1000000};
constexpr std::array<int, 3> setTableSizes = {100, 1000, 10000};
constexpr std::array<int, 2> setCurrentSizes = {100, 10000};

// Numbers of rows in a list that stands on the screen.
constexpr std::array<int, 3> shownListSizes = {1000, 100000, 1000000};
constexpr int changesOfList = 20000;

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

inline void ParameterListSizes(benchmark::internal::Benchmark* ioBenchmark) {
    for (const int rows : parameterListSizes)
        ioBenchmark->Arg(rows);
}

// A long list takes a while to make, so the changes are counted out instead of found out. A million rows take
// seconds: they are made less often.
inline void ParameterChangeSizes(benchmark::internal::Benchmark* ioBenchmark) {
    ioBenchmark->Iterations(changesOfList);
    for (const int rows : parameterChangeSizes)
        if (rows <= largestItemList)
            ioBenchmark->Arg(rows);
}

inline void ShownListSizes(benchmark::internal::Benchmark* ioBenchmark) {
    ioBenchmark->Iterations(changesOfList);
    for (const int rows : shownListSizes)
        if (rows <= largestItemList)
            ioBenchmark->Arg(rows);
}

inline void MillionRows(benchmark::internal::Benchmark* ioBenchmark) {
    ioBenchmark->Iterations(changesOfList)->Repetitions(3)->Arg(1000000);
}

// A tree view looks for the changed row.
inline void ShownTreeSizes(benchmark::internal::Benchmark* ioBenchmark) {
    ioBenchmark->Iterations(20);
    for (const int rows : shownListSizes)
        if (rows <= largestItemList)
            ioBenchmark->Arg(rows);
}

// Set tables are timed by hand, the filling alone.
inline void SetTableSizes(benchmark::internal::Benchmark* ioBenchmark) {
    ioBenchmark->UseManualTime();
    for (const int sets : setTableSizes)
        ioBenchmark->Arg(sets);
}

inline void SetCurrentSizes(benchmark::internal::Benchmark* ioBenchmark) {
    for (const int sets : setCurrentSizes)
        ioBenchmark->Arg(sets);
}

#endif
