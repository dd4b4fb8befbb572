#include "QtParameterPanel.h"

namespace {

QString ShownValue(const QtParameterPanel::Entry& iEntry) {
    const QString value = iEntry.parameter->Show();
    return iEntry.isValueEditable ? value : InParentheses(value);
}

QString ShownLimits(const QtParameterPanel::Entry& iEntry) {
    const QString limits = iEntry.parameter->ShowLimits();
    return iEntry.isToleranceEditable ? limits : InParentheses(limits);
}

} // namespace

void QtParameterPanel::SetParameters(const std::vector<Entry>& iEntries) {
    for (const Entry& entry : _entries)
        entry.parameter->disconnect(this);
    _entries = iEntries;
    _positions.clear();
    _positions.reserve(static_cast<qsizetype>(_entries.size()));
    for (std::size_t position = 0; position < _entries.size(); ++position)
        if (!_positions.contains(_entries[position].name))
            _positions.insert(_entries[position].name, position);
    BeginFill();
    int row = 0;
    for (const Entry& entry : _entries)
        if (entry.isValueShown || entry.isToleranceShown)
            AddRow(entry, row++);
    EndFill();
}

void QtParameterPanel::AddRow(const Entry& iEntry, int iRow) {
    QStringList texts(Columns);
    texts[Marker] = MarkerOf(iEntry.name);
    texts[Name] = iEntry.name;
    if (iEntry.isValueShown)
        texts[Value] = ShownValue(iEntry);
    texts[Description] = descriptions.value(iEntry.name, QStringLiteral(" "));
    if (iEntry.isToleranceShown) {
        if (iEntry.tolerance.isEmpty())
            texts[Tolerance] = ShownLimits(iEntry);
        else if (iEntry.isToleranceEditable)
            texts[Tolerance] = iEntry.tolerance;
        else
            texts[Value] = InParentheses(iEntry.tolerance);
    }
    Add(texts);
    connect(iEntry.parameter, &QtParameter::valueChanged, this, [this, iRow] { OnValueChanged(iRow); });
    connect(iEntry.parameter, &QtParameter::toleranceChanged, this,
            [this, iRow] { OnToleranceChanged(iRow); });
}

void QtParameterPanel::OnValueChanged(int iRow) {
    const Entry& entry = _entries[_positions.value(NameIn(iRow))];
    ShowValue(iRow, ShownValue(entry), MarkerOf(entry.name), ShownLimits(entry));
    emit parameterModified(entry.name);
}

void QtParameterPanel::OnToleranceChanged(int iRow) {
    const Entry& entry = _entries[_positions.value(NameIn(iRow))];
    ShowMarker(iRow, QStringLiteral("x"), ShownLimits(entry));
}

QString QtParameterPanel::MarkerOf(const QString& iName) const {
    return modified.contains(iName) ? QStringLiteral("x") : QString();
}
