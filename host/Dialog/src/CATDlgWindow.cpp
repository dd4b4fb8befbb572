#include "CATDlgWindow.h"

#include "WidgetEvents.h"
#include "WidgetTree.h"

CATImplementClass(CATDlgWindow, Implementation, CATDialog, CATNull);

CATDlgWindow::CATDlgWindow(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDialog(iParent, iName, iStyle) {
    StandAlone();
    DrawTitle();
    SetVisibility(CATDlgHide);
    host::WidgetTree::JoinWindow(*this);
}

CATDlgWindow::CATDlgWindow(const CATDlgWindow& iOther) : CATDialog(iOther) {
    host::WidgetTree::JoinWindow(*this);
}

CATDlgWindow& CATDlgWindow::operator=(const CATDlgWindow&) = default;

CATDlgWindow::~CATDlgWindow() {
    host::WidgetTree::LeaveWindow(*this);
}

CATNotification* CATDlgWindow::GetWindMoveNotification() {
    return Event<CATDlgWindMoveNotification>();
}

CATNotification* CATDlgWindow::GetWindSizeNotification() {
    return Event<CATDlgWindSizeNotification>();
}

CATNotification* CATDlgWindow::GetWindCloseNotification() {
    return Event<CATDlgWindCloseNotification>();
}
