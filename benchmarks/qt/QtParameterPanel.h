#ifndef QtParameterPanel_H
#define QtParameterPanel_H

#include "QtParameter.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <vector>

// A parameter list of a Qt program, without what it is shown with: it fills rows, follows the parameters with
// signals and slots, and tells which one was modified.
class QtParameterPanel : public QObject {
    Q_OBJECT

  public:
    enum Column { Marker, Name, Value, Tolerance, Description, Columns };

    struct Entry {
        QtParameter* parameter;
        QString name;
        QString tolerance;
        bool isValueShown;
        bool isValueEditable;
        bool isToleranceShown;
        bool isToleranceEditable;
    };

    // What is known about names.
    QHash<QString, QString> descriptions;
    QSet<QString> modified;

    void SetParameters(const std::vector<Entry>& iEntries);

  signals:
    void parameterModified(const QString& iName);

  protected:
    // What shows the rows.
    virtual void BeginFill() = 0;
    virtual void Add(const QStringList& iTexts) = 0;
    virtual void EndFill() = 0;
    virtual QString NameIn(int iRow) const = 0;
    virtual void ShowMarker(int iRow, const QString& iMarker, const QString& iTolerance) = 0;
    virtual void ShowValue(int iRow, const QString& iValue, const QString& iMarker,
                           const QString& iTolerance) = 0;

  private:
    void AddRow(const Entry& iEntry, int iRow);
    void OnValueChanged(int iRow);
    void OnToleranceChanged(int iRow);
    QString MarkerOf(const QString& iName) const;

    std::vector<Entry> _entries;
    QHash<QString, std::size_t> _positions;
};

#endif
