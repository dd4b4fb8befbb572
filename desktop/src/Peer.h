#ifndef desktop_Peer_H
#define desktop_Peer_H

#include "host/DialogObserver.h"
#include "host/Outcome.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <functional>

class CATDialog;

namespace desktop {

class PeerTree;

// Every ChangeKind together: all that a peer shows.
inline constexpr unsigned int everything = ~0U;

// Shows one host widget in one Qt widget, and passes on what the person does to it. A kind of widget is one
// class derived from this.
//
// When the host widget goes, the peer is detached at once and deleted, with its Qt widget, once control is
// back in the event loop: either may be in the middle of handling the event that destroyed the host widget.
class Peer : public QObject {
  public:
    Peer(PeerTree& ioTree, CATDialog& ioDialog, QWidget* iWidget);
    ~Peer() override;

    // Null once the host widget is gone.
    CATDialog* Dialog() const { return _dialog; }
    QWidget* Widget() const { return _widget; }
    // Where the children's widgets live; null when the peer shows no children.
    virtual QWidget* Inside() const { return nullptr; }
    // Places the children inside.
    virtual void Arrange() {}

    // Reads what the host holds of iKinds, a set of host::ChangeKind, and shows it.
    void Refresh(unsigned int iKinds);
    // The host widget is gone: nothing is read from it or done to it any more, and nothing shown.
    virtual void Detach();

    // The part that takes the keyboard; null for what takes none.
    virtual QWidget* Field() const { return nullptr; }
    // The part that is named for those who do not see it; null for what needs no name.
    virtual QWidget* Named() const { return Field(); }
    // The title as the widget draws it; empty when it draws none.
    virtual QString Caption() const { return QString(); }
    // Draws the title with the character at iMnemonic for its mnemonic; -1 for none.
    virtual void ShowCaption(int iMnemonic);
    // Whether Alt and a letter of the title lead to the widget.
    virtual bool TakesMnemonic() const { return Field() != nullptr; }
    // Whether the widget is as high as one line of text, so that it can stand in line with others.
    virtual bool IsOneLine() const { return false; }

    // Whether the widget has come to need more or less room than it has; told once.
    virtual bool TakeNeedsRoom() { return false; }

    // Passes a text that is still being typed on to the host, or drops it.
    virtual void CommitText() {}
    virtual void DropText() {}
    // Whether the widget holds a text that is not taken, with the reason beside it.
    virtual bool HoldsRefusedText() const { return false; }

  protected:
    // Shows what is particular to the kind of widget.
    virtual void ShowState(unsigned int iKinds) = 0;
    // Shows or hides the widget as the host says.
    virtual void ShowVisibility();

    // Does what the person asks for. Refused: the peer shows again what the host holds, and the reason.
    // True when it is done and the host widget is still there.
    bool Perform(const std::function<host::Outcome()>& iAction);

    PeerTree& Tree() const { return _tree; }

  private:
    void ShowHelp();
    void ShowRefusal(const std::string& iReason);

    PeerTree& _tree;
    CATDialog* _dialog; // not owned
    QPointer<QWidget> _widget;
};

} // namespace desktop

#endif
