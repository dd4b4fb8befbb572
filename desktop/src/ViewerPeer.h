#ifndef desktop_ViewerPeer_H
#define desktop_ViewerPeer_H

#include "Peer.h"

class CATViewer;

namespace desktop {

class PictureView;

// A viewer with its picture.
class ViewerPeer : public Peer {
  public:
    ViewerPeer(PeerTree& ioTree, CATViewer& ioViewer, QWidget* iParent);

    void Detach() override;
    QWidget* Named() const override { return Widget(); }

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    PictureView* _view;
};

} // namespace desktop

#endif
