#ifndef SetTableMeasure_H
#define SetTableMeasure_H

#include "ListFilling.h"
#include "PlainSetTable.h"
#include "ScatteredRows.h"

#include <benchmark/benchmark.h>

#include <string>

// Measure one kind of set table. Kind is a class with
//     explicit Kind();                  an empty table
//     void Fill(int iSets);             columns, then the sets 0, 1, 2, ...
//     void SetCurrent(int iSet);        shows that set below and selects its line
//     int Lines() const;
//     SetLine Line(int iLine) const; SetLine Current() const; std::string SelectedName() const;

// The table is made and destroyed outside the timed part.
template<class Kind>
void MeasureSetFill(benchmark::State& ioState) {
    const int sets = static_cast<int>(ioState.range(0));
    for (auto _ : ioState) {
        Kind table;
        const double start = ThreadSeconds();
        table.Fill(sets);
        ioState.SetIterationTime(ThreadSeconds() - start);
        if (table.Lines() != sets || table.Line(sets - 1) != FloorLine(sets - 1)) {
            ioState.SkipWithError("the lines are not those of the floor");
            break;
        }
    }
}

// The sets come in a scattered order.
template<class Kind>
void MeasureSetCurrent(benchmark::State& ioState) {
    const int sets = static_cast<int>(ioState.range(0));
    Kind table;
    table.Fill(sets);
    ScatteredRows scattered(sets);
    int set = 0;
    for (auto _ : ioState) {
        set = scattered.Next();
        table.SetCurrent(set);
    }
    if (table.Current() != FloorLine(set) || table.SelectedName() != NameOfSet(set))
        ioState.SkipWithError("the set that is shown last is not that of the floor");
}

#endif
