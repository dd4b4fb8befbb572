#include "ContainerPeer.h"

#include "CATDlgContainer.h"
#include "GridArranger.h"

namespace desktop {

ContainerPeer::ContainerPeer(PeerTree& ioTree, CATDlgContainer& ioContainer, QWidget* iParent)
    : Peer(ioTree, ioContainer, new QWidget(iParent)) {}

void ContainerPeer::Arrange() {
    GridArranger(Tree(), *Dialog(), *Widget()).Arrange(GridArranger::NoMargins);
}

void ContainerPeer::ShowState(unsigned int iKinds) {
    if ((iKinds & host::ChangeGeometry) == 0)
        return;
    int height = 0;
    int width = 0;
    Dialog()->GetRectDimensions(nullptr, nullptr, &height, &width);
    Widget()->setMinimumSize(width, height);
}

} // namespace desktop
