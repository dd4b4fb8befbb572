#include "CATMsgCatalog.h"

#include "host/MessageCatalogs.h"

CATUnicodeString CATMsgCatalog::BuildMessage(const CATString& iCatalog, const CATString& iKey,
                                             const CATUnicodeString* iParameters, int iCount) {
    return BuildMessage(iCatalog, iKey, iParameters, iCount, CATUnicodeString(iKey));
}

CATUnicodeString CATMsgCatalog::BuildMessage(const CATString& iCatalog, const CATString& iKey,
                                             const CATUnicodeString* iParameters, int iCount,
                                             const CATUnicodeString& iDefault) {
    const std::optional<std::string> text =
        host::MessageCatalogs::Text(iCatalog.ConvertToChar(), iKey.ConvertToChar());
    if (!text.has_value())
        return iDefault;
    std::vector<std::string> parameters;
    for (int number = 0; iParameters != nullptr && number < iCount; ++number)
        parameters.emplace_back(iParameters[number].ConvertToChar());
    return CATUnicodeString(host::MessageCatalogs::Fill(*text, parameters).c_str());
}
