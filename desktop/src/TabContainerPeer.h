#ifndef desktop_TabContainerPeer_H
#define desktop_TabContainerPeer_H

#include "Peer.h"

class CATDlgTabContainer;

namespace desktop {

class TabBox;

// Pages behind one another. Shown pages have a tab, in their order of creation; the host decides which one is
// in front.
class TabContainerPeer : public Peer {
  public:
    TabContainerPeer(PeerTree& ioTree, CATDlgTabContainer& ioContainer, QWidget* iParent);

    QWidget* Inside() const override { return Widget(); }
    void Arrange() override;
    // The row of tabs.
    QWidget* Field() const override;

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    // The person has brought another tab forward.
    void Follow(int iTab);
    void ShowFront();

    CATDlgTabContainer& _container;
    TabBox* _box;
    bool _isShowing = false; // what happens to the tabs is no person's doing
};

} // namespace desktop

#endif
