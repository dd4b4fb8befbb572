#ifndef desktop_DialogWindow_H
#define desktop_DialogWindow_H

#include <QtWidgets/QDialog>

namespace desktop {

class WindowPeer;

// The window of a dialog. It passes Tab, Enter, Escape, its close box and a new place on to its peer, and
// never closes by itself.
class DialogWindow : public QDialog {
  public:
    explicit DialogWindow(QWidget* iParent);

    // Not owned. Null while the peer is not complete.
    void SetPeer(WindowPeer* iPeer) { _peer = iPeer; }

    // QDialog
    void reject() override;

  protected:
    bool focusNextPrevChild(bool iNext) override;
    void keyPressEvent(QKeyEvent* iEvent) override;
    void closeEvent(QCloseEvent* iEvent) override;
    void moveEvent(QMoveEvent* iEvent) override;
    void resizeEvent(QResizeEvent* iEvent) override;

  private:
    WindowPeer* _peer = nullptr;
};

} // namespace desktop

#endif
