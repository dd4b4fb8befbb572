#include "TablePeer.h"

#include "CATDlgMultiList.h"
#include "TableModel.h"
#include "TableView.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

namespace desktop {

TablePeer::TablePeer(PeerTree& ioTree, CATDlgMultiList& ioList, QWidget* iParent)
    : Peer(ioTree, ioList,
           new TableView(iParent, {[this](const std::vector<int>& iRows) { Select(iRows); },
                                   [this](int iRow, int iColumn) { Activate(iRow, iColumn); }})),
      _list(ioList), _view(static_cast<TableView*>(Widget())), _rows(new TableModel(ioList, _view)),
      _clearings(host::Inspector::Clearings(ioList)) {
    _view->Show(*_rows, host::Inspector::IsMultiSelection(ioList));
}

void TablePeer::Detach() {
    _rows->Forget();
    Peer::Detach();
}

void TablePeer::ShowState(unsigned int iKinds) {
    bool showsSelection = (iKinds & host::ChangeSelection) != 0;
    if ((iKinds & host::ChangeContent) != 0)
        showsSelection |= ShowRows();
    if ((iKinds & host::ChangeLayout) != 0)
        ShowExtent();
    if (showsSelection)
        ShowSelection();
}

// Rows that were filled in anew are shown from the top, unless some of them are selected.
bool TablePeer::ShowRows() {
    const int clearings = host::Inspector::Clearings(_list);
    const bool isRefilled = clearings != _clearings;
    _clearings = clearings;
    if (isRefilled && _list.GetSelectCount() == 0)
        _view->scrollToTop();
    return _view->Follow(isRefilled ? TableModel::Replaced : TableModel::Kept);
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
    Perform([this, &iRows] { return host::DialogUser::Select(_list, iRows); });
}

void TablePeer::Activate(int iRow, int iColumn) {
    Perform([this, iRow, iColumn] { return host::DialogUser::Activate(_list, iRow, iColumn); });
}

} // namespace desktop
