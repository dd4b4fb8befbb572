#include "TabPagePeer.h"

#include "CATDlgTabPage.h"
#include "GridArranger.h"
#include "Icons.h"
#include "TabBox.h"
#include "Texts.h"

namespace desktop {

TabPagePeer::TabPagePeer(PeerTree& ioTree, CATDlgTabPage& ioPage, QWidget* iParent)
    : Peer(ioTree, ioPage, new QWidget(iParent)) {
    Widget()->hide(); // until it has its tab
}

void TabPagePeer::Arrange() {
    GridArranger(Tree(), *Dialog(), *Widget()).Arrange(GridArranger::Margins);
}

QString TabPagePeer::Caption() const {
    return Dialog() == nullptr ? QString() : ToQt(Dialog()->GetTitle()).trimmed();
}

void TabPagePeer::ShowCaption(int iMnemonic) {
    if (TabBox* const box = TabBox::Of(*Widget()))
        box->setTabText(box->indexOf(Widget()), WithMnemonic(Caption(), iMnemonic));
}

// At once, so that the tabs never name a page that is gone.
void TabPagePeer::Detach() {
    Peer::Detach();
    if (Widget() == nullptr)
        return;
    if (TabBox* const box = TabBox::Of(*Widget()))
        box->removeTab(box->indexOf(Widget()));
}

void TabPagePeer::ShowTab() {
    TabBox* const box = TabBox::Of(*Widget());
    if (box == nullptr)
        return;
    const int tab = box->indexOf(Widget());
    box->setTabIcon(tab, IconOf(Tree(), *Dialog()));
    box->setTabToolTip(tab, Widget()->toolTip());
    box->setTabWhatsThis(tab, Widget()->whatsThis());
    box->SetGreyed(tab, Dialog()->GetSensitivity() == CATDlgDisable);
}

void TabPagePeer::ShowState(unsigned int) {
    ShowTab();
}

// The box around shows the page in front and hides the others.
void TabPagePeer::ShowVisibility() {}

} // namespace desktop
