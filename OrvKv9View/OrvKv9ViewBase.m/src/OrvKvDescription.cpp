#include "OrvKvDescription.h"

#include "CATMsgCatalog.h"

CATUnicodeString OrvKvDescriptionOf(const CATString& iName, const CATUnicodeString& iOtherwise) {
    static const CATString catalog("OrvKvParametersDescription");
    static const CATUnicodeString missing(OrvKvNoText);
    const CATUnicodeString text = CATMsgCatalog::BuildMessage(catalog, iName, nullptr, 0, missing);
    return text == missing ? iOtherwise : text;
}
