#ifndef desktop_FramePeer_H
#define desktop_FramePeer_H

#include "Peer.h"

class CATDlgFrame;

namespace desktop {

// A group of widgets: a box with its title, a box without, or nothing but the widgets, which then line up
// with those around the group.
class FramePeer : public Peer {
  public:
    FramePeer(PeerTree& ioTree, CATDlgFrame& ioFrame, QWidget* iParent);

    QWidget* Inside() const override { return Widget(); }
    void Arrange() override;

  protected:
    void ShowState(unsigned int iKinds) override;
};

} // namespace desktop

#endif
