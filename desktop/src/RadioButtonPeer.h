#ifndef desktop_RadioButtonPeer_H
#define desktop_RadioButtonPeer_H

#include "Peer.h"

class CATDlgRadioButton;
class QRadioButton;

namespace desktop {

// One of several choices. The host decides which of a group is checked; the button only follows.
class RadioButtonPeer : public Peer {
  public:
    RadioButtonPeer(PeerTree& ioTree, CATDlgRadioButton& ioButton, QWidget* iParent);

    QWidget* Field() const override { return Widget(); }
    QString Caption() const override;
    void ShowCaption(int iMnemonic) override;
    bool IsOneLine() const override { return true; }

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    void Check();
    QRadioButton& Button() const;

    CATDlgRadioButton& _button;
};

} // namespace desktop

#endif
