#ifndef CATDlgDefine_H
#define CATDlgDefine_H

#include "CATDataType.h"

// Values that all widgets share. Styles are bit sets; 0 is each widget's default.

typedef CATULong CATDlgStyle;

// Visibility and sensitivity.
const CATULong CATDlgShow = 2;
const CATULong CATDlgHide = 4;
const CATULong CATDlgEnable = 8;
const CATULong CATDlgDisable = 16;

// States of radio and check buttons.
const CATULong CATDlgCheck = 0x40000;
const CATULong CATDlgUncheck = 0x80000;

// How a line or cell is written: as a new one at the end, or in place of an existing one.
const CATULong CATDlgDataAdd = 64;
const CATULong CATDlgDataModify = 128;

// Last argument of operations that can report a change as if a person had made it.
const int CATDlgNoNotification = 0;
const int CATDlgWithNotification = 1;

// Grid layout of a document, dialog, frame or tab page.
const CATDlgStyle CATDlgGridLayout = 1;

// Direction in which children without attachment follow one another.
enum CATDlgOrientation { Horizontal = 0, Vertical = 1 };

// Which side of a child lies on a tabulation line. A child that is attached on one side keeps its natural
// size; one that is attached on two sides spans between the lines.
enum CATDlgAttachment {
    CATDlgTopOrLeft = 1,            // the leading side
    CATDlgCenter = 2,               // the centre
    CATDlgRightOrBottom = 3,        // the trailing side; the line follows the content
    CATDlgRightOrBottomRelative = 4 // the trailing side; the line follows the container, the child stretches
};

// Cell sides to which a child of a grid is tied.
const unsigned int CATGRID_CENTER = 1;
const unsigned int CATGRID_LEFT = 2;
const unsigned int CATGRID_RIGHT = 4;
const unsigned int CATGRID_TOP = 8;
const unsigned int CATGRID_BOTTOM = 16;
const unsigned int CATGRID_4SIDES = CATGRID_LEFT | CATGRID_RIGHT | CATGRID_TOP | CATGRID_BOTTOM;

#endif
