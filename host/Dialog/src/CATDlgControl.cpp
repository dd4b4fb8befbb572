#include "CATDlgControl.h"

CATImplementClass(CATDlgControl, Implementation, CATDialog, CATNull);

CATDlgControl::CATDlgControl(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDialog(iParent, iName, iStyle) {
    TakeNoChildren();
}
