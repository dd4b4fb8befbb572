#ifndef ParameterListMeasure_H
#define ParameterListMeasure_H

#include "PlainParameterList.h"
#include "ScatteredRows.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>

// Measure one kind of parameter list. Kind is a class with
//     explicit Kind(int iRows);                         filled once with the parameters 0, 1, 2, ...
//     void Refill();                                    with the same parameters
//     void Change(int iRow, double iMillimetres);       a new value of that parameter, which the list hears
//     ParameterRow Row(int iRow) const;                 the texts that a person sees
//     int Heard() const; std::string LastHeard() const; notifications of a change, the name in the last one

// Rows of every sort at the end.
template<class Kind>
bool EndsAsFloor(const Kind& iKind, int iRows) {
    for (int row = std::max(0, iRows - 10); row < iRows; ++row) {
        const ParameterFacts facts = FactsOf(row);
        if (iKind.Row(row) != FloorRow(facts, facts.millimetres))
            return false;
    }
    return true;
}

template<class Kind>
void MeasureRefill(benchmark::State& ioState) {
    const int rows = static_cast<int>(ioState.range(0));
    Kind list(rows);
    for (auto _ : ioState)
        list.Refill();
    if (!EndsAsFloor(list, rows))
        ioState.SkipWithError("the rows are not those of the floor");
}

template<class Kind>
void MeasureChange(benchmark::State& ioState) {
    constexpr int values = 7;
    const int rows = static_cast<int>(ioState.range(0));
    Kind list(rows);
    ScatteredRows scattered(rows);
    int row = 0;
    double value = 0.0;
    int changes = 0;
    for (auto _ : ioState) {
        row = scattered.Next();
        value = 20.5 + changes % values;
        list.Change(row, value);
        ++changes;
    }
    const ParameterFacts facts = FactsOf(row);
    if (list.Heard() != changes || list.LastHeard() != facts.name)
        ioState.SkipWithError("not every change was heard");
    if (list.Row(row) != FloorRow(facts, value))
        ioState.SkipWithError("the changed row is not that of the floor");
}

#endif
