#ifndef desktop_RadioButtonPeer_H
#define desktop_RadioButtonPeer_H

#include "ButtonPeer.h"

class CATDlgRadioButton;

namespace desktop {

// One of several choices. The host decides which of a group is checked; the button only follows.
class RadioButtonPeer : public ButtonPeer {
  public:
    RadioButtonPeer(PeerTree& ioTree, CATDlgRadioButton& ioButton, QWidget* iParent);

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    void Check();

    CATDlgRadioButton& _button;
};

} // namespace desktop

#endif
