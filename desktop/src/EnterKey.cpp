#include "EnterKey.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace desktop {

namespace {

// A key that the widget does not get and that is not accepted goes on to the widgets around it.
class EnterFilter : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* iEvent) override {
        if (iEvent->type() != QEvent::KeyPress || !IsEnter(*static_cast<QKeyEvent*>(iEvent)))
            return false;
        iEvent->ignore();
        return true;
    }
};

} // namespace

bool IsEnter(const QKeyEvent& iEvent) {
    return iEvent.key() == Qt::Key_Return || iEvent.key() == Qt::Key_Enter;
}

void LeaveEnterToWindow(QWidget& ioWidget) {
    ioWidget.installEventFilter(new EnterFilter(&ioWidget));
}

} // namespace desktop
