#include "host/LayoutPlan.h"

#include "CATDialog.h"
#include "host/Inspector.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

typedef Inspector::TabSpan TabSpan;

// One direction of the arrangement: columns from vertical lines, or rows from horizontal ones.
class Axis {
  public:
    // Block of cells of one child, and whether its two sides are tied.
    struct Block {
        int first = 0;
        int span = 1;
        bool leading = true;
        bool trailing = false;
    };

    explicit Axis(TabSpan (*iSpanOf)(const CATDialog&)) : _spanOf(iSpanOf) {}

    bool IsAttached(const CATDialog& iChild) const {
        const TabSpan span = _spanOf(iChild);
        return span.hasLeading || span.hasTrailing;
    }

    void CollectLines(const std::vector<CATDialog*>& iChildren) {
        _lines.reserve(2 * iChildren.size());
        for (const CATDialog* child : iChildren) {
            const TabSpan span = _spanOf(*child);
            if (span.hasLeading)
                _lines.push_back(span.leading);
            if (span.hasTrailing)
                _lines.push_back(span.trailing);
        }
        std::sort(_lines.begin(), _lines.end());
        _lines.erase(std::unique(_lines.begin(), _lines.end()), _lines.end());
        for (const CATDialog* child : iChildren) {
            const TabSpan span = _spanOf(*child);
            if (!span.hasLeading && span.hasTrailing && span.trailing == _lines.front())
                _cellsBefore = 1;
        }
    }

    // The block of an attached child.
    Block PlaceAttached(const CATDialog& iChild) {
        const TabSpan span = _spanOf(iChild);
        Block block;
        block.leading = span.hasLeading && !span.isCentred;
        block.trailing = span.hasTrailing;
        if (span.hasLeading) {
            block.first = LineIndex(span.leading);
            block.span = span.hasTrailing ? std::max(1, LineIndex(span.trailing) - block.first) : 1;
        } else {
            block.first = LineIndex(span.trailing) - 1;
        }
        Use(block, span.stretches);
        return block;
    }

    // The next free cell, for a child that is not attached at all.
    Block PlaceBehind() { return PlaceAt(Count()); }

    // One cell.
    Block PlaceAt(int iCell) {
        Block block;
        block.first = iCell;
        Use(block, false);
        return block;
    }

    // The first cell, for a child that shares it with its siblings.
    Block PlaceFirst() {
        const Block block;
        Use(block, false);
        return block;
    }

    int Count() const { return static_cast<int>(_stretches.size()); }
    // Gives the stretching cells away.
    std::vector<bool> TakeStretches() { return std::move(_stretches); }

  private:
    int LineIndex(int iTab) const {
        const auto line = std::lower_bound(_lines.begin(), _lines.end(), iTab);
        return _cellsBefore + static_cast<int>(line - _lines.begin());
    }

    void Use(const Block& iBlock, bool iStretches) {
        const std::size_t end =
            static_cast<std::size_t>(iBlock.first) + static_cast<std::size_t>(iBlock.span);
        if (_stretches.size() < end)
            _stretches.resize(end, false);
        if (iStretches)
            _stretches[end - 1] = true;
    }

    TabSpan (*_spanOf)(const CATDialog&);
    std::vector<int> _lines;
    int _cellsBefore = 0;         // 1 when a child ends on the first line
    std::vector<bool> _stretches; // one entry a cell
};

std::vector<CATDialog*> ShownChildren(const CATDialog& iContainer) {
    std::vector<CATDialog*> children;
    children.reserve(16); // enough for most containers
    for (CATDialog* child = Inspector::FirstChild(iContainer); child != nullptr;
         child = Inspector::NextSibling(*child))
        if (child->GetVisibility() == CATDlgShow && !Inspector::IsWindow(*child))
            children.push_back(child);
    return children;
}

unsigned int SidesOf(const Axis::Block& iColumns, const Axis::Block& iRows) {
    unsigned int sides = 0;
    sides |= iColumns.leading ? CATGRID_LEFT : 0U;
    sides |= iColumns.trailing ? CATGRID_RIGHT : 0U;
    sides |= iRows.leading ? CATGRID_TOP : 0U;
    sides |= iRows.trailing ? CATGRID_BOTTOM : 0U;
    return sides;
}

constexpr Axis::Block NoCells = {0, 0, true, false};

// The columns and rows of one child, none before it is placed.
struct Place {
    bool isInColumns = false; // attached to vertical lines
    bool isInRows = false;
    Axis::Block columns = NoCells;
    Axis::Block rows = NoCells;
};

typedef Axis::Block Place::*Direction;

bool Overlap(const Axis::Block& iOne, const Axis::Block& iOther) {
    return iOne.first < iOther.first + iOther.span && iOther.first < iOne.first + iOne.span;
}

