#pragma once

// Reads one line of a table after the other: the base of the readers of the catalogue's files.

#include "CsvTable.h"
#include "FileReport.h"

#include <set>
#include <string>
#include <utility>

namespace engineering {

class RowReader {
  public:
    RowReader(const RowReader&) = delete;
    RowReader& operator=(const RowReader&) = delete;

  protected:
    /// The table is not owned and outlives the reader.
    RowReader(const CsvTable& table, FileReport report) : _table(table), _report(std::move(report)) {}
    ~RowReader() = default;

    void UseLine(const CsvTable::Row& row) { _row = &row; }
    int Line() const { return _row->line; }
    /// The cell of the line being read.
    const std::string& Text(const char* column) const { return _table.Cell(*_row, column); }
    /// Reports what is wrong with a cell of that line.
    void Fail(const char* column, std::string message) { FailAt(_row->line, column, std::move(message)); }
    void FailAt(int line, const char* column, std::string message) {
        _report.Add(line, column, std::move(message));
    }
    /// The name in a cell; a name that is none, and one that is known already, are reported.
    std::string NewName(const char* column, std::set<std::string>& known);

    const CsvTable& Table() const { return _table; }

  private:
    const CsvTable& _table;
    FileReport _report;
    const CsvTable::Row* _row = nullptr;
};

} // namespace engineering
