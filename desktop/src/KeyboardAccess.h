#ifndef desktop_KeyboardAccess_H
#define desktop_KeyboardAccess_H

#include "Mnemonics.h"
#include "host/LayoutPlan.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <vector>

class CATDialog;
class QWidget;

namespace desktop {

class LabelPeer;
class Peer;
class PeerTree;
class WindowPeer;

// Makes everything in a window reachable without mouse and named for who does not see it: a label stands for
// the field beside or below it, captions get mnemonics, and every field has an accessible name.
class KeyboardAccess {
  public:
    KeyboardAccess(const PeerTree& iTree, WindowPeer& ioWindow);
    void Provide();

  private:
    void Collect(const CATDialog& iContainer);
    void PairLabels(const CATDialog& iContainer);
    Peer* FirstThingIn(const std::vector<host::Cell>& iCells) const;
    Peer* FirstFieldIn(CATDialog& ioWidget) const;
    void Pair(LabelPeer& ioLabel, const Peer& iField);
    void ShowCaptions();
    void ShowCaptionsOn(const CATDialog* iPage, Mnemonics iMnemonics);
    void NameFields() const;
    QString NameOf(const Peer& iPeer) const;

    const PeerTree& _tree;
    WindowPeer& _window;
    std::vector<Peer*> _peers;                       // of the window, parents before children
    QHash<const QWidget*, const LabelPeer*> _labels; // by the field that they stand for
};

} // namespace desktop

#endif
