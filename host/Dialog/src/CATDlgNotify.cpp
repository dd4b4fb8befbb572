#include "CATDlgNotify.h"

#include "host/Inspector.h"
#include "host/Messages.h"

CATImplementClass(CATDlgNotify, Implementation, CATDlgWindow, CATNull);

CATDlgNotify::CATDlgNotify(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle)
    : CATDlgWindow(iParent, iName, iStyle) {
    TakeNoChildren();
}

int CATDlgNotify::DisplayBlocked(const CATUnicodeString& iText, const CATUnicodeString& iTitle) {
    host::Message message;
    message.style = host::Inspector::Style(*this);
    message.name = GetName().ConvertToChar();
    message.text = iText.ConvertToChar();
    message.title = iTitle.ConvertToChar();
    return host::Messages::Ask(message);
}
