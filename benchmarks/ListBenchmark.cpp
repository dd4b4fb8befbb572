// Filling a list of five columns: the host's list and, as the floor, a vector of rows of strings.

#include "ListFilling.h"
#include "Sizes.h"

#include "CATDlgDocument.h"
#include "CATDlgMultiList.h"
#include "host/Application.h"
#include "host/Inspector.h"

#include <benchmark/benchmark.h>

namespace {

const ListTexts<CATUnicodeString>& HostTexts() {
    static const auto texts =
        MakeListTexts<CATUnicodeString>([](const char* iText) { return CATUnicodeString(iText); });
    return texts;
}

const ListTexts<std::string>& PlainTexts() {
    static const auto texts =
        MakeListTexts<std::string>([](const char* iText) { return std::string(iText); });
    return texts;
}

class HostList {
  public:
    HostList() : _list(new CATDlgMultiList(&_application.MainWindow(), "ParameterSetList")) {
        const CATUnicodeString titles[columnCount] = {"Name", "Diameter", "Depth", "Angle", "Thread"};
        _list->SetColumnTitles(columnCount, titles);
    }

    void Fill(int iRows) {
        CATDlgMultiList& list = *_list;
        ForEachRow(HostTexts(), iRows, [&list](const std::array<CATUnicodeString, columnCount>& iRow) {
            for (int column = 0; column < columnCount; ++column)
                list.SetColumnItem(column, iRow[static_cast<std::size_t>(column)]);
        });
    }

    int Rows() const { return _list->GetLineCount(); }
    std::size_t Bytes() const { return host::Inspector::BytesOfLines(*_list); }

  private:
    host::Application _application;
    CATDlgMultiList* _list; // belongs to the main window
};

class PlainList {
  public:
    void Fill(int iRows) {
        ForEachRow(PlainTexts(), iRows,
                   [this](const std::array<std::string, columnCount>& iRow) { _rows.push_back(iRow); });
        benchmark::ClobberMemory();
    }

    int Rows() const { return static_cast<int>(_rows.size()); }

  private:
    std::vector<std::array<std::string, columnCount>> _rows;
};

void CountBytes(benchmark::State& ioState) {
    HostList list;
    const int rows = static_cast<int>(ioState.range(0));
    list.Fill(rows);
    ioState.counters["bytes_per_row"] = static_cast<double>(list.Bytes()) / rows;
}

void FillHostList(benchmark::State& ioState) {
    HostTexts();
    MeasureListFill<HostList>(ioState);
    CountBytes(ioState);
}

void FillPlainList(benchmark::State& ioState) {
    PlainTexts();
    MeasureListFill<PlainList>(ioState);
}

BENCHMARK(FillHostList)->Name("ListFill/Ours")->Apply(ListSizes);
BENCHMARK(FillPlainList)->Name("ListFill/Floor")->Apply(ListSizes);

} // namespace
