#include "ViewerPeer.h"

#include "CATViewer.h"
#include "PictureView.h"

namespace desktop {

ViewerPeer::ViewerPeer(PeerTree& ioTree, CATViewer& ioViewer, QWidget* iParent)
    : Peer(ioTree, ioViewer, new PictureView(ioViewer, iParent)), _view(static_cast<PictureView*>(Widget())) {
}

void ViewerPeer::Detach() {
    _view->Forget();
    Peer::Detach();
}

void ViewerPeer::ShowState(unsigned int iKinds) {
    if ((iKinds & host::ChangeContent) != 0)
        _view->update();
}

} // namespace desktop
