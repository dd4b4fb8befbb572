#ifndef desktop_PushButtonPeer_H
#define desktop_PushButtonPeer_H

#include "ButtonPeer.h"

class CATDlgPushButton;

namespace desktop {

// A push button, with its icon alone where there is one.
class PushButtonPeer : public ButtonPeer {
  public:
    PushButtonPeer(PeerTree& ioTree, CATDlgPushButton& ioButton, QWidget* iParent);

    QString Caption() const override;
    bool IsOneLine() const override;

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    CATDlgPushButton& _button;
};

} // namespace desktop

#endif
