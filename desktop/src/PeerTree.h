#ifndef desktop_PeerTree_H
#define desktop_PeerTree_H

#include "host/DialogObserver.h"

#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QTimer>

#include <unordered_map>
#include <unordered_set>
#include <vector>

class CATDialog;

namespace desktop {

class Peer;
class WindowPeer;

// All peers: makes, updates and removes them as the host's widgets come and go.
class PeerTree {
  public:
    PeerTree();
    ~PeerTree();
    PeerTree(const PeerTree&) = delete;
    PeerTree& operator=(const PeerTree&) = delete;

    // Shows the windows that the host holds already.
    void AddAll();
    // Shows what has come and changed.
    void Apply(const host::DialogChanges& iChanges);
    // Takes leave of a widget that is being destroyed.
    void Remove(const CATDialog& iWidget);
    void RefreshAll();

    // Null when the host widget is not shown.
    Peer* PeerOf(const CATDialog& iWidget) const;

    // The peer in whose field a text is being typed that the host does not hold yet; one at most.
    void NoteTyping(Peer& ioPeer) { _typing = &ioPeer; }
    void NoteTypingEnded(const Peer& iPeer);
    Peer* Typing() const { return _typing; }
    // Passes that text on; not when iExcept is the one.
    void CommitText(const Peer* iExcept);
    // Passes on what the person has done and the host does not know yet, before something else is done.
    void CommitAll(const Peer* iExcept);
    // The first field in a widget that a person can reach and that holds a text which is not taken; null for
    // none.
    Peer* FirstRefused(const CATDialog& iContainer) const;
    // Whether the windows are being brought up to date, so that what happens in them is no person's doing.
    bool IsApplying() const { return _isApplying; }

    // Writes a warning to the log, the same one once only.
    void WarnOnce(const QString& iText);

  private:
    void AddWithChildren(CATDialog& ioWidget);
    void Add(CATDialog& ioWidget);
    void Refresh(CATDialog& ioWidget, unsigned int iKinds);
    void NoteContentOf(CATDialog* iContainer);
    void NoteWindowOf(const CATDialog& iWidget);
    void Settle();
    void Present(WindowPeer& ioWindow);
    void CommitTextLater();

    QObject _owner; // parent of all peers, of those that wait for their deletion too
    std::unordered_map<const CATDialog*, Peer*> _peers;
    std::vector<WindowPeer*> _windows;   // in order of creation
    std::vector<CATDialog*> _unarranged; // containers whose children have to be placed again
    std::unordered_set<CATDialog*> _isUnarranged;
    std::unordered_set<const CATDialog*> _changedWindows; // with new widgets, texts or places
    QSet<QString> _warnings;
    QTimer _commitLater;
    Peer* _typing = nullptr;
    bool _isApplying = false;
};

} // namespace desktop

#endif
