#ifndef desktop_CheckButtonPeer_H
#define desktop_CheckButtonPeer_H

#include "Peer.h"

class CATDlgCheckButton;
class QCheckBox;

namespace desktop {

// A choice of its own.
class CheckButtonPeer : public Peer {
  public:
    CheckButtonPeer(PeerTree& ioTree, CATDlgCheckButton& ioButton, QWidget* iParent);

    QWidget* Field() const override { return Widget(); }
    QString Caption() const override;
    void ShowCaption(int iMnemonic) override;
    bool IsOneLine() const override { return true; }

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    QCheckBox& Button() const;

    CATDlgCheckButton& _button;
};

} // namespace desktop

#endif
