#ifndef CATDlgDocument_H
#define CATDlgDocument_H

#include "CATDlgWindow.h"

// The application's main window. It is there without being drawn and is always shown.
class CATDlgDocument : public CATDlgWindow {
    CATDeclareClass;

  public:
    CATDlgDocument(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    // Sent when a person presses Escape and no dialog takes the key.
    CATNotification* GetEscapeNotification();
};

#endif
