#ifndef desktop_TabPagePeer_H
#define desktop_TabPagePeer_H

#include "Peer.h"

class CATDlgTabPage;

namespace desktop {

// A page and its tab. Hidden it has no tab; disabled its tab and content are greyed.
class TabPagePeer : public Peer {
  public:
    TabPagePeer(PeerTree& ioTree, CATDlgTabPage& ioPage, QWidget* iParent);

    QWidget* Inside() const override { return Widget(); }
    void Arrange() override;
    QString Caption() const override;
    void ShowCaption(int iMnemonic) override;
    bool TakesMnemonic() const override { return true; }
    void Detach() override;

    // Shows on the tab, if there is one, what the host holds of the page.
    void ShowTab();

  protected:
    void ShowState(unsigned int iKinds) override;
    void ShowVisibility() override;
};

} // namespace desktop

#endif
