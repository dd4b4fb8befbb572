#include "CATDlgContainer.h"

CATImplementClass(CATDlgContainer, Implementation, CATDlgBox, CATNull);

CATDlgContainer::CATDlgContainer(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgBox(iParent, iName, iStyle) {}
