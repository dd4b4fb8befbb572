#include "TabContainerPeer.h"

#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "PeerTree.h"
#include "TabBox.h"
#include "TabPagePeer.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QTabBar>

namespace desktop {

TabContainerPeer::TabContainerPeer(PeerTree& ioTree, CATDlgTabContainer& ioContainer, QWidget* iParent)
    : Peer(ioTree, ioContainer, new TabBox(iParent)), _container(ioContainer),
      _box(static_cast<TabBox*>(Widget())) {
    connect(_box, &QTabWidget::currentChanged, this, [this](int iTab) { Follow(iTab); });
}

void TabContainerPeer::Arrange() {
    const QScopedValueRollback<bool> showing(_isShowing, true);
    int tab = 0;
    for (CATDialog* child : host::Inspector::Children(_container)) {
        auto* const page = dynamic_cast<TabPagePeer*>(Tree().PeerOf(*child));
        if (page == nullptr)
            continue;
        const int place = _box->indexOf(page->Widget());
        if (child->GetVisibility() == CATDlgHide) {
            _box->removeTab(place);
            continue;
        }
        if (place == -1)
            _box->insertTab(tab, page->Widget(), QString());
        page->ShowTab();
        ++tab;
    }
    ShowFront();
}

QWidget* TabContainerPeer::Field() const {
    return _box->tabBar();
}

void TabContainerPeer::ShowState(unsigned int) {
    if (Dialog() != nullptr)
        ShowFront();
}

void TabContainerPeer::Follow(int iTab) {
    if (_isShowing || Dialog() == nullptr)
        return;
    if (Tree().IsApplying()) { // a page goes, and Qt has taken another one than the host
        QMetaObject::invokeMethod(
            this, [this] { ShowState(0); }, Qt::QueuedConnection);
        return;
    }
    for (CATDialog* child : host::Inspector::Children(_container)) {
        const Peer* const peer = Tree().PeerOf(*child);
        auto* const page = dynamic_cast<CATDlgTabPage*>(child);
        if (page == nullptr || peer == nullptr || peer->Widget() != _box->widget(iTab))
            continue;
        Perform([page] { return host::DialogUser::ShowPage(*page); });
        return;
    }
}

void TabContainerPeer::ShowFront() {
    const QScopedValueRollback<bool> showing(_isShowing, true);
    const int front = _container.GetSelectedPage();
    if (front == -1)
        return;
    const std::vector<CATDialog*> pages = host::Inspector::Children(_container);
    if (const Peer* const page = Tree().PeerOf(*pages[static_cast<std::size_t>(front)]))
        _box->setCurrentIndex(_box->indexOf(page->Widget()));
}

} // namespace desktop
