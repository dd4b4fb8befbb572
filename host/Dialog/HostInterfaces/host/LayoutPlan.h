#ifndef host_LayoutPlan_H
#define host_LayoutPlan_H

#include "CATDlgDefine.h"

#include <vector>

class CATDialog;

namespace host {

// Where one child of a container goes: a block of cells and the cell sides it is tied to.
struct Cell {
    CATDialog* child = nullptr;
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
    unsigned int sides =
        CATGRID_LEFT | CATGRID_TOP; // CATGRID_... bits; opposite sides together stretch the child
};

// The arrangement of a container's shown children: rows and columns of cells.
//
// Tabulation lines become the borders between columns and rows; a child with one side attached keeps its
// natural size in the cell beside the line, one with two sides attached covers the cells between them.
// Columns and rows that end on a stretching line take the surplus space. A child that only ends on a vertical
// line stands between that line and a child that spans up to it.
//
// A child that is attached in one direction only stays in its own line: in the other direction it gets the
// first free cell behind those siblings in this line that were created before it. One that is attached in
// rows only belongs to no column: it lies across the free cells that follow too, and what it needs beyond the
// columns moves nothing in the other rows. Children without any attachment follow in their order of creation
// along the default orientation, behind the attached ones. None of these covers another child.
struct LayoutPlan {
    int rows = 0;
    int columns = 0;
    std::vector<bool> rowStretches;    // one entry a row
    std::vector<bool> columnStretches; // one entry a column
    std::vector<Cell> cells;           // in order of creation

    // The cell of a child, or null.
    const Cell* CellOf(const CATDialog& iChild) const;
    // Whether one child lies wholly left of or above another; false when either is not placed.
    bool IsLeftOf(const CATDialog& iLeft, const CATDialog& iRight) const;
    bool IsAbove(const CATDialog& iUpper, const CATDialog& iLower) const;
};

// Arranges the shown children of a container. A pure function of the tree.
LayoutPlan PlanLayout(const CATDialog& iContainer);

} // namespace host

#endif
