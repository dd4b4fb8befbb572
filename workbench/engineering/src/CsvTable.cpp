#include "CsvTable.h"

#include "TextFile.h"

#include <algorithm>
#include <csv.h>

namespace engineering {

namespace {

// Feeds the text to the parser line by line, so that each record knows the line it starts in.
class RecordReader {
  public:
    RecordReader() { csv_init(&_parser, CSV_STRICT | CSV_STRICT_FINI); }
    ~RecordReader() { csv_free(&_parser); }
    RecordReader(const RecordReader&) = delete;
    RecordReader& operator=(const RecordReader&) = delete;

    bool Read(std::string_view text) {
        while (!text.empty()) {
            ++_line;
            const std::string_view line = text.substr(0, LineLength(text));
            text.remove_prefix(line.size());
            if (!Feed(line)) {
                return false;
            }
        }
        return csv_fini(&_parser, OnCell, OnRecordEnd, this) == 0;
    }

    std::vector<CsvTable::Row>& Records() { return _records; }

    /// Where reading stopped: the line of a stray quotation mark, or the start of a record that is never
    /// closed.
    int FaultyLine() const { return _fault == 0 ? _record.line : _fault; }

  private:
    static std::size_t LineLength(std::string_view text) {
        const std::size_t end = text.find_first_of("\r\n");
        if (end == std::string_view::npos) {
            return text.size();
        }
        return end + (text.substr(end).starts_with("\r\n") ? 2 : 1);
    }

    bool Feed(std::string_view line) {
        const bool blank = line.find_first_not_of(" \t\r\n") == std::string_view::npos;
        if (_record.line == 0 && !blank) {
            _record.line = _line;
        }
        if (csv_parse(&_parser, line.data(), line.size(), OnCell, OnRecordEnd, this) == line.size()) {
            return true;
        }
        _fault = _line;
        return false;
    }

    static void OnCell(void* text, std::size_t size, void* reader) {
        auto& cells = static_cast<RecordReader*>(reader)->_record.cells;
        cells.emplace_back(static_cast<const char*>(text), size);
    }

    static void OnRecordEnd(int, void* reader) {
        auto* self = static_cast<RecordReader*>(reader);
        const bool blank = self->_record.line == 0;
        if (!blank) {
            self->_records.push_back(std::move(self->_record));
        }
        self->_record = {};
    }

    csv_parser _parser{};
    int _line = 0;
    int _fault = 0;
    CsvTable::Row _record; ///< the record being read; line 0 between two records
    std::vector<CsvTable::Row> _records;
};

std::string CellCount(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " cell" : " cells");
}

} // namespace

std::optional<CsvTable> CsvTable::Read(const std::filesystem::path& file, FileReport& report) {
    const std::optional<std::string> text = ReadTextFile(file, report);
    if (!text) {
        return std::nullopt;
    }
    RecordReader reader;
    if (!reader.Read(*text)) {
        report.Add(reader.FaultyLine(), {}, "the quotation marks do not match");
        return std::nullopt;
    }
    if (reader.Records().empty()) {
        report.Add(1, {}, "the header line is missing");
        return std::nullopt;
    }
    CsvTable table;
    table._header = std::move(reader.Records().front());
    const std::size_t columns = table._header.cells.size();
    for (std::size_t i = 1; i < reader.Records().size(); ++i) {
        Row& row = reader.Records()[i];
        if (row.cells.size() == columns) {
            table._rows.push_back(std::move(row));
            continue;
        }
        table._complete = false;
        report.Add(row.line, {},
                   "has " + CellCount(row.cells.size()) + ", the header has " + CellCount(columns));
    }
    return table;
}

bool CsvTable::ExpectColumns(std::initializer_list<std::string_view> names, FileReport& report,
                             std::initializer_list<std::string_view> optional) const {
    bool asExpected = true;
    const auto differ = [&](std::string_view column, const char* message) {
        report.Add(_header.line, std::string(column), message);
        asExpected = false;
    };
    const auto expectOnce = [&](std::string_view name, bool mayBeMissing) {
        const auto count = std::ranges::count(_header.cells, name);
        if (count == 0 && !mayBeMissing) {
            differ(name, "the column is missing");
        }
        if (count > 1) {
            differ(name, "the column stands twice");
        }
    };
    for (const std::string_view name : names) {
        expectOnce(name, false);
    }
    for (const std::string_view name : optional) {
        expectOnce(name, true);
    }
    const auto isIn = [](const auto& list, const std::string& cell) {
        return std::ranges::find(list, cell) != list.end();
    };
    for (const std::string& cell : _header.cells) {
        if (!isIn(names, cell) && !isIn(optional, cell)) {
            differ(cell, "unknown column");
        }
    }
    return asExpected;
}

bool CsvTable::HasColumn(std::string_view column) const {
    return std::ranges::find(_header.cells, column) != _header.cells.end();
}

const std::string& CsvTable::Cell(const Row& row, std::string_view column) const {
    const auto found = std::ranges::find(_header.cells, column);
    return row.cells.at(static_cast<std::size_t>(found - _header.cells.begin()));
}

} // namespace engineering
