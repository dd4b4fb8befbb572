#include "GridArranger.h"

#include "ContainerPeer.h"
#include "FieldHeight.h"
#include "Peer.h"
#include "PeerTree.h"
#include "host/Inspector.h"

#include <QtWidgets/QGridLayout>

#include <algorithm>
#include <memory>

namespace desktop {

namespace {

// A text or a round or square box with its text, which is lower than a field.
bool IsLow(const QWidget& iWidget) {
    return iWidget.inherits("QLabel") || iWidget.inherits("QRadioButton") || iWidget.inherits("QCheckBox");
}

Qt::Alignment AlignmentOf(unsigned int iSides) {
    Qt::Alignment alignment;
    const bool isLeft = (iSides & CATGRID_LEFT) != 0;
    const bool isRight = (iSides & CATGRID_RIGHT) != 0;
    if (isLeft != isRight)
        alignment |= isLeft ? Qt::AlignLeft : Qt::AlignRight;
    else if (!isLeft)
        alignment |= Qt::AlignHCenter;
    const bool isTop = (iSides & CATGRID_TOP) != 0;
    const bool isBottom = (iSides & CATGRID_BOTTOM) != 0;
    if (isTop != isBottom)
        alignment |= isTop ? Qt::AlignTop : Qt::AlignBottom;
    else if (!isTop)
        alignment |= Qt::AlignVCenter;
    return alignment;
}

// Gives each cell its stretch; where none stretches, an empty cell behind them takes the surplus space.
template<class SetStretch>
void Stretch(const std::vector<bool>& iStretches, const SetStretch& iSetStretch) {
    const int count = static_cast<int>(iStretches.size());
    for (int cell = 0; cell < count; ++cell)
        iSetStretch(cell, iStretches[static_cast<std::size_t>(cell)] ? 1 : 0);
    if (std::find(iStretches.begin(), iStretches.end(), true) == iStretches.end())
        iSetStretch(count, 1);
}

} // namespace

GridArranger::GridArranger(const PeerTree& iTree, const CATDialog& iContainer, QWidget& ioInside)
    : _tree(iTree), _inside(ioInside), _isWindow(host::Inspector::IsWindow(iContainer)),
      _plan(host::PlanLayout(iContainer)), _fieldHeight(FieldHeight()) {}

void GridArranger::Arrange(Edge iEdge) {
    delete _inside.layout();
    auto owned = std::make_unique<QGridLayout>();
    QGridLayout* const grid = owned.get();
    _inside.setLayout(owned.release());
    if (iEdge == NoMargins)
        grid->setContentsMargins(0, 0, 0, 0);
    const int last = LastRowInUse();
    for (const host::Cell& cell : _plan.cells) {
        const bool isBehind = last >= 0 && cell.row > last; // where there is nothing to keep apart
        if (IsSpacer(cell))
            _tree.PeerOf(*cell.child)->Widget()->setVisible(!isBehind);
        if (!isBehind)
            Place(cell, *grid);
    }
    Stretch(_plan.rowStretches, [grid](int iRow, int iStretch) { grid->setRowStretch(iRow, iStretch); });
    Stretch(_plan.columnStretches,
            [grid](int iColumn, int iStretch) { grid->setColumnStretch(iColumn, iStretch); });
}

void GridArranger::Place(const host::Cell& iCell, QGridLayout& ioGrid) const {
    const Peer* const peer = _tree.PeerOf(*iCell.child);
    if (peer == nullptr)
        return;
    QWidget* const widget = peer->Widget();
    if (peer->IsOneLine())
        widget->setMinimumHeight(!IsLow(*widget) || StandsBesideField(iCell) || IsBareRow() ? _fieldHeight
                                                                                            : 0);
    Qt::Alignment alignment = AlignmentOf(iCell.sides);
    if (IsRowOfLines(iCell.row))
        alignment &= ~Qt::AlignTop;
    if (IsBoxAcross(iCell))
        alignment &= ~Qt::AlignLeft;
    ioGrid.addWidget(widget, iCell.row, iCell.column, iCell.rowSpan, iCell.columnSpan, alignment);
}

// An empty box.
bool GridArranger::IsSpacer(const host::Cell& iCell) const {
    return dynamic_cast<const ContainerPeer*>(_tree.PeerOf(*iCell.child)) != nullptr &&
           host::Inspector::FirstChild(*iCell.child) == nullptr;
}

// A box across all columns ends where the window ends, whatever is in it.
bool GridArranger::IsBoxAcross(const host::Cell& iCell) const {
    return iCell.columnSpan > 1 && iCell.columnSpan == _plan.columns &&
           _tree.PeerOf(*iCell.child)->Widget()->inherits("QGroupBox");
}

// The last row with more than spacers; -1 for none.
int GridArranger::LastRowInUse() const {
    int last = -1;
    for (const host::Cell& cell : _plan.cells)
        if (!IsSpacer(cell))
            last = std::max(last, cell.row + cell.rowSpan - 1);
    return last;
}

// A single row without a box around it lines up with what stands beside its container.
bool GridArranger::IsBareRow() const {
    return _plan.rows == 1 && !_isWindow && _inside.layout()->contentsMargins().isNull();
}

// Lines of text beside each other share their middle, since fonts give them different heights.
bool GridArranger::IsRowOfLines(int iRow) const {
    return std::all_of(_plan.cells.begin(), _plan.cells.end(), [this, iRow](const host::Cell& iCell) {
        const Peer* const peer = _tree.PeerOf(*iCell.child);
        const bool isInRow = iCell.row <= iRow && iRow < iCell.row + iCell.rowSpan;
        return !isInRow || peer == nullptr || (peer->IsOneLine() && iCell.rowSpan == 1);
    });
}

bool GridArranger::StandsBesideField(const host::Cell& iCell) const {
    return std::any_of(_plan.cells.begin(), _plan.cells.end(), [this, &iCell](const host::Cell& iOther) {
        const Peer* const peer = _tree.PeerOf(*iOther.child);
        return iOther.row == iCell.row && peer != nullptr && !IsLow(*peer->Widget()) &&
               (peer->Field() != nullptr || peer->Inside() != nullptr);
    });
}

} // namespace desktop
