// The parameter list with Qt: in a tree widget, and in a table model written by hand. The parameters are
// objects with signals.

#include "ParameterListMeasure.h"
#include "QtParameterPanel.h"
#include "QtTableModel.h"
#include "Sizes.h"

#include <QTreeWidget>

#include <memory>

namespace {

class TreePanel : public QtParameterPanel {
  public:
    TreePanel() { _tree.setColumnCount(Columns); }
    QString Text(int iRow, int iColumn) const { return Item(iRow)->text(iColumn); }

  protected:
    void BeginFill() override {
        _tree.hide();
        _tree.clear();
        _items.clear();
    }
    void Add(const QStringList& iTexts) override { _items.append(new QTreeWidgetItem(iTexts)); }
    void EndFill() override { _tree.addTopLevelItems(_items); }
    QString NameIn(int iRow) const override { return Text(iRow, Name); }
    void ShowMarker(int iRow, const QString& iMarker, const QString& iTolerance) override {
        Item(iRow)->setText(Marker, iMarker);
        Item(iRow)->setText(Tolerance, iTolerance);
    }
    void ShowValue(int iRow, const QString& iValue, const QString& iMarker,
                   const QString& iTolerance) override {
        Item(iRow)->setText(Value, iValue);
        ShowMarker(iRow, iMarker, iTolerance);
    }

    QTreeWidget& Tree() { return _tree; }
    void Keep(QTreeWidgetItem* iItem) { _items.append(iItem); }

  private:
    QTreeWidgetItem* Item(int iRow) const { return _items[iRow]; }

    QTreeWidget _tree;
    QList<QTreeWidgetItem*> _items; // belong to the tree
};

// Fills the tree cell by cell, as the host's list is filled; the other one hands it all rows at once.
class CellwiseTreePanel : public TreePanel {
  protected:
    void Add(const QStringList& iTexts) override {
        auto* const item = new QTreeWidgetItem(&Tree());
        for (int column = 0; column < Columns; ++column)
            item->setText(column, iTexts[column]);
        Keep(item);
    }
    void EndFill() override {}
};

class ModelPanel : public QtParameterPanel {
  public:
    QString Text(int iRow, int iColumn) const { return _model.Text(iRow, iColumn); }

  protected:
    void BeginFill() override { _model.BeginFill(Columns); }
    void Add(const QStringList& iTexts) override { _model.Add(iTexts); }
    void EndFill() override { _model.EndFill(); }
    QString NameIn(int iRow) const override { return Text(iRow, Name); }
    void ShowMarker(int iRow, const QString& iMarker, const QString& iTolerance) override {
        _model.Set(iRow, Marker, iMarker);
        _model.Set(iRow, Tolerance, iTolerance);
        _model.TellOf(iRow, Marker, Tolerance);
    }
    void ShowValue(int iRow, const QString& iValue, const QString& iMarker,
                   const QString& iTolerance) override {
        _model.Set(iRow, Value, iValue);
        ShowMarker(iRow, iMarker, iTolerance);
    }

  private:
    QtTableModel _model{Columns};
};

QString ToQt(const std::string& iText) {
    return QString::fromStdString(iText);
}

// Made once.
const QHash<QString, QString>& AllDescriptions() {
    static const QHash<QString, QString> all = [] {
        QHash<QString, QString> descriptions;
        for (int number = 0; number < describedParameters; ++number) {
            const ParameterFacts facts = FactsOf(number);
            descriptions.insert(ToQt(facts.name), ToQt(facts.description));
        }
        return descriptions;
    }();
    return all;
}

template<class Panel>
class QtParameterList {
  public:
    explicit QtParameterList(int iRows) {
        _panel.descriptions = AllDescriptions();
        for (int row = 0; row < iRows; ++row)
            AddParameter(FactsOf(row));
        QObject::connect(&_panel, &QtParameterPanel::parameterModified, &_panel,
                         [this](const QString& iName) {
                             _last = iName;
                             ++_heard;
                         });
        Refill();
    }

    void Refill() { _panel.SetParameters(_entries); }
    void Change(int iRow, double iMillimetres) {
        _parameters[static_cast<std::size_t>(iRow)]->SetValue(iMillimetres);
    }
    ParameterRow Row(int iRow) const {
        ParameterRow row;
        for (std::size_t column = 0; column < row.size(); ++column)
            row[column] = _panel.Text(iRow, static_cast<int>(column)).toStdString();
        return row;
    }
    int Heard() const { return _heard; }
    std::string LastHeard() const { return _last.toStdString(); }

  private:
    void AddParameter(const ParameterFacts& iFacts) {
        const QString name = ToQt(iFacts.name);
        if (iFacts.isModified)
            _panel.modified.insert(name);
        _parameters.push_back(std::make_unique<QtParameter>(iFacts));
        _entries.push_back({_parameters.back().get(), name, ToQt(iFacts.tolerance), true,
                            iFacts.isValueEditable, true, iFacts.isToleranceEditable});
    }

    std::vector<std::unique_ptr<QtParameter>> _parameters;
    std::vector<QtParameterPanel::Entry> _entries;
    Panel _panel;
    int _heard = 0;
    QString _last;
};

typedef QtParameterList<TreePanel> TreeList;
typedef QtParameterList<CellwiseTreePanel> CellwiseTreeList;
typedef QtParameterList<ModelPanel> ModelList;

BENCHMARK(MeasureRefill<TreeList>)->Name("ParameterRefill/QTreeWidget")->Apply(ParameterListSizes);
BENCHMARK(MeasureRefill<CellwiseTreeList>)
    ->Name("ParameterRefill/QTreeWidgetCellwise")
    ->Apply(ParameterListSizes);
BENCHMARK(MeasureRefill<ModelList>)->Name("ParameterRefill/QtOwnModel")->Apply(ParameterListSizes);
BENCHMARK(MeasureChange<TreeList>)->Name("ParameterChange/QTreeWidget")->Apply(ParameterChangeSizes);
BENCHMARK(MeasureChange<ModelList>)->Name("ParameterChange/QtOwnModel")->Apply(ParameterChangeSizes);

} // namespace
