#include "Peer.h"

#include "CATDialog.h"
#include "PeerTree.h"
#include "Texts.h"
#include "host/DelayedDestruction.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

namespace desktop {

Peer::Peer(PeerTree& ioTree, CATDialog& ioDialog, QWidget* iWidget)
    : _tree(ioTree), _dialog(&ioDialog), _widget(iWidget) {
    _widget->setObjectName(ToQt(ioDialog.GetName()));
}

Peer::~Peer() {
    delete _widget;
}

void Peer::Refresh(unsigned int iKinds) {
    if (_dialog == nullptr)
        return;
    if ((iKinds & host::ChangeHelp) != 0)
        ShowHelp();
    ShowState(iKinds);
    if ((iKinds & host::ChangeSensitivity) != 0)
        _widget->setEnabled(_dialog->GetSensitivity() == CATDlgEnable);
    if ((iKinds & host::ChangeVisibility) != 0 && !_widget->isWindow())
        ShowVisibility();
}

void Peer::ShowVisibility() {
    _widget->setVisible(_dialog->GetVisibility() == CATDlgShow &&
                        !host::DelayedDestruction::IsDoomed(*_dialog));
}

void Peer::Detach() {
    _dialog = nullptr;
    if (_widget != nullptr)
        _widget->hide();
}

void Peer::ShowCaption(int) {}

bool Peer::Perform(const std::function<host::Outcome()>& iAction) {
    _tree.CommitAll(this);
    if (_dialog == nullptr)
        return false;
    const host::Outcome outcome = iAction();
    if (_dialog == nullptr)
        return false;
    if (!outcome) {
        Refresh(everything);
        ShowRefusal(outcome.reason);
    }
    return outcome.done;
}

void Peer::ShowHelp() {
    _widget->setToolTip(AsPlainHelp(ToQt(_dialog->GetShortHelp())));
    _widget->setWhatsThis(AsPlainHelp(ToQt(_dialog->GetLongHelp())));
    _widget->setStatusTip(ToQt(_dialog->GetHelp()));
}

void Peer::ShowRefusal(const std::string& iReason) {
    QApplication::beep();
    const QPoint below = _widget->mapToGlobal(QPoint(0, _widget->height()));
    QToolTip::showText(below, AsPlainHelp(ToQt(iReason)), _widget);
}

} // namespace desktop
