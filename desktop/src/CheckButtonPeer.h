#ifndef desktop_CheckButtonPeer_H
#define desktop_CheckButtonPeer_H

#include "ButtonPeer.h"

class CATDlgCheckButton;

namespace desktop {

// A choice of its own.
class CheckButtonPeer : public ButtonPeer {
  public:
    CheckButtonPeer(PeerTree& ioTree, CATDlgCheckButton& ioButton, QWidget* iParent);

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    CATDlgCheckButton& _button;
};

} // namespace desktop

#endif
