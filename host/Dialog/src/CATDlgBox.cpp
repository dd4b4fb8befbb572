#include "CATDlgBox.h"

CATImplementClass(CATDlgBox, Implementation, CATDialog, CATNull);

CATDlgBox::CATDlgBox(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDialog(iParent, iName, iStyle) {}
