#ifndef QtParameter_H
#define QtParameter_H

#include "ParameterFacts.h"

#include <QObject>
#include <QString>

// A parameter as a Qt program has it.
class QtParameter : public QObject {
    Q_OBJECT

  public:
    explicit QtParameter(const ParameterFacts& iFacts);

    // "12.5mm"
    QString Show() const;
    // "+0.1/-0.05", or empty; the sign and what stands for zero are those of a parameter list.
    QString ShowLimits() const;
    // The same without sign, as a set table has it.
    QString ShowPlainLimits() const;
    void SetValue(double iMillimetres);

  signals:
    void valueChanged();
    void toleranceChanged();

  private:
    double _millimetres;
    bool _hasLimits;
    double _upper;
    double _lower;
};

QString InParentheses(const QString& iText);

#endif
