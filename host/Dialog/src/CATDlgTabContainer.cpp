#include "CATDlgTabContainer.h"

#include "CATDlgTabPage.h"
#include "WidgetEvents.h"
#include "host/DialogObserver.h"
#include "host/Inspector.h"

CATImplementClass(CATDlgTabContainer, Implementation, CATDlgBox, CATNull);

CATDlgTabContainer::CATDlgTabContainer(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgBox(iParent, iName, iStyle) {
    HoldPages();
}

int CATDlgTabContainer::GetSelectedPage() const {
    int firstShown = -1;
    int number = 0;
    for (const CATDialog* child : host::Inspector::Children(*this)) {
        const auto* const page = dynamic_cast<const CATDlgTabPage*>(child);
        const bool isShown = page != nullptr && page->GetVisibility() == CATDlgShow;
        if (isShown && page->_isChosen)
            return number;
        if (isShown && firstShown == -1)
            firstShown = number;
        ++number;
    }
    return firstShown;
}

void CATDlgTabContainer::SetSelectedPage(int iPage, int iNotify) {
    const std::vector<CATDialog*> children = host::Inspector::Children(*this);
    if (iPage < 0 || iPage >= static_cast<int>(children.size()))
        return;
    const int before = GetSelectedPage();
    for (CATDialog* child : children)
        if (auto* const page = dynamic_cast<CATDlgTabPage*>(child))
            page->_isChosen = page == children[static_cast<std::size_t>(iPage)];
    if (GetSelectedPage() != before)
        NoteChange(host::ChangeSelection);
    if (iNotify == CATDlgWithNotification)
        SendEvent(GetTabSelectNotification());
}

CATNotification* CATDlgTabContainer::GetTabSelectNotification() {
    return Event<CATDlgTabSelectNotification>();
}
