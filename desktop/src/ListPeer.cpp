#include "ListPeer.h"

#include "CATDlgCombo.h"
#include "LineModel.h"
#include "LineView.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

#include <algorithm>

namespace desktop {

namespace {
constexpr int shortestContent = 12; // characters
constexpr int longestContent = 56;
constexpr int linesByDefault = 5;
} // namespace

ListPeer::ListPeer(PeerTree& ioTree, CATDlgCombo& ioCombo, QWidget* iParent)
    : Peer(ioTree, ioCombo, new LineView(iParent, [this](int iLine) { Choose(iLine); })), _combo(ioCombo),
      _view(static_cast<LineView*>(Widget())), _lines(new LineModel(ioCombo, _view)) {
    _view->setModel(_lines);
}

void ListPeer::Detach() {
    _lines->Forget();
    Peer::Detach();
}

void ListPeer::ShowState(unsigned int iKinds) {
    if ((iKinds & host::ChangeContent) != 0)
        _lines->Reload();
    if ((iKinds & (host::ChangeContent | host::ChangeLayout)) != 0) {
        const int height = host::Inspector::VisibleTextHeight(_combo);
        _view->SetVisibleText(height > 0 ? height : linesByDefault, TextWidth());
    }
    ShowSelection();
}

int ListPeer::TextWidth() const {
    const int character = _view->fontMetrics().averageCharWidth();
    const int asked = host::Inspector::VisibleTextWidth(_combo);
    if (asked > 0)
        return asked * character;
    return std::clamp(_lines->WidestLine(_view->fontMetrics()), shortestContent * character,
                      longestContent * character);
}

void ListPeer::Choose(int iLine) {
    if (Dialog() == nullptr)
        return;
    if (iLine < 0)
        ShowSelection();
    else
        Perform([this, iLine] { return host::DialogUser::Choose(_combo, iLine); });
}

void ListPeer::ShowSelection() {
    const QModelIndex selected = _lines->index(_combo.GetSelect());
    _view->selectionModel()->setCurrentIndex(selected, QItemSelectionModel::ClearAndSelect);
    if (selected.isValid())
        _view->scrollTo(selected);
}

} // namespace desktop
