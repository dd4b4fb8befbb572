#include "DialogWindow.h"

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

// A focused button takes Enter for itself, otherwise it is for the default button.
void DialogWindow::keyPressEvent(QKeyEvent* iEvent) {
    if (_peer == nullptr)
        return;
    if (iEvent->matches(QKeySequence::Cancel)) {
        _peer->PressEscape();
        return;
    }
    if (iEvent->key() != Qt::Key_Return && iEvent->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(iEvent);
        return;
    }
    if (auto* const button = qobject_cast<QPushButton*>(focusWidget()))
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
