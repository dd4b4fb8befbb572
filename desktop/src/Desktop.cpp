#include "desktop/Desktop.h"

#include "CATDlgWindow.h"
#include "MessageWindow.h"
#include "Peer.h"
#include "PeerTree.h"
#include "Texts.h"
#include "WindowPeer.h"
#include "host/EventScope.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QApplication>

namespace desktop {

namespace {

// Runs the idle step when its event comes.
class IdleReceiver : public QObject {
  public:
    bool event(QEvent* iEvent) override {
        if (iEvent->type() != QEvent::User)
            return QObject::event(iEvent);
        host::EventScope::RunIdle();
        return true;
    }
};

} // namespace

Desktop::Desktop() : _tree(std::make_unique<PeerTree>()), _idle(std::make_unique<IdleReceiver>()) {
    host::DialogObserver::Add(*this);
    _frontEndBefore = host::Messages::SetFrontEnd(this);
    _tree->AddAll();
}

Desktop::~Desktop() {
    host::Messages::SetFrontEnd(_frontEndBefore);
    host::DialogObserver::Remove(*this);
}

QWidget* Desktop::WindowOf(const CATDlgWindow& iWindow) const {
    return WidgetOf(iWindow);
}

QWidget* Desktop::WidgetOf(const CATDialog& iWidget) const {
    const Peer* const peer = _tree->PeerOf(iWidget);
    return peer == nullptr ? nullptr : peer->Widget();
}

QImage Desktop::Picture(const CATDlgWindow& iWindow) {
    if (host::EventScope::IsOpen())
        host::EventScope::Flush();
    else
        host::EventScope::RunIdle();
    auto* const window = dynamic_cast<WindowPeer*>(_tree->PeerOf(iWindow));
    return window == nullptr ? QImage() : window->Picture();
}

bool Desktop::SavePicture(const CATDlgWindow& iWindow, const std::string& iPath) {
    const QImage picture = Picture(iWindow);
    return !picture.isNull() && picture.save(ToQt(iPath));
}

void Desktop::RefreshTexts() {
    _tree->RefreshAll();
}

void Desktop::OnChanges(const host::DialogChanges& iChanges) {
    _tree->Apply(iChanges);
}

// At once: a drawing may come before the idle step, and must not read what is gone.
void Desktop::OnDestroyed(const CATDialog& iWidget) {
    _tree->Remove(iWidget);
}

// Ahead of the drawing, so that little is drawn that changes at once.
void Desktop::OnIdleNeeded() {
    QCoreApplication::postEvent(_idle.get(), new QEvent(QEvent::User), Qt::HighEventPriority);
}

int Desktop::Show(const host::Message& iMessage) {
    return AskInWindow(iMessage, QApplication::activeWindow());
}

} // namespace desktop
