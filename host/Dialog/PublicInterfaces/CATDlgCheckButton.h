#ifndef CATDlgCheckButton_H
#define CATDlgCheckButton_H

#include "CATDlgControl.h"

// A choice of its own.
class CATDlgCheckButton : public CATDlgControl {
    CATDeclareClass;

  public:
    CATDlgCheckButton(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    CATULong GetState() const;
    // CATDlgCheck or CATDlgUncheck; any other value, and the state that holds already, change nothing and
    // send nothing.
    void SetState(CATULong iState, int iNotify = CATDlgNoNotification);
    // Sent when the button is checked and when it is unchecked.
    CATNotification* GetChkBModifyNotification();

  private:
    bool _isChecked = false;
};

#endif
