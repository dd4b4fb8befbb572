#ifndef desktop_ButtonPeer_H
#define desktop_ButtonPeer_H

#include "Peer.h"

class QAbstractButton;

namespace desktop {

// What buttons of all kinds share: they are one line high, and draw their title.
class ButtonPeer : public Peer {
  public:
    ButtonPeer(PeerTree& ioTree, CATDialog& ioDialog, QAbstractButton* iButton);

    QWidget* Field() const override { return Widget(); }
    QString Caption() const override;
    void ShowCaption(int iMnemonic) override;
    bool IsOneLine() const override { return true; }

  protected:
    QAbstractButton& Button() const;
};

} // namespace desktop

#endif
