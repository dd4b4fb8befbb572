#ifndef PowerInput_H
#define PowerInput_H

class CATDlgDialog;

namespace host {

// Which dialog has the focus of the application's typing field; null for none.
class PowerInput {
  public:
    static const CATDlgDialog* Owner();
    static void Take(const CATDlgDialog& iDialog);
    // Without effect when the dialog is not the owner.
    static void Release(const CATDlgDialog& iDialog);
};

} // namespace host

#endif
