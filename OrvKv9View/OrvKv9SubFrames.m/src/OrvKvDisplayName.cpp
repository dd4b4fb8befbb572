#include "OrvKvDisplayName.h"

#include "CATMsgCatalog.h"

CATUnicodeString OrvKvDisplayName(const CATString& iKey) {
    const CATUnicodeString missing("resource error");
    const CATUnicodeString parameter("Name");
    const CATUnicodeString text =
        CATMsgCatalog::BuildMessage("OrvKvCustomisation", iKey, &parameter, 1, missing);
    return text == missing ? CATUnicodeString(iKey) : text;
}
