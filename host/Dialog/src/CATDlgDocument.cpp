#include "CATDlgDocument.h"

#include "WidgetEvents.h"

CATImplementClass(CATDlgDocument, Implementation, CATDlgWindow, CATNull);

CATDlgDocument::CATDlgDocument(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgWindow(iParent, iName, iStyle) {
    SetVisibility(CATDlgShow);
}

CATNotification* CATDlgDocument::GetEscapeNotification() {
    return Event<CATDlgEscapeNotification>();
}
