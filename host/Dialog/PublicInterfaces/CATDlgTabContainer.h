#ifndef CATDlgTabContainer_H
#define CATDlgTabContainer_H

#include "CATDlgBox.h"

// Pages behind one another, in order of creation; one is in front. The first page is in front at start.
class CATDlgTabContainer : public CATDlgBox {
    CATDeclareClass;

  public:
    CATDlgTabContainer(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    // The page in front, from 0; -1 without pages.
    int GetSelectedPage() const;
    // Brings a page to the front. A number without page changes nothing.
    void SetSelectedPage(int iPage, int iNotify = CATDlgNoNotification);
    // Sent when a person brings a page to the front.
    CATNotification* GetTabSelectNotification();

  private:
    int _selectedPage = 0;
};

#endif
