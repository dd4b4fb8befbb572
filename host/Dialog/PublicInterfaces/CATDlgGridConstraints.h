#ifndef CATDlgGridConstraints_H
#define CATDlgGridConstraints_H

#include "CATDlgDefine.h"

// Place of a child in a grid: its top left cell, counted from 0, the cells it covers and the cell sides it is
// tied to.
class CATDlgGridConstraints {
  public:
    CATDlgGridConstraints() = default;
    CATDlgGridConstraints(short iRow, short iColumn, short iHorizontalSpan, short iVerticalSpan,
                          unsigned int iJustification)
        : Row(iRow), Column(iColumn), H_Span(iHorizontalSpan), V_Span(iVerticalSpan),
          Justification(iJustification) {}

    short Row = 0;
    short Column = 0;
    short H_Span = 0;
    short V_Span = 0;
    unsigned int Justification = CATGRID_LEFT | CATGRID_TOP;
};

#endif
