// The table of parameter sets with Qt: in tree widgets, and in table models written by hand.

#include "QtParameter.h"
#include "QtTableModel.h"
#include "SetTableMeasure.h"
#include "Sizes.h"

#include <QHash>
#include <QItemSelectionModel>
#include <QTreeWidget>

#include <memory>

namespace {

struct QtSet {
    std::vector<std::unique_ptr<QtParameter>> parameters;
    QStringList tolerances;
};

const std::vector<QtSet>& QtSets() {
    static const std::vector<QtSet> all = [] {
        std::vector<QtSet> sets(distinctSets);
        for (int set = 0; set < distinctSets; ++set)
            for (int parameter = 0; parameter < parametersOfSet; ++parameter) {
                const ParameterFacts facts = FactsInSet(set, parameter);
                QtSet& made = sets[static_cast<std::size_t>(set)];
                made.parameters.push_back(std::make_unique<QtParameter>(facts));
                made.tolerances.append(QString::fromStdString(facts.tolerance));
            }
        return sets;
    }();
    return all;
}

QString Cell(const QString& iText, bool iIsEditable) {
    return iIsEditable ? iText : InParentheses(iText);
}

QString NameInQt(int iSet) {
    return QString::fromStdString(NameOfSet(iSet));
}

// What the titles say, and the texts of the line of a set.
class SetTexts {
  public:
    SetTexts() {
        QtSets();
        for (const SetColumnFacts& facts : AllColumnFacts()) {
            const QString name = QString::fromStdString(facts.name);
            _titles.append(name);
            if (facts.isToleranceShown)
                _titles.append(name + QStringLiteral("_Tol"));
        }
    }

    const QStringList& Titles() const { return _titles; }
    QStringList LineOf(int iSet) const {
        const QtSet& set = QtSets()[static_cast<std::size_t>(iSet % distinctSets)];
        QStringList line;
        line.reserve(_titles.size());
        line.append(NameInQt(iSet));
        for (std::size_t number = 0; number < _facts.size(); ++number) {
            const SetColumnFacts& facts = _facts[number];
            const QtParameter& parameter = *set.parameters[number];
            line.append(Cell(parameter.Show(), facts.isValueEditable));
            if (!facts.isToleranceShown)
                continue;
            const QString& given = set.tolerances[static_cast<qsizetype>(number)];
            line.append(
                Cell(given.isEmpty() ? parameter.ShowPlainLimits() : given, facts.isToleranceEditable));
        }
        return line;
    }

  private:
    const std::vector<SetColumnFacts> _facts = AllColumnFacts();
    QStringList _titles{QStringLiteral("Parameter Set Name")};
};

SetLine LineIn(const QTreeWidget& iTree, int iLine) {
    SetLine line;
    for (int column = 0; column < iTree.columnCount(); ++column)
        line.push_back(iTree.topLevelItem(iLine)->text(column).toStdString());
    return line;
}

class TreeTables {
  public:
    void Fill(int iSets) {
        for (QTreeWidget* const tree : {&_sets, &_current}) {
            tree->clear();
            tree->setColumnCount(static_cast<int>(_texts.Titles().size()));
            tree->setHeaderLabels(_texts.Titles());
        }
        for (int set = 0; set < iSets; ++set)
            _itemOf.insert(NameInQt(set), new QTreeWidgetItem(&_sets, _texts.LineOf(set)));
    }

    void SetCurrent(int iSet) {
        _current.clear();
        new QTreeWidgetItem(&_current, _texts.LineOf(iSet));
        _sets.setCurrentItem(_itemOf.value(NameInQt(iSet)));
    }

    int Lines() const { return _sets.topLevelItemCount(); }
    SetLine Line(int iLine) const { return LineIn(_sets, iLine); }
    SetLine Current() const { return LineIn(_current, 0); }
    std::string SelectedName() const { return _sets.selectedItems().first()->text(0).toStdString(); }

  private:
    SetTexts _texts;
    QTreeWidget _sets;
    QTreeWidget _current;
    QHash<QString, QTreeWidgetItem*> _itemOf;
};

SetLine LineIn(const QtTableModel& iModel, int iLine) {
    SetLine line;
    for (int column = 0; column < iModel.columnCount(); ++column)
        line.push_back(iModel.Text(iLine, column).toStdString());
    return line;
}

class ModelTables {
  public:
    void Fill(int iSets) {
        const int columns = static_cast<int>(_texts.Titles().size());
        for (QtTableModel* const model : {&_sets, &_current}) {
            model->BeginFill(columns);
            model->EndFill();
        }
        for (int set = 0; set < iSets; ++set) {
            _sets.Append(_texts.LineOf(set));
            _lineOf.insert(NameInQt(set), set);
        }
    }

    void SetCurrent(int iSet) {
        _current.BeginFill(_current.columnCount());
        _current.Add(_texts.LineOf(iSet));
        _current.EndFill();
        _selection.select(_sets.index(_lineOf.value(NameInQt(iSet)), 0),
                          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

    int Lines() const { return _sets.rowCount(); }
    SetLine Line(int iLine) const { return LineIn(_sets, iLine); }
    SetLine Current() const { return LineIn(_current, 0); }
    std::string SelectedName() const {
        return _sets.Text(_selection.selectedRows().first().row(), 0).toStdString();
    }

  private:
    SetTexts _texts;
    QtTableModel _sets{0};
    QtTableModel _current{0};
    QItemSelectionModel _selection{&_sets};
    QHash<QString, int> _lineOf;
};

BENCHMARK(MeasureSetFill<TreeTables>)->Name("SetTable/QTreeWidget")->Apply(SetTableSizes);
BENCHMARK(MeasureSetFill<ModelTables>)->Name("SetTable/QtOwnModel")->Apply(SetTableSizes);
BENCHMARK(MeasureSetCurrent<TreeTables>)->Name("SetCurrent/QTreeWidget")->Apply(SetCurrentSizes);
BENCHMARK(MeasureSetCurrent<ModelTables>)->Name("SetCurrent/QtOwnModel")->Apply(SetCurrentSizes);

} // namespace
