#ifndef CATDlgWindow_H
#define CATDlgWindow_H

#include "CATDialog.h"

// Base of everything that has a window of its own. Windows start hidden.
class CATDlgWindow : public CATDialog {
    CATDeclareClass;

  public:
    CATDlgWindow(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);
    CATDlgWindow(const CATDlgWindow& iOther);
    CATDlgWindow& operator=(const CATDlgWindow& iOther);
    ~CATDlgWindow() override;

    // Sent when a person moves, resizes or closes the window; a move by program sends nothing.
    CATNotification* GetWindMoveNotification();
    CATNotification* GetWindSizeNotification();
    CATNotification* GetWindCloseNotification();
};

#endif
