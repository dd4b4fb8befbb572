#ifndef CATDlgBox_H
#define CATDlgBox_H

#include "CATDialog.h"

// Base of the containers that arrange widgets within a window.
class CATDlgBox : public CATDialog {
    CATDeclareClass;

  public:
    CATDlgBox(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);
};

#endif
