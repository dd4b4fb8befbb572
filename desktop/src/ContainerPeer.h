#ifndef desktop_ContainerPeer_H
#define desktop_ContainerPeer_H

#include "Peer.h"

class CATDlgContainer;

namespace desktop {

// A box without border whose rectangle tells its natural size; without children it keeps others apart.
class ContainerPeer : public Peer {
  public:
    ContainerPeer(PeerTree& ioTree, CATDlgContainer& ioContainer, QWidget* iParent);

    QWidget* Inside() const override { return Widget(); }
    void Arrange() override;

  protected:
    void ShowState(unsigned int iKinds) override;
};

} // namespace desktop

#endif
