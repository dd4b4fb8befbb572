#ifndef desktop_WindowPeer_H
#define desktop_WindowPeer_H

#include "Peer.h"

#include "CATDlgDefine.h"

#include <QtCore/QPoint>
#include <QtCore/QSize>
#include <QtCore/QTimer>
#include <QtGui/QImage>

class CATDlgDialog;
class CATDlgWindow;

namespace desktop {

class DialogWindow;
class StandardButtons;

// A window: its content, and for a dialog the row of standard buttons.
class WindowPeer : public Peer {
  public:
    // iParent is the peer of the window's parent, or null.
    WindowPeer(PeerTree& ioTree, CATDlgWindow& ioWindow, const Peer* iParent);
    ~WindowPeer() override;

    QWidget* Inside() const override { return _inside; }
    void Arrange() override;
    StandardButtons& Buttons() const { return *_buttons; }

    // Takes the size that the content needs where the program gave none.
    void FitToContent();
    // Shows or hides the window as the host says.
    void ShowOrHide();
    // The window as it is now, shown or hidden.
    QImage Picture();

    // What the person does. Enter and Escape are for a text that is being typed first.
    void PressEnter();
    void PressEscape();
    void Close();
    // iByWindowSystem: not by a call of this program.
    void NoteNewPlace(bool iByWindowSystem);

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    void PressStandardButton(CATULong iButton);
    void Place();
    QSize NaturalSize() const;
    void KeepPlace();
    void ReportPlace();
    CATDlgDialog* AsDialog() const;

    CATDlgWindow& _window;
    DialogWindow* _frame;
    QWidget* _inside = nullptr;
    StandardButtons* _buttons = nullptr;
    QTimer _reportPlace; // collects the steps of one drag
    QPoint _place;       // as the host knows it
    QSize _size;
    bool _isPlacing = false;
};

} // namespace desktop

#endif
