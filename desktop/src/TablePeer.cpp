#include "TablePeer.h"

#include "CATDlgMultiList.h"
#include "TableModel.h"
#include "TableView.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

#include <QtCore/QScopedValueRollback>

namespace desktop {

namespace {

// Lines were removed, or selected; never with lines that were written alone.
bool MayHaveLostLines(unsigned int iKinds) {
    constexpr unsigned int lost = host::ChangeContent | host::ChangeSelection;
    return (iKinds & lost) == lost && iKinds != everything;
}

} // namespace

TablePeer::TablePeer(PeerTree& ioTree, CATDlgMultiList& ioList, QWidget* iParent)
    : Peer(ioTree, ioList,
           new TableView(iParent, {[this](const std::vector<int>& iRows) { Select(iRows); },
                                   [this](int iRow, int iColumn) { Activate(iRow, iColumn); }})),
      _list(ioList), _view(static_cast<TableView*>(Widget())), _rows(new TableModel(ioList, _view)) {
    _view->Show(*_rows, host::Inspector::IsMultiSelection(ioList));
}

void TablePeer::Detach() {
    _rows->Forget();
    Peer::Detach();
}

void TablePeer::ShowState(unsigned int iKinds) {
    bool showsSelection = (iKinds & host::ChangeSelection) != 0;
    if ((iKinds & host::ChangeContent) != 0)
        showsSelection |= _view->Follow(IsRefilled(iKinds) ? TableModel::Replaced : TableModel::Kept);
    if ((iKinds & host::ChangeLayout) != 0)
        ShowExtent();
    if (!showsSelection)
        return;
    ShowSelection();
    if (MayHaveLostLines(iKinds) && !_isSelecting)
        _view->BringSelectionIntoSight();
}

// Removed lines take their selection along, so lines that are selected were not filled in anew, or were
// selected anew, which brings them into sight by itself.
bool TablePeer::IsRefilled(unsigned int iKinds) const {
    return MayHaveLostLines(iKinds) && _list.GetSelectCount() == 0 && !_isUnselecting;
}

void TablePeer::ShowExtent() {
    TableView::Extent extent;
    extent.rows = host::Inspector::VisibleTextHeight(_list);
    extent.width = host::Inspector::VisibleTextWidth(_list);
    extent.columns = host::Inspector::VisibleColumnCount(_list);
    for (int column = 0; column < _list.GetColumnCount(); ++column)
        extent.columnWidths.push_back(host::Inspector::ColumnTextWidth(_list, column));
    _view->SetExtent(extent);
}

void TablePeer::ShowSelection() {
    std::vector<int> selected(static_cast<std::size_t>(_list.GetSelectCount()));
    _list.GetSelect(selected.data(), _list.GetSelectCount());
    _view->ShowSelected(selected);
}

void TablePeer::Select(const std::vector<int>& iRows) {
    if (Dialog() == nullptr)
        return;
    const QScopedValueRollback<bool> selecting(_isSelecting, true);
    const QScopedValueRollback<bool> unselecting(_isUnselecting, iRows.empty());
    Perform([this, &iRows] { return host::DialogUser::Select(_list, iRows); });
}

void TablePeer::Activate(int iRow, int iColumn) {
    if (Dialog() == nullptr)
        return;
    const QScopedValueRollback<bool> selecting(_isSelecting, true);
    Perform([this, iRow, iColumn] { return host::DialogUser::Activate(_list, iRow, iColumn); });
}

} // namespace desktop
