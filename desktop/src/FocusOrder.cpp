#include "FocusOrder.h"

#include "CATDlgWindow.h"
#include "PeerTree.h"
#include "StandardButtons.h"
#include "WindowPeer.h"
#include "host/LayoutPlan.h"

#include <QtWidgets/QPushButton>

#include <algorithm>
#include <utility>

namespace desktop {

namespace {

std::vector<host::Cell> InReadingOrder(std::vector<host::Cell> iCells) {
    std::stable_sort(iCells.begin(), iCells.end(), [](const host::Cell& a, const host::Cell& b) {
        return std::pair(a.row, a.column) < std::pair(b.row, b.column);
    });
    return iCells;
}

} // namespace

FocusOrder::FocusOrder(const PeerTree& iTree, const WindowPeer& iWindow)
    : _tree(iTree), _frame(*iWindow.Widget()) {
    Add(*iWindow.Dialog());
    for (QPushButton* button : iWindow.Buttons().All())
        _fields.push_back(button);
}

// What is in a container comes before what is behind it in its row.
void FocusOrder::Add(const CATDialog& iContainer) {
    for (const host::Cell& cell : InReadingOrder(host::PlanLayout(iContainer).cells)) {
        const Peer* const peer = _tree.PeerOf(*cell.child);
        if (peer == nullptr)
            continue;
        if (peer->Field() != nullptr)
            _fields.push_back(peer->Field());
        Add(*cell.child);
    }
}

QWidget* FocusOrder::First() const {
    const auto first = std::find_if(_fields.begin(), _fields.end(),
                                    [this](const QWidget* iField) { return IsReachable(iField); });
    return first == _fields.end() ? nullptr : *first;
}

QWidget* FocusOrder::Beside(const QWidget* iFocused, bool iBehind) const {
    const auto focused = std::find(_fields.begin(), _fields.end(), iFocused);
    if (focused == _fields.end())
        return First();
    const std::size_t count = _fields.size();
    std::size_t field = static_cast<std::size_t>(focused - _fields.begin());
    for (std::size_t step = 0; step < count; ++step) {
        field = (iBehind ? field + 1 : field + count - 1) % count;
        if (IsReachable(_fields[field]))
            return _fields[field];
    }
    return nullptr;
}

bool FocusOrder::IsReachable(const QWidget* iField) const {
    return (iField->focusPolicy() & Qt::TabFocus) != 0 && iField->isVisibleTo(&_frame) &&
           iField->isEnabledTo(&_frame);
}

} // namespace desktop
