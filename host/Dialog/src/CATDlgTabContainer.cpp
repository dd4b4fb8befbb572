#include "CATDlgTabContainer.h"

#include "WidgetEvents.h"
#include "host/DialogObserver.h"
#include "host/Inspector.h"

CATImplementClass(CATDlgTabContainer, Implementation, CATDlgBox, CATNull);

CATDlgTabContainer::CATDlgTabContainer(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgBox(iParent, iName, iStyle) {}

int CATDlgTabContainer::GetSelectedPage() const {
    const int pages = static_cast<int>(host::Inspector::Children(*this).size());
    return _selectedPage < pages ? _selectedPage : pages - 1;
}

void CATDlgTabContainer::SetSelectedPage(int iPage, int iNotify) {
    if (iPage < 0 || iPage >= static_cast<int>(host::Inspector::Children(*this).size()))
        return;
    if (iPage != GetSelectedPage()) {
        _selectedPage = iPage;
        NoteChange(host::ChangeSelection);
    }
    if (iNotify == CATDlgWithNotification)
        SendEvent(GetTabSelectNotification());
}

CATNotification* CATDlgTabContainer::GetTabSelectNotification() {
    return Event<CATDlgTabSelectNotification>();
}
