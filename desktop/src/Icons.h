#ifndef desktop_Icons_H
#define desktop_Icons_H

#include <QtGui/QIcon>

class CATDialog;

namespace desktop {

class PeerTree;

// The icon of a host widget in its four states. Null when it has none, or when its file is nowhere: that is
// told once for each name, and the widget shows its title.
QIcon IconOf(PeerTree& ioTree, const CATDialog& iWidget);

// The size in which the widget's icon was drawn; empty when it has none.
QSize NaturalSizeOfIcon(const CATDialog& iWidget);

} // namespace desktop

#endif
