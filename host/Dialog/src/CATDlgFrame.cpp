#include "CATDlgFrame.h"

CATImplementClass(CATDlgFrame, Implementation, CATDlgBox, CATNull);

CATDlgFrame::CATDlgFrame(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgBox(iParent, iName, iStyle) {
    DrawTitle((iStyle & (CATDlgFraNoFrame | CATDlgFraNoTitle)) == 0);
}
