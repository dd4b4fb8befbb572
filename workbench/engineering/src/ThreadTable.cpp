#include "ThreadTable.h"

#include "CellText.h"
#include "ElementName.h"
#include "ForeignTables.h"
#include "RowReader.h"
#include "ThreadSpelling.h"

#include <map>
#include <set>
#include <system_error>

namespace engineering {

namespace {

namespace fs = std::filesystem;

// Designations met so far, in all standards: the normal spelling, and how the table writes it.
using Spellings = std::map<std::string, std::string>;

// Reads the lines of a table of threads one after the other.
class ThreadReader : private RowReader {
  public:
    ThreadReader(const CsvTable& table, Spellings& spellings, FileReport& report)
        : RowReader(table, report), _spellings(spellings) {}

    Thread ReadRow(const CsvTable::Row& row) {
        UseLine(row);
        Thread thread;
        thread.designation = Designation();
        const std::optional<double> major = Number("major_diameter_mm");
        const std::optional<double> pitch = Number("pitch_mm");
        const std::optional<double> middle = Number("pitch_diameter_mm");
        const std::optional<double> minor = Number("minor_diameter_mm");
        thread.tapDrill = NumberOrNone("tap_drill_mm");
        thread.threadsPerInch = NumberOrNone("tpi");
        NumberOrNone("major_diameter_in"); // the same once more, for people
        NumberOrNone("minor_diameter_in");
        ExpectBelow("pitch_diameter_mm", middle, "major_diameter_mm", major);
        ExpectBelow("minor_diameter_mm", minor, "pitch_diameter_mm", middle);
        ExpectBelow("tap_drill_mm", thread.tapDrill, "major_diameter_mm", major);
        thread.majorDiameter = major.value_or(0);
        thread.pitch = pitch.value_or(0);
        thread.pitchDiameter = middle.value_or(0);
        thread.minorDiameter = minor.value_or(0);
        return thread;
    }

  private:
    std::string Designation() {
        Parsed<std::string> name = ParseElementName(Text("designation"));
        if (!name.value) {
            Fail("designation", std::move(name.error));
            return {};
        }
        const auto [met, isNew] = _spellings.emplace(NormalSpelling(*name.value), *name.value);
        if (!isNew && met->second == *name.value) {
            Fail("designation", "duplicate designation " + Quoted(*name.value));
        } else if (!isNew) {
            Fail("designation", Quoted(*name.value) + " reads like " + Quoted(met->second));
        }
        return std::move(*name.value);
    }

    std::optional<double> Number(const char* column) {
        Parsed<double> number = ParsePositive(Text(column));
        if (!number.value) {
            Fail(column, Text(column).empty() ? "the value is missing" : std::move(number.error));
        }
        return number.value;
    }

    std::optional<double> NumberOrNone(const char* column) {
        return Table().HasColumn(column) && !Text(column).empty() ? Number(column) : std::nullopt;
    }

    void ExpectBelow(const char* column, std::optional<double> number, const char* upperColumn,
                     std::optional<double> upper) {
        if (number && upper && *number >= *upper) {
            Fail(column, Quoted(Text(column)) + " is not below the " + upperColumn + " of " +
                             Quoted(Text(upperColumn)));
        }
    }

    Spellings& _spellings;
};

// Reads the lines of threads.csv one after the other, each with its table.
class StandardReader : private RowReader {
  public:
    StandardReader(const CsvTable& table, const fs::path& folder, std::vector<Problem>& problems)
        : RowReader(table, FileReport(folder / "threads.csv", problems)), _folder(folder),
          _problems(problems) {}

    ThreadStandard ReadRow(const CsvTable::Row& row) {
        UseLine(row);
        ThreadStandard standard;
        standard.name = NewName("name", _names);
        standard.standard = Text("standard");
        Parsed<std::string> file = ParseTableName(Text("file"), "threads");
        if (!file.value) {
            _everyFileKnown = false;
            Fail("file", std::move(file.error));
        } else if (!_files.insert(*file.value).second) {
            Fail("file", Quoted(*file.value) + " already holds the threads of another standard");
        } else {
            standard.threads = Threads(*file.value);
        }
        return standard;
    }

