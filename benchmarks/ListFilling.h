#ifndef ListFilling_H
#define ListFilling_H

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <string>
#include <vector>

constexpr int columnCount = 5;
constexpr int distinctRows = 1000; // longer lists begin again

// Texts of 15 bytes for the rows of a list, made before anything is timed. Text is what the filled class
// takes.
//
//     const auto texts = MakeListTexts<QString>([](const char* iText) { return QString::fromUtf8(iText); });
template<class Text>
using ListTexts = std::vector<std::array<Text, columnCount>>;

template<class Text, class Make>
ListTexts<Text> MakeListTexts(const Make& iMake) {
    ListTexts<Text> texts(distinctRows);
    for (int row = 0; row < distinctRows; ++row)
        for (int column = 0; column < columnCount; ++column) {
            char text[16] = {};
            std::snprintf(text, sizeof text, "Value %d of %04d", column, row);
            texts[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = iMake(text);
        }
    return texts;
}

// Calls iAppend with the texts of iRows rows, one row after the other.
template<class Text, class Append>
void ForEachRow(const ListTexts<Text>& iTexts, int iRows, const Append& iAppend) {
    std::size_t next = 0;
    for (int row = 0; row < iRows; ++row) {
        iAppend(iTexts[next]);
        next = next + 1 == iTexts.size() ? 0 : next + 1;
    }
}

// Bytes of the heap that are in use.
inline std::size_t HeapInUse() {
    const struct mallinfo2 information = mallinfo2();
    return information.uordblks + information.hblkhd;
}

// Processor time of this thread, in seconds: other programs on the machine do not count.
inline double ThreadSeconds() {
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// Measures one kind of list. Kind is a class with
//     explicit Kind();              an empty list with its columns
//     void Fill(int iRows);         the timed part
//     int Rows() const;
// The list is made and destroyed outside the timed part. Counts the growth of the heap for one row.
template<class Kind>
void MeasureListFill(benchmark::State& ioState) {
    const int rows = static_cast<int>(ioState.range(0));
    double heapBytes = 0.0;
    for (auto _ : ioState) {
        Kind list;
        const std::size_t heapBefore = HeapInUse();
        const double start = ThreadSeconds();
        list.Fill(rows);
        ioState.SetIterationTime(ThreadSeconds() - start);
        heapBytes = static_cast<double>(HeapInUse() - heapBefore);
        if (list.Rows() != rows) {
            ioState.SkipWithError("the list has not all its rows");
            break;
        }
    }
    ioState.counters["heap_per_row"] = heapBytes / rows;
}

#endif