// The place of a child that is attached in one direction only, in the other one.
int FirstFreeCell(const std::vector<Place>& iPlaces, std::size_t iChild, Direction iAttached,
                  Direction iOther) {
    const Axis::Block& line = iPlaces[iChild].*iAttached;
    Axis::Block cell = {0, 1, true, false};
    for (std::size_t sibling = 0; sibling < iChild; ++sibling) {
        const Axis::Block& taken = iPlaces[sibling].*iOther;
        if (Overlap(iPlaces[sibling].*iAttached, line))
            cell.first = std::max(cell.first, taken.first + taken.span);
    }
    const auto takesTheCell = [&](const Place& iSibling) {
        return Overlap(iSibling.*iAttached, line) && Overlap(iSibling.*iOther, cell);
    };
    while (std::any_of(iPlaces.begin(), iPlaces.end(), takesTheCell))
        ++cell.first;
    return cell.first;
}

// The cell that a child without any attachment gets in one direction: it follows the container's default
// orientation.
Axis::Block PlaceFree(Axis& ioAxis, bool iRunsAlong) {
    return iRunsAlong ? ioAxis.PlaceBehind() : ioAxis.PlaceFirst();
}

bool ShareCells(const Cell& iOne, const Cell& iOther) {
    return iOne.row < iOther.row + iOther.rowSpan && iOther.row < iOne.row + iOne.rowSpan &&
           iOne.column < iOther.column + iOther.columnSpan && iOther.column < iOne.column + iOne.columnSpan;
}

bool IsTiedTo(const Cell& iCell, unsigned int iSides) {
    return (iCell.sides & (CATGRID_LEFT | CATGRID_RIGHT)) == iSides;
}

// Whether a child that only ends on a line covers the end of one that spans up to the same line.
bool CoversTheEndOf(const Cell& iShort, const Cell& iLong) {
    return IsTiedTo(iLong, CATGRID_LEFT | CATGRID_RIGHT) &&
           iLong.column + iLong.columnSpan == iShort.column + iShort.columnSpan && ShareCells(iShort, iLong);
}

// Gives a child that would cover the end of another one a column of its own between that one and the line.
void MakeRoomFor(Cell& ioCell, LayoutPlan& ioPlan) {
    const int column = ioCell.column + ioCell.columnSpan;
    for (Cell& other : ioPlan.cells) {
        if (&other == &ioCell)
            continue;
        const int end = other.column + other.columnSpan;
        if (other.column >= column)
            ++other.column;
        else if (end > column ||
                 (end == column && (other.sides & CATGRID_RIGHT) != 0 && !CoversTheEndOf(ioCell, other)))
            ++other.columnSpan;
    }
    ioCell.column = column;
    ioCell.columnSpan = 1;
    ioPlan.columnStretches.insert(ioPlan.columnStretches.begin() + column, false);
    ++ioPlan.columns;
}

void KeepEndsApart(LayoutPlan& ioPlan) {
    for (Cell& cell : ioPlan.cells) {
        const auto isCovered = [&cell](const Cell& iOther) { return CoversTheEndOf(cell, iOther); };
        if (IsTiedTo(cell, CATGRID_RIGHT) && std::any_of(ioPlan.cells.begin(), ioPlan.cells.end(), isCovered))
            MakeRoomFor(cell, ioPlan);
    }
}

// The end of a child that lies across: the next child in its rows, or the end of the columns.
int EndAcross(const Cell& iCell, const LayoutPlan& iPlan) {
    Cell rest = iCell;
    rest.columnSpan = iPlan.columns - iCell.column;
    int end = iPlan.columns;
    for (const Cell& other : iPlan.cells)
        if (other.column > iCell.column && ShareCells(rest, other))
            end = std::min(end, other.column);
    return end;
}

// Lets the children that are attached in rows only lie across. What they need beyond the columns goes to the
// one that stretches, else to the last one where everything keeps to its left side, else to one more.
void LayAcross(const std::vector<Place>& iPlaces, LayoutPlan& ioPlan) {
    std::vector<Cell*> upToTheEnd;
    for (std::size_t index = 0; index < iPlaces.size(); ++index) {
        if (iPlaces[index].isInColumns || !iPlaces[index].isInRows)
            continue;
        Cell& cell = ioPlan.cells[index];
        const int end = EndAcross(cell, ioPlan);
        cell.columnSpan = end - cell.column;
        if (end == ioPlan.columns)
            upToTheEnd.push_back(&cell);
    }
    std::vector<bool>& stretches = ioPlan.columnStretches;
    if (upToTheEnd.empty() || std::find(stretches.begin(), stretches.end(), true) != stretches.end())
        return;
    const bool keepsLeft = std::all_of(ioPlan.cells.begin(), ioPlan.cells.end(), [&](const Cell& iCell) {
        return iCell.column + iCell.columnSpan < ioPlan.columns || IsTiedTo(iCell, CATGRID_LEFT);
    });
    if (keepsLeft) {
        stretches.back() = true;
        return;
    }
    for (Cell* cell : upToTheEnd)
        ++cell->columnSpan;
    stretches.push_back(true);
    ++ioPlan.columns;
}

