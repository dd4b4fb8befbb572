#include "ParameterTable.h"

#include "CellText.h"
#include "CsvTable.h"

#include <algorithm>

namespace engineering {

namespace {

// Reads the lines of parameters.csv one after the other.
class ParameterReader {
  public:
    ParameterReader(const CsvTable& table, TypeTable& types, FileReport& report)
        : _table(table), _types(types), _report(report) {}

    void ReadRow(const CsvTable::Row& row) {
        _row = &row;
        _sound = true;
        TypeDraft* type = Type();
        const std::optional<std::string> name = Take("name", ParseKey(Text("name")));
        const Parameter parameter = Definition(name.value_or(""));
        if (type == nullptr) {
            return;
        }
        if (!name) {
            type->parametersComplete = false;
            return;
        }
        if (std::ranges::find(type->parameters, *name, &Parameter::name) != type->parameters.end()) {
            Fail("name", "duplicate parameter " + Quoted(*name) + " of type " + Quoted(Text("type")));
            return;
        }
        type->parameters.push_back(parameter);
        if (!_sound) {
            type->unsound.insert(*name);
        }
    }

    /// False when a line names no known type, which may then lack a parameter.
    bool EveryTypeKnown() const { return _everyTypeKnown; }

  private:
    const std::string& Text(std::string_view column) const { return _table.Cell(*_row, column); }

    void Fail(std::string column, std::string message) {
        _sound = false;
        _report.Add(_row->line, std::move(column), std::move(message));
    }

    template<class T>
    std::optional<T> Take(const char* column, Parsed<T> parsed) {
        if (!parsed.value) {
            Fail(column, std::move(parsed.error));
        }
        return std::move(parsed.value);
    }

    TypeDraft* Type() {
        TypeDraft* type = _types.Find(Text("type"));
        if (type != nullptr) {
            return type;
        }
        _everyTypeKnown = false;
        if (_types.complete) {
            Fail("type", "unknown type " + Quoted(Text("type")));
        }
        return nullptr;
    }

    Parameter Definition(std::string name) {
        Parameter parameter;
        parameter.name = std::move(name);
        const std::optional<Magnitude> magnitude = MagnitudeNamed(Text("magnitude"));
        if (magnitude) {
            parameter.magnitude = *magnitude;
            parameter.unit = UnitOf(*magnitude);
            parameter.tolerance = ToleranceOf(parameter);
        } else {
            Fail("magnitude", "unknown magnitude " + Quoted(Text("magnitude")));
        }
        parameter.valueEditable = Take("value_editable", ParseFlag(Text("value_editable"))).value_or(false);
        parameter.toleranceEditable =
            Take("tolerance_editable", ParseFlag(Text("tolerance_editable"))).value_or(false);
        if (magnitude && parameter.toleranceEditable && !HasUnit(*magnitude)) {
            Fail("tolerance_editable", "a " + std::string(NameOf(*magnitude)) + " carries no tolerance");
        }
        parameter.side = Side(magnitude);
        parameter.optional = Take("optional", ParseFlag(Text("optional"))).value_or(false);
        return parameter;
    }

    FitSide Side(const std::optional<Magnitude>& magnitude) {
        if (!_table.HasColumn("side") || Text("side").empty()) {
            return FitSide::Hole;
        }
        const std::optional<FitSide> side = FitSideNamed(Text("side"));
        if (!side) {
            Fail("side", Quoted(Text("side")) + " is neither hole nor shaft");
        } else if (magnitude && *magnitude != Magnitude::Length) {
            Fail("side", "only a LENGTH has a side");
        }
        return side.value_or(FitSide::Hole);
    }

    std::string UnitOf(Magnitude magnitude) {
        const std::string& text = Text("unit");
        const Unit* unit = UnitNamed(text);
        if (text.empty()) {
            if (HasUnit(magnitude)) {
                Fail("unit", "a unit is needed for " + std::string(NameOf(magnitude)));
            }
        } else if (unit == nullptr) {
            Fail("unit", "unknown unit " + Quoted(text));
        } else if (unit->magnitude != magnitude) {
            Fail("unit",
                 "unit " + Quoted(text) + " does not fit the magnitude " + std::string(NameOf(magnitude)));
        }
        return text;
    }

    Tolerance ToleranceOf(const Parameter& parameter) {
        const Unit* unit = UnitNamed(parameter.unit);
        const double toBase = unit == nullptr ? 1 : unit->toBase;
        return Take("tolerance", ParseTolerance(Text("tolerance"), parameter.magnitude, toBase))
            .value_or(Tolerance{});
    }

    const CsvTable& _table;
    TypeTable& _types;
    FileReport& _report;
    const CsvTable::Row* _row = nullptr; ///< the line being read
    bool _sound = true;                  ///< no problem so far in the line being read
    bool _everyTypeKnown = true;
};

void MarkIncomplete(TypeTable& types) {
    for (TypeDraft& type : types.types) {
        type.parametersComplete = false;
    }
}

} // namespace

void ReadParameters(const std::filesystem::path& folder, TypeTable& types, std::vector<Problem>& problems) {
    FileReport report(folder / "parameters.csv", problems);
    const std::optional<CsvTable> table = CsvTable::Read(folder / "parameters.csv", report);
    if (!table || !table->ExpectColumns({"type", "name", "magnitude", "unit", "tolerance", "value_editable",
                                         "tolerance_editable", "optional"},
                                        report, {"side"})) {
        MarkIncomplete(types);
        return;
    }
    ParameterReader reader(*table, types, report);
    for (const CsvTable::Row& row : table->Rows()) {
        reader.ReadRow(row);
    }
    if (!table->IsComplete() || !reader.EveryTypeKnown()) {
        MarkIncomplete(types);
    }
    FileReport typeReport(folder / "types.csv", problems);
    for (const TypeDraft& type : types.types) {
        if (type.parametersComplete && type.parameters.empty()) {
            typeReport.Add(type.line, "key", "type " + Quoted(type.description.key) + " has no parameters");
        }
    }
}

} // namespace engineering
