#include "DialogWindow.h"

#include "EnterKey.h"
#include "WindowPeer.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMoveEvent>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QPushButton>

namespace desktop {

DialogWindow::DialogWindow(QWidget* iParent) : QDialog(iParent) {}

void DialogWindow::reject() {
    if (_peer != nullptr)
        _peer->PressEscape();
}

bool DialogWindow::focusNextPrevChild(bool iNext) {
    return _peer != nullptr && _peer->MoveFocus(iNext);
}

// A focused button takes Enter for itself, otherwise it is for the default button. A key that is held down
// for a field does not go on to end the dialog.
void DialogWindow::keyPressEvent(QKeyEvent* iEvent) {
    const bool isEscape = iEvent->matches(QKeySequence::Cancel);
    if (!isEscape && !IsEnter(*iEvent)) {
        QDialog::keyPressEvent(iEvent);
        return;
    }
    if (_peer == nullptr || iEvent->isAutoRepeat())
        return;
    if (isEscape)
        _peer->PressEscape();
    else if (auto* const button = qobject_cast<QPushButton*>(focusWidget()))
        button->click();
    else
        _peer->PressEnter();
}

void DialogWindow::closeEvent(QCloseEvent* iEvent) {
    iEvent->ignore();
    if (_peer != nullptr)
        _peer->Close();
}

void DialogWindow::moveEvent(QMoveEvent* iEvent) {
    QDialog::moveEvent(iEvent);
    if (_peer != nullptr)
        _peer->NoteNewPlace(iEvent->spontaneous());
}

void DialogWindow::resizeEvent(QResizeEvent* iEvent) {
    QDialog::resizeEvent(iEvent);
    if (_peer != nullptr)
        _peer->NoteNewPlace(iEvent->spontaneous());
}

} // namespace desktop
