#ifndef desktop_PlaceholderPeer_H
#define desktop_PlaceholderPeer_H

#include "Peer.h"

namespace desktop {

// Stands where a widget is whose kind has no peer, and says so. Its children are not shown.
class PlaceholderPeer : public Peer {
  public:
    PlaceholderPeer(PeerTree& ioTree, CATDialog& ioDialog, QWidget* iParent);

  protected:
    void ShowState(unsigned int iKinds) override;
};

} // namespace desktop

#endif
