#include "CATDlgLabel.h"

CATImplementClass(CATDlgLabel, Implementation, CATDlgControl, CATNull);

CATDlgLabel::CATDlgLabel(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgControl(iParent, iName, iStyle) {
    DrawTitle();
}
