#include "SetColumns.h"

#include "CellText.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace engineering {

namespace {

constexpr std::string_view toleranceSuffix = ".tolerance";

struct Title {
    std::string_view name;
    std::string_view unit; ///< empty without "[unit]"
    bool tolerance = false;
};

Title Understand(std::string_view text) {
    if (text.ends_with(toleranceSuffix)) {
        return {text.substr(0, text.size() - toleranceSuffix.size()), {}, true};
    }
    const std::size_t open = text.find(" [");
    if (open == std::string_view::npos || !text.ends_with(']')) {
        return {text, {}, false};
    }
    return {text.substr(0, open), text.substr(open + 2, text.size() - open - 3), false};
}

std::string ExpectedTitle(const Parameter& parameter) {
    return parameter.unit.empty() ? parameter.name : parameter.name + " [" + parameter.unit + "]";
}

// Goes through the header of one file of sets.
class HeaderReader {
  public:
    HeaderReader(const TypeDraft& type, const CsvTable::Row& header, FileReport& report)
        : _type(type), _header(header), _report(report) {
        _columns.places.resize(type.parameters.size());
        _seen.resize(type.parameters.size());
    }

    SetColumns Read() {
        _columns.named = _header.cells.front() == "set";
        if (!_columns.named) {
            Fail("set", "must be the first column");
        }
        for (std::size_t i = _columns.named ? 1 : 0; i < _header.cells.size(); ++i) {
            ReadTitle(i);
        }
        for (std::size_t i = 0; i < _seen.size(); ++i) {
            if (!_seen[i]) {
                Fail(ExpectedTitle(_type.parameters[i]), "the column is missing");
            }
        }
        return std::move(_columns);
    }

  private:
    void Fail(std::string column, std::string message) {
        _report.Add(_header.line, std::move(column), std::move(message));
    }

    void ReadTitle(std::size_t column) {
        const std::string& text = _header.cells[column];
        const Title title = Understand(text);
        const auto found = std::ranges::find(_type.parameters, title.name, &Parameter::name);
        if (found == _type.parameters.end()) {
            if (text == "set" && !_columns.named) {
                return; // reported as not being the first
            }
            if (_type.parametersComplete) {
                Fail(text, "unknown column");
            }
            return;
        }
        const auto position = static_cast<std::size_t>(found - _type.parameters.begin());
        SetColumns::Place& place = _columns.places[position];
        if (title.tolerance) {
            TakeTolerance(*found, place, column);
            return;
        }
        if (_seen[position]) {
            Fail(text, "the column stands twice");
            return;
        }
        _seen[position] = true;
        if (HasUsableUnit(*found, title, text)) {
            place.value = column;
        }
    }

    void TakeTolerance(const Parameter& parameter, SetColumns::Place& place, std::size_t column) {
        const std::string& text = _header.cells[column];
        if (place.tolerance) {
            Fail(text, "the column stands twice");
            return;
        }
        if (!IsUnsound(parameter) && !HasUnit(parameter.magnitude)) {
            Fail(text, "a " + std::string(NameOf(parameter.magnitude)) + " carries no tolerance");
            return;
        }
        place.tolerance = column;
    }

    bool HasUsableUnit(const Parameter& parameter, const Title& title, const std::string& text) {
        if (IsUnsound(parameter)) {
            return false;
        }
        if (title.unit == parameter.unit) {
            return true;
        }
        Fail(text, UnitProblem(parameter, title.unit));
        return false;
    }

    static std::string UnitProblem(const Parameter& parameter, std::string_view text) {
        if (text.empty()) {
            return "the unit is missing, write " + Quoted(ExpectedTitle(parameter));
        }
        const Unit* unit = UnitNamed(text);
        if (unit == nullptr) {
            return "unknown unit " + Quoted(text);
        }
        if (unit->magnitude != parameter.magnitude) {
            return "unit " + Quoted(text) + " does not fit the magnitude " +
                   std::string(NameOf(parameter.magnitude));
        }
        return "unit " + Quoted(text) + " differs from " + Quoted(parameter.unit) + " in parameters.csv";
    }

    bool IsUnsound(const Parameter& parameter) const { return _type.unsound.contains(parameter.name); }

    const TypeDraft& _type;
    const CsvTable::Row& _header;
    FileReport& _report;
    SetColumns _columns;
    std::vector<bool> _seen; ///< parameters whose value column has been met
};

} // namespace

SetColumns ReadSetColumns(const TypeDraft& type, const CsvTable::Row& header, FileReport& report) {
    return HeaderReader(type, header, report).Read();
}

} // namespace engineering
