#include "SetTable.h"

#include "CellText.h"
#include "CsvTable.h"
#include "ForeignTables.h"
#include "SetColumns.h"

#include <set>
#include <string>
#include <system_error>
#include <unordered_set>

namespace engineering {

namespace {

namespace fs = std::filesystem;

// Reads the lines of a file of sets one after the other.
class SetReader {
  public:
    SetReader(const TypeDraft& type, const CsvTable& table, const ThreadTables& threads,
              const LimitsAndFits& fits, FileReport& report)
        : _type(type), _table(table), _threads(threads), _fits(fits),
          _columns(ReadSetColumns(type, table.Header(), report)), _report(report) {}

    ParameterSet ReadRow(const CsvTable::Row& row) {
        ParameterSet set;
        if (_columns.named) {
            set.name = Name(row);
        }
        for (std::size_t i = 0; i < _type.parameters.size(); ++i) {
            set.values.push_back(Entry(row, _type.parameters[i], _columns.places[i]));
        }
        return set;
    }

  private:
    void Fail(const CsvTable::Row& row, std::size_t column, std::string message) {
        _report.Add(row.line, _table.Header().cells[column], std::move(message));
    }

    const std::string& Name(const CsvTable::Row& row) {
        const std::string& name = row.cells.front();
        if (name.empty()) {
            Fail(row, 0, "the set has no name");
        } else if (!_names.insert(name).second) {
            Fail(row, 0, "duplicate set name " + Quoted(name));
        }
        return name;
    }

    ParameterValue Entry(const CsvTable::Row& row, const Parameter& parameter,
                         const SetColumns::Place& place) {
        if (!place.value) {
            return {};
        }
        const Unit* unit = UnitNamed(parameter.unit);
        const double toBase = unit == nullptr ? 1 : unit->toBase;
        ParameterValue entry;
        entry.value = ValueOf(row, parameter, *place.value, toBase);
        const Tolerance own = OwnTolerance(row, parameter, place, toBase);
        if (!row.cells[*place.value].empty()) {
            const bool isOwn = own.kind != Tolerance::Kind::None;
            entry.tolerance = isOwn ? own : parameter.tolerance;
            CheckFit(row, isOwn ? *place.tolerance : *place.value, parameter, entry);
        }
        return entry;
    }

    void CheckFit(const CsvTable::Row& row, std::size_t column, const Parameter& parameter,
                  const ParameterValue& entry) {
        if (entry.tolerance.kind != Tolerance::Kind::FitClass || !entry.value || _fits.IsEmpty()) {
            return;
        }
        const Parsed<ToleranceClass> fit = ParseToleranceClass(entry.tolerance.fitClass);
        if (fit.value->side != parameter.side) {
            Fail(row, column,
                 Quoted(entry.tolerance.fitClass) + " is no class of a " + NameOf(parameter.side));
            return;
        }
        Parsed<Deviations> deviations = _fits.DeviationsOf(std::get<double>(*entry.value), *fit.value);
        if (!deviations.value) {
            Fail(row, column, std::move(deviations.error));
        }
    }

    static std::string NameOf(FitSide side) { return side == FitSide::Hole ? "hole" : "shaft"; }

    std::optional<Value> ValueOf(const CsvTable::Row& row, const Parameter& parameter, std::size_t column,
                                 double toBase) {
        const std::string& text = row.cells[column];
        if (text.empty()) {
            if (!parameter.optional) {
                Fail(row, column, "the value is missing");
            }
            return std::nullopt;
        }
        Parsed<Value> value = ParseValue(text, parameter.magnitude, toBase);
        if (!value.value) {
            Fail(row, column, std::move(value.error));
        } else if (NamesThread(parameter) && _threads.Find(text).thread == nullptr) {
            Fail(row, column, "there is no thread " + Quoted(text));
        }
        return std::move(value.value);
    }

    bool NamesThread(const Parameter& parameter) const {
        return parameter.name == _type.description.thread && parameter.magnitude == Magnitude::String &&
               !_threads.Standards().empty();
    }

    Tolerance OwnTolerance(const CsvTable::Row& row, const Parameter& parameter,
                           const SetColumns::Place& place, double toBase) {
        if (!place.tolerance) {
            return {};
        }
        const std::string& text = row.cells[*place.tolerance];
        Parsed<Tolerance> own = ParseTolerance(text, parameter.magnitude, toBase);
        if (!own.value) {
            Fail(row, *place.tolerance, std::move(own.error));
            return {};
        }
        if (!text.empty() && parameter.optional && row.cells[*place.value].empty()) {
            Fail(row, *place.tolerance, "a tolerance stands beside an empty value");
        }
        return *own.value;
    }

    const TypeDraft& _type;
    const CsvTable& _table;
    const ThreadTables& _threads;
    const LimitsAndFits& _fits;
    const SetColumns _columns;
    FileReport& _report;
    std::unordered_set<std::string> _names; ///< names met so far
};

} // namespace

std::vector<ParameterSet> ReadSets(const fs::path& folder, const TypeDraft& type, const ThreadTables& threads,
                                   const LimitsAndFits& fits, std::vector<Problem>& problems) {
    FileReport typeReport(folder / "types.csv", problems);
    const fs::path file = folder / "sets" / type.setsFile;
    std::error_code error;
    if (fs::status(file, error).type() == fs::file_type::not_found) {
        typeReport.Add(type.line, "sets", "the file " + Quoted("sets/" + type.setsFile) + " does not exist");
        return {};
    }
    FileReport report(file, problems);
    const std::optional<CsvTable> table = CsvTable::Read(file, report);
    if (!table) {
        return {};
    }
    SetReader reader(type, *table, threads, fits, report);
    std::vector<ParameterSet> sets;
    for (const CsvTable::Row& row : table->Rows()) {
        sets.push_back(reader.ReadRow(row));
    }
    if (sets.empty() && table->IsComplete()) {
        typeReport.Add(type.line, "sets", "type " + Quoted(type.description.key) + " has no sets");
    }
    return sets;
}

void ReportForeignSets(const fs::path& folder, const std::vector<TypeDraft>& types,
                       std::vector<Problem>& problems) {
    std::set<std::string> known;
    for (const TypeDraft& type : types) {
        known.insert(type.setsFile);
    }
    ReportForeignTables(folder / "sets", known,
                        "holds sets of an unknown type: no line of types.csv names it", problems);
}

} // namespace engineering
