#include "FramePeer.h"

#include "CATDlgFrame.h"
#include "GridArranger.h"
#include "Texts.h"
#include "host/Inspector.h"

#include <QtWidgets/QGroupBox>

namespace desktop {

namespace {

QWidget* NewBox(const CATDlgFrame& iFrame, QWidget* iParent) {
    if ((host::Inspector::Style(iFrame) & CATDlgFraNoFrame) != 0)
        return new QWidget(iParent);
    return new QGroupBox(iParent);
}

} // namespace

FramePeer::FramePeer(PeerTree& ioTree, CATDlgFrame& ioFrame, QWidget* iParent)
    : Peer(ioTree, ioFrame, NewBox(ioFrame, iParent)) {}

void FramePeer::Arrange() {
    const bool hasBox = dynamic_cast<QGroupBox*>(Widget()) != nullptr;
    GridArranger(Tree(), *Dialog(), *Widget())
        .Arrange(hasBox ? GridArranger::Margins : GridArranger::NoMargins);
}

void FramePeer::ShowState(unsigned int iKinds) {
    auto* const box = dynamic_cast<QGroupBox*>(Widget());
    if (box != nullptr && (iKinds & host::ChangeTitle) != 0 && host::Inspector::ShowsTitle(*Dialog()))
        box->setTitle(WithoutMnemonic(ToQt(Dialog()->GetTitle()).trimmed()));
}

} // namespace desktop
