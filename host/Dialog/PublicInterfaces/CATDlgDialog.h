#ifndef CATDlgDialog_H
#define CATDlgDialog_H

#include "CATDlgWindow.h"

// Standard buttons and kind of a dialog; style 0 has OK, Cancel and Help.
const CATDlgStyle CATDlgWndModal = 0x200;
const CATDlgStyle CATDlgWndOK = 0x400;
const CATDlgStyle CATDlgWndCANCEL = 0x800;
const CATDlgStyle CATDlgWndAPPLY = 0x1000;
const CATDlgStyle CATDlgWndHELP = 0x2000;
const CATDlgStyle CATDlgWndNoButton = 0x4000;
const CATDlgStyle CATDlgWndCLOSE = 0x8000;
// Bits that the dialogs of the add-in carry and that have no effect here.
const CATDlgStyle CATDlgWndBit40000 = 0x40000;
const CATDlgStyle CATDlgWndBit200000 = 0x200000;
const CATDlgStyle CATDlgWndBit400000 = 0x400000;

// A dialog window with standard buttons. No button closes it: the command that hears of it hides or destroys
// it.
class CATDlgDialog : public CATDlgWindow {
    CATDeclareClass;

  public:
    CATDlgDialog(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);
    CATDlgDialog(const CATDlgDialog& iOther) = default;
    CATDlgDialog& operator=(const CATDlgDialog& iOther) = default;
    ~CATDlgDialog() override;

    // The standard button that Enter presses: its style bit, or 0 for none. Starts with OK where there is
    // one.
    void SetDefaultButton(CATULong iButton);
    CATULong GetDefaultButton() const { return _defaultButton; }

    // Sent when a person presses the button.
    CATNotification* GetDiaOKNotification();
    CATNotification* GetDiaCANCELNotification();
    CATNotification* GetDiaAPPLYNotification();
    CATNotification* GetDiaCLOSENotification();
    CATNotification* GetDiaHELPNotification();

    // The typing field in the application's status bar: whether it serves this dialog, how often the dialog
    // has refreshed it, and who has the focus. One dialog at most has it; releasing it without having it is
    // harmless.
    void SetPowerInputLink(int iLinked);
    void UpdatePowerInput();
    void TakePowerInputFocus();
    void ReleasePowerInputFocus();

  private:
    friend class host::Inspector;

    CATULong _defaultButton;
    int _powerInputLinked = 0;
    int _powerInputUpdates = 0;
};

#endif
