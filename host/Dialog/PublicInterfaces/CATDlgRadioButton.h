#ifndef CATDlgRadioButton_H
#define CATDlgRadioButton_H

#include "CATDlgControl.h"

// One of several choices: the radio buttons of a container exclude one another. All may be unchecked at
// start.
class CATDlgRadioButton : public CATDlgControl {
    CATDeclareClass;

  public:
    CATDlgRadioButton(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    CATULong GetState() const;
    // CATDlgCheck or CATDlgUncheck; any other value, and the state that holds already, change nothing and
    // send nothing. Checking unchecks the button of the group that was checked before; both states hold
    // before the unchecked one is notified and then this one.
    void SetState(CATULong iState, int iNotify = CATDlgNoNotification);
    // Sent when the button is checked and when it is unchecked.
    CATNotification* GetRadBModifyNotification();

  private:
    CATDlgRadioButton* CheckedOfGroup() const;
    void Change(bool iChecked);

    bool _isChecked = false;
};

#endif
