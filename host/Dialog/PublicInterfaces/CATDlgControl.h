#ifndef CATDlgControl_H
#define CATDlgControl_H

#include "CATDialog.h"

// Base of the widgets that show or take one thing. Visible sizes are recorded as given, 0 included.
class CATDlgControl : public CATDialog {
    CATDeclareClass;

  public:
    CATDlgControl(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);
};

#endif
