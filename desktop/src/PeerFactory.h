#ifndef desktop_PeerFactory_H
#define desktop_PeerFactory_H

class CATDialog;

namespace desktop {

class Peer;
class PeerTree;

// Makes the peer for the kind of ioDialog: a window, or a part of iContainer, the peer of its parent. Null
// for what is shown in no window of its own and has no container that takes children.
Peer* MakePeer(PeerTree& ioTree, CATDialog& ioDialog, Peer* iContainer);

} // namespace desktop

#endif
