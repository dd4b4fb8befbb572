#ifndef CATDlgTabPage_H
#define CATDlgTabPage_H

#include "CATDlgBox.h"

// One page of a tab container. Its title is the text of the tab; a hidden page has no tab.
class CATDlgTabPage : public CATDlgBox {
    CATDeclareClass;

  public:
    CATDlgTabPage(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

  private:
    friend class CATDlgTabContainer;

    bool _isChosen = false; // the page of its container that was brought to the front last
};

#endif