LayoutPlan PlanTabulations(const CATDialog& iContainer, const std::vector<CATDialog*>& iChildren) {
    Axis columns(&Inspector::ColumnsOf);
    Axis rows(&Inspector::RowsOf);
    columns.CollectLines(iChildren);
    rows.CollectLines(iChildren);
    std::vector<Place> places(iChildren.size());
    for (std::size_t index = 0; index < iChildren.size(); ++index) {
        Place& place = places[index];
        place.isInColumns = columns.IsAttached(*iChildren[index]);
        place.isInRows = rows.IsAttached(*iChildren[index]);
        if (place.isInColumns)
            place.columns = columns.PlaceAttached(*iChildren[index]);
        if (place.isInRows)
            place.rows = rows.PlaceAttached(*iChildren[index]);
    }
    const bool isHorizontal = Inspector::DefaultOrientation(iContainer) == Horizontal;
    LayoutPlan plan;
    plan.cells.reserve(iChildren.size());
    for (std::size_t index = 0; index < iChildren.size(); ++index) {
        Place& place = places[index];
        if (!place.isInColumns && !place.isInRows) {
            place.columns = PlaceFree(columns, isHorizontal);
            place.rows = PlaceFree(rows, !isHorizontal);
        } else if (!place.isInColumns) {
            place.columns = columns.PlaceAt(FirstFreeCell(places, index, &Place::rows, &Place::columns));
        } else if (!place.isInRows) {
            place.rows = rows.PlaceAt(FirstFreeCell(places, index, &Place::columns, &Place::rows));
        }
        plan.cells.push_back(Cell{iChildren[index], place.rows.first, place.columns.first, place.rows.span,
                                  place.columns.span, SidesOf(place.columns, place.rows)});
    }
    plan.rows = rows.Count();
    plan.columns = columns.Count();
    plan.rowStretches = rows.TakeStretches();
    plan.columnStretches = columns.TakeStretches();
    KeepEndsApart(plan);
    LayAcross(places, plan);
    return plan;
}

// Children without constraints follow below, one a row.
LayoutPlan PlanGrid(const CATDialog& iContainer, const std::vector<CATDialog*>& iChildren) {
    LayoutPlan plan;
    for (CATDialog* child : iChildren) {
        const CATDlgGridConstraints place = Inspector::GridConstraints(*child);
        const Cell cell{child,
                        std::max<int>(0, place.Row),
                        std::max<int>(0, place.Column),
                        std::max<int>(1, place.V_Span),
                        std::max<int>(1, place.H_Span),
                        place.Justification};
        plan.columns = std::max(plan.columns, cell.column + cell.columnSpan);
        if (Inspector::HasGridConstraints(*child))
            plan.rows = std::max(plan.rows, cell.row + cell.rowSpan);
        plan.cells.push_back(cell);
    }
    for (Cell& cell : plan.cells)
        if (!Inspector::HasGridConstraints(*cell.child))
            cell.row = plan.rows++;
    for (int row = 0; row < plan.rows; ++row)
        plan.rowStretches.push_back(Inspector::IsGridRowResizable(iContainer, row));
    for (int column = 0; column < plan.columns; ++column)
        plan.columnStretches.push_back(Inspector::IsGridColumnResizable(iContainer, column));
    return plan;
}

// The pages of a tab container lie behind one another.
LayoutPlan PlanPages(const std::vector<CATDialog*>& iPages) {
    LayoutPlan plan;
    plan.rows = 1;
    plan.columns = 1;
    plan.rowStretches = {true};
    plan.columnStretches = {true};
    for (CATDialog* page : iPages)
        plan.cells.push_back(Cell{page, 0, 0, 1, 1, CATGRID_4SIDES});
    return plan;
}

} // namespace

const Cell* LayoutPlan::CellOf(const CATDialog& iChild) const {
    const auto found = std::find_if(cells.begin(), cells.end(),
                                    [&iChild](const Cell& iCell) { return iCell.child == &iChild; });
    return found == cells.end() ? nullptr : &*found;
}

bool LayoutPlan::IsLeftOf(const CATDialog& iLeft, const CATDialog& iRight) const {
    const Cell* const left = CellOf(iLeft);
    const Cell* const right = CellOf(iRight);
    return left != nullptr && right != nullptr && left->column + left->columnSpan <= right->column;
}

bool LayoutPlan::IsAbove(const CATDialog& iUpper, const CATDialog& iLower) const {
    const Cell* const upper = CellOf(iUpper);
    const Cell* const lower = CellOf(iLower);
    return upper != nullptr && lower != nullptr && upper->row + upper->rowSpan <= lower->row;
}

LayoutPlan PlanLayout(const CATDialog& iContainer) {
    const std::vector<CATDialog*> children = ShownChildren(iContainer);
    if (children.empty())
        return LayoutPlan();
    if (Inspector::HoldsPages(iContainer))
        return PlanPages(children);
    if ((Inspector::Style(iContainer) & CATDlgGridLayout) != 0)
        return PlanGrid(iContainer, children);
    return PlanTabulations(iContainer, children);
}

} // namespace host