    /// Reports tables without a line in threads.csv, where every line could be read.
    void Finish() {
        if (Table().IsComplete() && _everyFileKnown) {
            ReportForeignTables(_folder / "threads", _files,
                                "holds threads of an unknown standard: no line of threads.csv names it",
                                _problems);
        }
    }

  private:
    std::vector<Thread> Threads(const std::string& name) {
        const fs::path file = _folder / "threads" / name;
        std::error_code error;
        if (fs::status(file, error).type() == fs::file_type::not_found) {
            Fail("file", "the file " + Quoted("threads/" + name) + " does not exist");
            return {};
        }
        FileReport report(file, _problems);
        const std::optional<CsvTable> table = CsvTable::Read(file, report);
        if (!table || !table->ExpectColumns({"designation", "major_diameter_mm", "pitch_mm",
                                             "pitch_diameter_mm", "minor_diameter_mm", "tap_drill_mm"},
                                            report, {"tpi", "major_diameter_in", "minor_diameter_in"})) {
            return {};
        }
        ThreadReader reader(*table, _spellings, report);
        std::vector<Thread> threads;
        for (const CsvTable::Row& row : table->Rows()) {
            threads.push_back(reader.ReadRow(row));
        }
        if (threads.empty() && table->IsComplete()) {
            report.Add(table->Header().line, {}, "the file lists no threads");
        }
        return threads;
    }

    const fs::path& _folder;
    std::vector<Problem>& _problems;
    std::set<std::string> _names; ///< names of standards met so far
    std::set<std::string> _files; ///< tables met so far
    Spellings _spellings;
    bool _everyFileKnown = true;
};

} // namespace

std::optional<ThreadTables> ReadThreads(const fs::path& folder, std::vector<Problem>& problems) {
    const fs::path file = folder / "threads.csv";
    std::error_code error;
    if (fs::symlink_status(file, error).type() == fs::file_type::not_found) {
        return ThreadTables();
    }
    const std::size_t before = problems.size();
    FileReport report(file, problems);
    const std::optional<CsvTable> table = CsvTable::Read(file, report);
    if (!table || !table->ExpectColumns({"name", "standard", "file"}, report)) {
        return std::nullopt;
    }
    StandardReader reader(*table, folder, problems);
    std::vector<ThreadStandard> standards;
    for (const CsvTable::Row& row : table->Rows()) {
        standards.push_back(reader.ReadRow(row));
    }
    reader.Finish();
    return problems.size() == before ? std::optional(ThreadTables(std::move(standards))) : std::nullopt;
}

void CheckThreadParameters(const fs::path& folder, const TypeTable& types,
                           const std::optional<ThreadTables>& threads, std::vector<Problem>& problems) {
    FileReport report(folder / "types.csv", problems);
    for (const TypeDraft& type : types.types) {
        const std::string& name = type.description.thread;
        if (name.empty()) {
            continue;
        }
        const auto fail = [&](std::string message) { report.Add(type.line, "thread", std::move(message)); };
        const Parameter* parameter = type.FindParameter(name);
        if (parameter == nullptr && type.parametersComplete) {
            fail("type " + Quoted(type.description.key) + " has no parameter " + Quoted(name));
        } else if (parameter != nullptr && !type.unsound.contains(name) &&
                   parameter->magnitude != Magnitude::String) {
            fail("parameter " + Quoted(name) + " is a " + std::string(NameOf(parameter->magnitude)) +
                 ", not a STRING");
        } else if (threads && threads->Standards().empty()) {
            fail("the catalogue has no threads");
        }
    }
}

} // namespace engineering
