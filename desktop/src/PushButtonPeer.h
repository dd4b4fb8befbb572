#ifndef desktop_PushButtonPeer_H
#define desktop_PushButtonPeer_H

#include "Peer.h"

class CATDlgPushButton;
class QPushButton;

namespace desktop {

// A push button, with its icon alone where there is one.
class PushButtonPeer : public Peer {
  public:
    PushButtonPeer(PeerTree& ioTree, CATDlgPushButton& ioButton, QWidget* iParent);

    QWidget* Field() const override { return Widget(); }
    QString Caption() const override;
    void ShowCaption(int iMnemonic) override;
    bool IsOneLine() const override;

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    QPushButton& Button() const;

    CATDlgPushButton& _button;
};

} // namespace desktop

#endif
