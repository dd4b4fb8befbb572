#include "CATDlgTabPage.h"

CATImplementClass(CATDlgTabPage, Implementation, CATDlgBox, CATNull);

CATDlgTabPage::CATDlgTabPage(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgBox(iParent, iName, iStyle) {
    DrawTitle();
}
