#ifndef CATDlgNotify_H
#define CATDlgNotify_H

#include "CATDlgWindow.h"

// Kind of a message.
const CATDlgStyle CATDlgNfyWarning = 0x8000000;
const CATDlgStyle CATDlgNfyError = 0x10000000;

// A message window. It takes no children.
class CATDlgNotify : public CATDlgWindow {
    CATDeclareClass;

  public:
    CATDlgNotify(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    // Shows the message and waits for the answer, which is the style bit of the standard button
    // (CATDlgWndOK). The text comes first, the title second.
    int DisplayBlocked(const CATUnicodeString& iText, const CATUnicodeString& iTitle);
};

#endif
