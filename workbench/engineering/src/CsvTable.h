#pragma once

// A CSV file with one header line: its columns and its lines, each with its number in the file.
//
//   std::optional<CsvTable> table = CsvTable::Read(folder / "groups.csv", report);
//   if (table && table->ExpectColumns({"key"}, report))
//       for (const CsvTable::Row& row : table->Rows()) ... table->Cell(row, "key") ...

#include "FileReport.h"

#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engineering {

class CsvTable {
  public:
    struct Row {
        int line = 0; ///< line in which the row starts, counted from 1
        std::vector<std::string> cells;
    };

    /// Reads the file; blank lines are skipped, blanks around unquoted cells dropped. Lines with a wrong
    /// number of cells are reported and left out. None, after a report, without a header line or when the
    /// quotation marks do not match.
    static std::optional<CsvTable> Read(const std::filesystem::path& file, FileReport& report);

    const Row& Header() const { return _header; }
    const std::vector<Row>& Rows() const { return _rows; }

    /// False when lines with a wrong number of cells were left out.
    bool IsComplete() const { return _complete; }

    /// True when the columns are exactly the named ones, in any order, apart from optional ones that are not
    /// there; else reports each difference.
    bool ExpectColumns(std::initializer_list<std::string_view> names, FileReport& report,
                       std::initializer_list<std::string_view> optional = {}) const;

    bool HasColumn(std::string_view column) const;

    /// The cell of an existing column.
    const std::string& Cell(const Row& row, std::string_view column) const;

  private:
    Row _header;
    std::vector<Row> _rows;
    bool _complete = true;
};

} // namespace engineering
