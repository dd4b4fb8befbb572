// Filling a list of five columns with Qt: its tree widget, its standard model and a model written by hand.

#include "ListFilling.h"
#include "Sizes.h"

#include <QAbstractTableModel>
#include <QStandardItemModel>
#include <QTreeWidget>

#include <benchmark/benchmark.h>

namespace {

typedef std::array<QString, columnCount> Row;

const ListTexts<QString>& QtTexts() {
    static const auto texts =
        MakeListTexts<QString>([](const char* iText) { return QString::fromUtf8(iText); });
    return texts;
}

class TreeWidgetList {
  public:
    TreeWidgetList() { _tree.setColumnCount(columnCount); }

    void Fill(int iRows) {
        ForEachRow(QtTexts(), iRows, [this](const Row& iRow) {
            auto* const item = new QTreeWidgetItem(&_tree);
            for (int column = 0; column < columnCount; ++column)
                item->setText(column, iRow[static_cast<std::size_t>(column)]);
        });
    }

    int Rows() const { return _tree.topLevelItemCount(); }

  private:
    QTreeWidget _tree;
};

class StandardModelList {
  public:
    StandardModelList() : _model(0, columnCount) {}

    void Fill(int iRows) {
        ForEachRow(QtTexts(), iRows, [this](const Row& iRow) {
            QList<QStandardItem*> items;
            items.reserve(columnCount);
            for (const QString& text : iRow)
                items.append(new QStandardItem(text));
            _model.appendRow(items);
        });
    }

    int Rows() const { return _model.rowCount(); }

  private:
    QStandardItemModel _model;
};

// What a careful Qt programmer writes for many rows.
class OwnModel : public QAbstractTableModel {
  public:
    void Append(const Row& iRow) {
        const int row = static_cast<int>(_rows.size());
        beginInsertRows(QModelIndex(), row, row);
        _rows.push_back(iRow);
        endInsertRows();
    }

    // QAbstractTableModel
    int rowCount(const QModelIndex& iParent = QModelIndex()) const override {
        return iParent.isValid() ? 0 : static_cast<int>(_rows.size());
    }
    int columnCount(const QModelIndex& iParent = QModelIndex()) const override {
        return iParent.isValid() ? 0 : ::columnCount;
    }
    QVariant data(const QModelIndex& iIndex, int iRole = Qt::DisplayRole) const override {
        if (!iIndex.isValid() || iRole != Qt::DisplayRole)
            return QVariant();
        return _rows[static_cast<std::size_t>(iIndex.row())][static_cast<std::size_t>(iIndex.column())];
    }

  private:
    std::vector<Row> _rows;
};

class OwnModelList {
  public:
    void Fill(int iRows) {
        ForEachRow(QtTexts(), iRows, [this](const Row& iRow) { _model.Append(iRow); });
    }

    int Rows() const { return _model.rowCount(); }

  private:
    OwnModel _model;
};

template<class Kind>
void Fill(benchmark::State& ioState) {
    QtTexts();
    MeasureListFill<Kind>(ioState);
}

BENCHMARK(Fill<TreeWidgetList>)->Name("ListFill/QTreeWidget")->Apply(ItemListSizes);
BENCHMARK(Fill<StandardModelList>)->Name("ListFill/QStandardItemModel")->Apply(ItemListSizes);
BENCHMARK(Fill<OwnModelList>)->Name("ListFill/QtOwnModel")->Apply(ListSizes);

} // namespace
