// One cell of a list that stands on the screen gets another text. Measured is all that happens up to the
// moment at which the view knows that it has to draw; drawing costs the same however long the list is. The
// host's list hears it through its peer, at the end of the event in which the text changes.

#include "QtTableModel.h"
#include "ScatteredRows.h"
#include "Sizes.h"

#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATDlgMultiList.h"
#include "desktop/Desktop.h"
#include "host/Application.h"
#include "host/EventScope.h"

#include <QApplication>
#include <QTableView>
#include <QTreeView>
#include <QTreeWidget>

#include <benchmark/benchmark.h>

#include <array>
#include <memory>

namespace {

constexpr int columns = 5;
constexpr int changedColumn = 2;

QStringList TextsOf(int iRow) {
    QStringList texts;
    for (int column = 0; column < columns; ++column)
        texts.append(QStringLiteral("Value %1 of %2").arg(column).arg(iRow));
    return texts;
}

// Counts what the model tells its views.
class ChangeCounter : public QObject {
  public:
    void Watch(const QAbstractItemModel* iModel) {
        connect(iModel, &QAbstractItemModel::dataChanged, this, [this] { ++_heard; });
    }
    int Heard() const { return _heard; }

  private:
    int _heard = 0;
};

class HostList {
  public:
    typedef CATUnicodeString Text;

    explicit HostList(int iRows) {
        auto* const dialog = new CATDlgDialog(&_application.MainWindow(), "FeatureDlg");
        _list = new CATDlgMultiList(dialog, "ParameterMul");
        const CATUnicodeString titles[columns] = {"Modified", "Name", "Value", "Tolerance", "Description"};
        _list->SetColumnTitles(columns, titles);
        dialog->SetRectDimensions(0, 0, 400, 600);
        dialog->Attach4Sides(_list);
        for (int row = 0; row < iRows; ++row) {
            const QStringList texts = TextsOf(row);
            for (int column = 0; column < columns; ++column)
                _list->SetColumnItem(column, texts[column].toUtf8().constData());
        }
        dialog->SetVisibility(CATDlgShow);
        _desktop = std::make_unique<desktop::Desktop>();
    }

    void Set(int iRow, const Text& iText) {
        const host::EventScope event;
        _list->SetColumnItem(changedColumn, iText, iRow, CATDlgDataModify);
    }

    const QAbstractItemView* View() const {
        return dynamic_cast<const QAbstractItemView*>(_desktop->WidgetOf(*_list));
    }

  private:
    host::Application _application;
    CATDlgMultiList* _list = nullptr; // belongs to the main window
    std::unique_ptr<desktop::Desktop> _desktop;
};

// Spares a tree what it need not measure.
void EaseLayout(QTreeView& ioTree) {
    ioTree.setUniformRowHeights(true);
    ioTree.setRootIsDecorated(false);
}
void EaseLayout(QTableView&) {}

// A view over a model that is written by hand.
template<class ViewClass>
class ModelView {
  public:
    typedef QString Text;

    explicit ModelView(int iRows) {
        _model.BeginFill(columns);
        for (int row = 0; row < iRows; ++row)
            _model.Add(TextsOf(row));
        _model.EndFill();
        _view.setModel(&_model);
        EaseLayout(_view);
        _view.resize(600, 400);
        _view.show();
    }

    void Set(int iRow, const Text& iText) {
        _model.Set(iRow, changedColumn, iText);
        _model.TellOf(iRow, changedColumn, changedColumn);
    }

    const QAbstractItemView* View() const { return &_view; }

  private:
    QtTableModel _model{columns};
    ViewClass _view;
};

typedef ModelView<QTableView> TableView;
typedef ModelView<QTreeView> TreeView;

class TreeWidget {
  public:
    typedef QString Text;

    explicit TreeWidget(int iRows) {
        _tree.setColumnCount(columns);
        for (int row = 0; row < iRows; ++row)
            _items.append(new QTreeWidgetItem(TextsOf(row)));
        _tree.addTopLevelItems(_items);
        EaseLayout(_tree);
        _tree.resize(600, 400);
        _tree.show();
    }

    void Set(int iRow, const Text& iText) { _items[iRow]->setText(changedColumn, iText); }

    const QAbstractItemView* View() const { return &_tree; }

  private:
    QTreeWidget _tree;
    QList<QTreeWidgetItem*> _items; // belong to the tree
};

template<class Kind>
void MeasureShownChange(benchmark::State& ioState) {
    const int rows = static_cast<int>(ioState.range(0));
    Kind list(rows);
    QApplication::processEvents();
    const QAbstractItemView* const view = list.View();
    if (view == nullptr || !view->isVisible() || view->model()->rowCount() != rows)
        return ioState.SkipWithError("the list does not stand on the screen");
    ChangeCounter counter;
    counter.Watch(view->model());
    const std::array<typename Kind::Text, 2> texts = {"12.5 millimetres", "13.5 millimetres"};
    ScatteredRows scattered(rows);
    int row = 0;
    int changes = 0;
    for (auto _ : ioState) {
        row = scattered.Next();
        list.Set(row, texts[static_cast<std::size_t>(changes % 2)]);
        ++changes;
    }
    const QString shown = view->model()->index(row, changedColumn).data().toString();
    const QString expected = QLatin1String(changes % 2 == 1 ? "12.5 millimetres" : "13.5 millimetres");
    if (counter.Heard() != changes || shown != expected)
        ioState.SkipWithError("not every change reached the view");
}

BENCHMARK(MeasureShownChange<HostList>)->Name("ShownChange/Ours")->Apply(ShownListSizes);
BENCHMARK(MeasureShownChange<HostList>)->Name("ShownChange/Ours")->Apply(MillionRows);
BENCHMARK(MeasureShownChange<TableView>)->Name("ShownChange/QTableView")->Apply(ShownListSizes);
BENCHMARK(MeasureShownChange<TableView>)->Name("ShownChange/QTableView")->Apply(MillionRows);
BENCHMARK(MeasureShownChange<TreeView>)->Name("ShownChange/QTreeView")->Apply(ShownTreeSizes);
BENCHMARK(MeasureShownChange<TreeWidget>)->Name("ShownChange/QTreeWidget")->Apply(ShownTreeSizes);

} // namespace
