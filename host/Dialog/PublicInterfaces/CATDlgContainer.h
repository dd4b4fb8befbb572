#ifndef CATDlgContainer_H
#define CATDlgContainer_H

#include "CATDlgBox.h"

// A box without border whose natural size is the extent of its rectangle.
class CATDlgContainer : public CATDlgBox {
    CATDeclareClass;

  public:
    CATDlgContainer(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);
};

#endif
