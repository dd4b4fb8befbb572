#ifndef CATDlgPushButton_H
#define CATDlgPushButton_H

#include "CATDlgControl.h"

// Drawn flat.
const CATDlgStyle CATDlgPusNoShadow = 0x80000;

// A button with its title or icon.
class CATDlgPushButton : public CATDlgControl {
    CATDeclareClass;

  public:
    CATDlgPushButton(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    // Sent when a person presses the button.
    CATNotification* GetPushBActivateNotification();
};

#endif
