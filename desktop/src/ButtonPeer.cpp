#include "ButtonPeer.h"

#include "CATDialog.h"
#include "Texts.h"

#include <QtWidgets/QAbstractButton>

namespace desktop {

ButtonPeer::ButtonPeer(PeerTree& ioTree, CATDialog& ioDialog, QAbstractButton* iButton)
    : Peer(ioTree, ioDialog, iButton) {}

QString ButtonPeer::Caption() const {
    return Dialog() == nullptr ? QString() : ToQt(Dialog()->GetTitle());
}

void ButtonPeer::ShowCaption(int iMnemonic) {
    Button().setText(WithMnemonic(Caption(), iMnemonic));
}

QAbstractButton& ButtonPeer::Button() const {
    return static_cast<QAbstractButton&>(*Widget());
}

} // namespace desktop
