#ifndef CATDlgLabel_H
#define CATDlgLabel_H

#include "CATDlgControl.h"

// A text, its title, or an icon; an icon alone where there are both. It sends nothing.
class CATDlgLabel : public CATDlgControl {
    CATDeclareClass;

  public:
    CATDlgLabel(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);
};

#endif
