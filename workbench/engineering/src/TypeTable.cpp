#include "TypeTable.h"

#include "CellText.h"
#include "CsvTable.h"

#include <algorithm>

namespace engineering {

namespace {

constexpr const char* threadColumn = "thread";

bool Contains(const std::vector<std::string>& keys, std::string_view key) {
    return std::ranges::find(keys, key) != keys.end();
}

// Reads the lines of types.csv one after the other.
class TypeReader {
  public:
    TypeReader(const CsvTable& table, const GroupTable& groups, FileReport& report)
        : _table(table), _groups(groups), _report(report) {}

    TypeTable Read() {
        _result.complete = _table.IsComplete();
        for (const CsvTable::Row& row : _table.Rows()) {
            ReadRow(row);
        }
        return std::move(_result);
    }

    bool EveryGroupKnown() const { return _everyGroupKnown; }

  private:
    void ReadRow(const CsvTable::Row& row) {
        TypeDraft type;
        type.line = row.line;
        type.setsFile = SetsFile(row);
        type.description = {{}, Group(row), _table.Cell(row, "standard"), _table.Cell(row, "note"), {}};
        if (_table.HasColumn(threadColumn)) {
            type.description.thread = _table.Cell(row, threadColumn);
        }
        const Parsed<std::string> key = ParseKey(_table.Cell(row, "key"));
        if (!key.value) {
            _report.Add(row.line, "key", key.error);
            _result.complete = false;
            return;
        }
        if (Contains(_groups.keys, *key.value)) {
            _report.Add(row.line, "key", Quoted(*key.value) + " is already the key of a group");
        }
        if (_result.Find(*key.value) != nullptr) {
            _report.Add(row.line, "key", "duplicate key " + Quoted(*key.value));
            return;
        }
        type.description.key = *key.value;
        _result.types.push_back(std::move(type));
    }

    std::string Group(const CsvTable::Row& row) {
        const std::string& group = _table.Cell(row, "group");
        if (_groups.complete && !Contains(_groups.keys, group)) {
            _report.Add(row.line, "group", "unknown group " + Quoted(group));
            _everyGroupKnown = false;
        }
        return group;
    }

    std::string SetsFile(const CsvTable::Row& row) {
        Parsed<std::string> file = ParseTableName(_table.Cell(row, "sets"), "sets");
        if (!file.value) {
            _report.Add(row.line, "sets", std::move(file.error));
            return {};
        }
        if (std::ranges::find(_result.types, *file.value, &TypeDraft::setsFile) != _result.types.end()) {
            _report.Add(row.line, "sets", Quoted(*file.value) + " already holds the sets of another type");
            return {};
        }
        return std::move(*file.value);
    }

    const CsvTable& _table;
    const GroupTable& _groups;
    FileReport& _report;
    TypeTable _result;
    bool _everyGroupKnown = true;
};

void ReportEmptyGroups(const GroupTable& groups, const std::vector<TypeDraft>& types, FileReport& report) {
    for (std::size_t i = 0; i < groups.keys.size(); ++i) {
        const bool used = std::ranges::any_of(
            types, [&](const TypeDraft& type) { return type.description.group == groups.keys[i]; });
        if (!used) {
            report.Add(groups.lines[i], "key", "group " + Quoted(groups.keys[i]) + " has no types");
        }
    }
}

} // namespace

const Parameter* TypeDraft::FindParameter(std::string_view name) const {
    const auto found = std::ranges::find(parameters, name, &Parameter::name);
    return found == parameters.end() ? nullptr : &*found;
}

TypeDraft* TypeTable::Find(std::string_view key) {
    const auto found =
        std::ranges::find_if(types, [&](const TypeDraft& type) { return type.description.key == key; });
    return found == types.end() ? nullptr : &*found;
}

GroupTable ReadGroups(const std::filesystem::path& folder, std::vector<Problem>& problems) {
    FileReport report(folder / "groups.csv", problems);
    const std::optional<CsvTable> table = CsvTable::Read(folder / "groups.csv", report);
    if (!table || !table->ExpectColumns({"key"}, report)) {
        return {};
    }
    GroupTable groups;
    groups.complete = table->IsComplete();
    for (const CsvTable::Row& row : table->Rows()) {
        const Parsed<std::string> key = ParseKey(table->Cell(row, "key"));
        if (!key.value) {
            report.Add(row.line, "key", key.error);
            groups.complete = false;
            continue;
        }
        if (Contains(groups.keys, *key.value)) {
            report.Add(row.line, "key", "duplicate key " + Quoted(*key.value));
            continue;
        }
        groups.keys.push_back(*key.value);
        groups.lines.push_back(row.line);
    }
    if (groups.complete && groups.keys.empty()) {
        report.Add(table->Header().line, {}, "the file lists no groups");
    }
    return groups;
}

TypeTable ReadTypes(const std::filesystem::path& folder, const GroupTable& groups,
                    std::vector<Problem>& problems) {
    FileReport report(folder / "types.csv", problems);
    const std::optional<CsvTable> table = CsvTable::Read(folder / "types.csv", report);
    if (!table ||
        !table->ExpectColumns({"key", "group", "sets", "standard", "note"}, report, {threadColumn})) {
        return {};
    }
    TypeReader reader(*table, groups, report);
    TypeTable types = reader.Read();
    if (types.complete && reader.EveryGroupKnown()) {
        FileReport groupReport(folder / "groups.csv", problems);
        ReportEmptyGroups(groups, types.types, groupReport);
    }
    return types;
}

} // namespace engineering
