#include "PlainParameterList.h"

#include <algorithm>
#include <cstdio>

namespace {

enum Column { Marker, Name, Value, Tolerance, Description };

std::string Print(const char* iFormat, double iNumber) {
    char text[40] = {};
    std::snprintf(text, sizeof text, iFormat, iNumber);
    return text;
}

std::string InParentheses(const std::string& iText) {
    return "(" + iText + ")";
}

template<class Listeners>
void Remove(Listeners& ioListeners, const void* iWho) {
    ioListeners.erase(std::remove_if(ioListeners.begin(), ioListeners.end(),
                                     [iWho](const auto& iListener) { return iListener.who == iWho; }),
                      ioListeners.end());
}

} // namespace

const PlainDescriptions& AllPlainDescriptions() {
    static const PlainDescriptions all = [] {
        PlainDescriptions descriptions;
        for (int number = 0; number < describedParameters; ++number) {
            const ParameterFacts facts = FactsOf(number);
            descriptions.emplace(facts.name, facts.description);
        }
        return descriptions;
    }();
    return all;
}

std::string PlainParameter::Show() const {
    return Print("%gmm", _millimetres);
}

void PlainParameter::SetValue(double iMillimetres) {
    _millimetres = iMillimetres;
    for (const Listener& listener : _onValue)
        listener.call();
}

void PlainParameter::Listen(const void* iListener, Callback iOnValue, Callback iOnTolerance) {
    _onValue.push_back({iListener, std::move(iOnValue)});
    _onTolerance.push_back({iListener, std::move(iOnTolerance)});
}

void PlainParameter::StopListening(const void* iListener) {
    Remove(_onValue, iListener);
    Remove(_onTolerance, iListener);
}

void PlainParameterList::Content::Add(PlainParameter& ioParameter, const ParameterFacts& iFacts) {
    parameters.push_back(&ioParameter);
    names.push_back(iFacts.name);
    tolerances.push_back(iFacts.tolerance);
    isValueShown.push_back(1);
    isValueEditable.push_back(iFacts.isValueEditable ? 1 : 0);
    isToleranceShown.push_back(1);
    isToleranceEditable.push_back(iFacts.isToleranceEditable ? 1 : 0);
}

void PlainParameterList::SetParameters(const Content& iContent) {
    Unfollow();
    _content.parameters = iContent.parameters;
    _content.names = iContent.names;
    _content.isValueShown = iContent.isValueShown;
    _content.isValueEditable = iContent.isValueEditable;
    _content.isToleranceShown = iContent.isToleranceShown;
    _content.isToleranceEditable = iContent.isToleranceEditable;
    _positions.clear();
    _positions.reserve(_content.names.size());
    for (std::size_t position = 0; position < _content.names.size(); ++position)
        _positions.emplace(_content.names[position], position);
    isShown = false;
    _rows.clear();
    for (std::size_t position = 0; position < _content.parameters.size(); ++position)
        if (_content.isValueShown[position] > 0 || _content.isToleranceShown[position] > 0)
            AppendRow(position, iContent.tolerances[position]);
    isShown = true;
}

void PlainParameterList::Unfollow() {
    for (PlainParameter* const parameter : _content.parameters)
        parameter->StopListening(this);
}

void PlainParameterList::AppendRow(std::size_t iPosition, const std::string& iTolerance) {
    PlainParameter& parameter = *_content.parameters[iPosition];
    const std::string& name = _content.names[iPosition];
    const int number = static_cast<int>(_rows.size());
    ParameterRow& row = _rows.emplace_back();
    row[Marker] = MarkerOf(name);
    row[Name] = name;
    if (_content.isValueShown[iPosition] > 0)
        row[Value] = ShownValue(iPosition);
    const auto description = _names.descriptions.find(name);
    row[Description] = description == _names.descriptions.end() ? " " : description->second;
    if (_content.isToleranceShown[iPosition] > 0) {
        if (iTolerance.empty())
            row[Tolerance] = ShownLimits(iPosition);
        else if (_content.isToleranceEditable[iPosition] > 0)
            row[Tolerance] = iTolerance;
        else
            row[Value] = InParentheses(iTolerance);
    }
    parameter.Listen(
        this, [this, number] { OnValueChanged(number); }, [this, number] { OnToleranceChanged(number); });
}

void PlainParameterList::OnValueChanged(int iRow) {
    const std::size_t position = PositionOf(iRow);
    const std::string& name = _content.names[position];
    ParameterRow& row = _rows[static_cast<std::size_t>(iRow)];
    row[Value] = ShownValue(position);
    row[Marker] = MarkerOf(name);
    row[Tolerance] = ShownLimits(position);
    const std::unique_ptr<PlainEvent> event = std::make_unique<PlainModifiedEvent>(name);
    Climb(parent, *event);
}

void PlainParameterList::OnToleranceChanged(int iRow) {
    ParameterRow& row = _rows[static_cast<std::size_t>(iRow)];
    row[Marker] = "x";
    row[Tolerance] = ShownLimits(PositionOf(iRow));
}

// The first parameter of the name that the row shows.
std::size_t PlainParameterList::PositionOf(int iRow) const {
    return _positions.find(Row(iRow)[Name])->second;
}

std::string PlainParameterList::ShownValue(std::size_t iPosition) const {
    const std::string value = _content.parameters[iPosition]->Show();
    return _content.isValueEditable[iPosition] > 0 ? value : InParentheses(value);
}

std::string PlainParameterList::ShownLimits(std::size_t iPosition) const {
    const PlainParameter& parameter = *_content.parameters[iPosition];
    std::string limits;
    if (parameter.HasLimits()) {
        const std::string upper = Print("%g", parameter.Upper());
        const std::string lower = Print("%g", parameter.Lower());
        if (upper != "0" || lower != "0")
            limits = (parameter.Upper() > 0.0 ? "+" : "") + upper + "/" + lower;
    }
    return _content.isToleranceEditable[iPosition] > 0 ? limits : InParentheses(limits);
}

const char* PlainParameterList::MarkerOf(const std::string& iName) const {
    return _names.modified.count(iName) > 0 ? "x" : "";
}

ParameterRow FloorRow(const ParameterFacts& iFacts, double iMillimetres) {
    PlainDescriptions descriptions;
    if (!iFacts.description.empty())
        descriptions.emplace(iFacts.name, iFacts.description);
    PlainNames names = {descriptions, {}};
    if (iFacts.isModified)
        names.modified.insert(iFacts.name);
    PlainParameter parameter(iFacts);
    PlainParameterList::Content content;
    content.Add(parameter, iFacts);
    PlainParameterList list(nullptr, names);
    list.SetParameters(content);
    if (iMillimetres != iFacts.millimetres)
        parameter.SetValue(iMillimetres);
    return list.Row(0);
}
