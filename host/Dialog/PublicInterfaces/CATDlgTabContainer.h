#ifndef CATDlgTabContainer_H
#define CATDlgTabContainer_H

#include "CATDlgBox.h"

// Pages behind one another, in order of creation; one is in front: the one that was brought there last, and
// the first that is shown when there is no such page or it is hidden.
class CATDlgTabContainer : public CATDlgBox {
    CATDeclareClass;

  public:
    CATDlgTabContainer(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    // The page in front, from 0; -1 when no page is shown.
    int GetSelectedPage() const;
    // Brings a page to the front. A number without page changes nothing.
    void SetSelectedPage(int iPage, int iNotify = CATDlgNoNotification);
    // Sent when a person brings a page to the front.
    CATNotification* GetTabSelectNotification();
};

#endif
