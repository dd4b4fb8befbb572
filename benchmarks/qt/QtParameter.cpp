#include "QtParameter.h"

namespace {

QString Print(double iNumber) {
    return QString::number(iNumber, 'g', 6);
}

} // namespace

QtParameter::QtParameter(const ParameterFacts& iFacts)
    : _millimetres(iFacts.millimetres), _hasLimits(iFacts.hasLimits), _upper(iFacts.upper),
      _lower(iFacts.lower) {}

QString QtParameter::Show() const {
    return Print(_millimetres) + QLatin1String(lengthUnit);
}

QString QtParameter::ShowLimits() const {
    const QString limits = ShowPlainLimits();
    if (limits == QLatin1String("0/0"))
        return QString();
    return _upper > 0.0 ? QLatin1Char('+') + limits : limits;
}

QString QtParameter::ShowPlainLimits() const {
    return _hasLimits ? Print(_upper) + QLatin1Char('/') + Print(_lower) : QString();
}

void QtParameter::SetValue(double iMillimetres) {
    _millimetres = iMillimetres;
    emit valueChanged();
}

QString InParentheses(const QString& iText) {
    return QLatin1Char('(') + iText + QLatin1Char(')');
}
