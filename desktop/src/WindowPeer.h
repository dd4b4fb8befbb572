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
    // Tab, or Shift and Tab. False when there is nowhere to go.
    bool MoveFocus(bool iBehind);
    // iByWindowSystem: not by a call of this program.
    void NoteNewPlace(bool iByWindowSystem);
    // Passes on where the person has dragged the window and how large; called by itself at the end of a drag.
    void ReportPlace();

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    void PressStandardButton(CATULong iButton);
    void Place();
    void MoveIntoSight(const QPoint& iPlace);
    void NoteHostPlace(const QRect& iRectangle);
    QSize NaturalSize() const;
    void KeepPlace();
    CATDlgDialog* AsDialog() const;

    CATDlgWindow& _window;
    DialogWindow* _frame;
    QWidget* _inside = nullptr;
    StandardButtons* _buttons = nullptr;
    QTimer _reportPlace;          // collects the steps of one drag
    QPoint _place;                // where the window was before the person moved it
    QSize _size;                  // and how large
    QRect _hostRectangle;         // as the host held it last
    bool _isPlacedByHost = false; // else the window system chooses the place
    bool _isPlacing = false;
    bool _isDraggedThere = false; // by the person, who may leave it partly off the screen
    bool _isDragged = false;      // by the person, and not reported yet
    bool _isReporting = false;
};

} // namespace desktop

#endif
