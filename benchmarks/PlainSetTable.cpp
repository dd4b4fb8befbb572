#include "PlainSetTable.h"

#include <cstdio>

namespace {

std::string LimitsOf(const PlainParameter& iParameter) {
    if (!iParameter.HasLimits())
        return std::string();
    char text[40] = {};
    std::snprintf(text, sizeof text, "%g/%g", iParameter.Upper(), iParameter.Lower());
    return text;
}

std::string Cell(const std::string& iText, bool iIsEditable) {
    return iIsEditable ? iText : "(" + iText + ")";
}

} // namespace

const std::vector<PlainSet>& PlainSets() {
    static const std::vector<PlainSet> all = [] {
        std::vector<PlainSet> sets(distinctSets);
        for (int set = 0; set < distinctSets; ++set)
            for (int parameter = 0; parameter < parametersOfSet; ++parameter) {
                const ParameterFacts facts = FactsInSet(set, parameter);
                PlainSet& made = sets[static_cast<std::size_t>(set)];
                made.parameters.emplace_back(facts);
                made.tolerances.push_back(facts.tolerance);
            }
        return sets;
    }();
    return all;
}

void PlainSetTable::SetParameterNames(const std::vector<SetColumnFacts>& iParameters) {
    _parameters = iParameters;
    _columns.clear();
    _titles.assign(1, "Parameter Set Name");
    for (std::size_t parameter = 0; parameter < _parameters.size(); ++parameter) {
        _columns.push_back({parameter, false});
        _titles.push_back(_parameters[parameter].name);
        if (!_parameters[parameter].isToleranceShown)
            continue;
        _columns.push_back({parameter, true});
        _titles.push_back(_parameters[parameter].name + "_Tol");
    }
    _lines.clear();
    _lineOf.clear();
    _current.clear();
    _selected = -1;
}

void PlainSetTable::SetParameterSet(const std::string& iName, const PlainSet& iSet) {
    _lineOf.emplace(iName, Lines());
    _lines.push_back(LineOf(iName, iSet));
}

void PlainSetTable::SetCurrentParameters(const std::string& iName, const PlainSet& iSet) {
    _current = LineOf(iName, iSet);
    const auto found = _lineOf.find(iName);
    if (found != _lineOf.end())
        _selected = found->second;
}

SetLine PlainSetTable::LineOf(const std::string& iName, const PlainSet& iSet) const {
    SetLine line;
    line.reserve(_columns.size() + 1);
    line.push_back(iName);
    for (const Column& column : _columns) {
        const SetColumnFacts& facts = _parameters[column.parameter];
        const PlainParameter& parameter = iSet.parameters[column.parameter];
        const std::string& tolerance = iSet.tolerances[column.parameter];
        if (!column.isTolerance)
            line.push_back(Cell(parameter.Show(), facts.isValueEditable));
        else
            line.push_back(
                Cell(tolerance.empty() ? LimitsOf(parameter) : tolerance, facts.isToleranceEditable));
    }
    return line;
}

SetLine FloorLine(int iSet) {
    PlainSetTable table;
    table.SetParameterNames(AllColumnFacts());
    table.SetParameterSet(NameOfSet(iSet), PlainSets()[static_cast<std::size_t>(iSet % distinctSets)]);
    return table.Line(0);
}

std::vector<SetColumnFacts> AllColumnFacts() {
    std::vector<SetColumnFacts> all;
    for (int parameter = 0; parameter < parametersOfSet; ++parameter)
        all.push_back(ColumnFactsOf(parameter));
    return all;
}
