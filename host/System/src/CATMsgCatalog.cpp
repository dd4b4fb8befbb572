#include "CATMsgCatalog.h"

#include "host/MessageCatalogs.h"

CATUnicodeString CATMsgCatalog::BuildMessage(const CATString& iCatalog, const CATString& iKey,
                                             const CATUnicodeString* iParameters, int iCount) {
    return BuildMessage(iCatalog, iKey, iParameters, iCount, CATUnicodeString(iKey));
}

CATUnicodeString CATMsgCatalog::BuildMessage(const CATString& iCatalog, const CATString& iKey,
                                             const CATUnicodeString* iParameters, int iCount,
                                             const CATUnicodeString& iDefault) {
    const std::string* const text =
        host::MessageCatalogs::FindText(iCatalog.ConvertToChar(), iKey.ConvertToChar());
    if (text == nullptr)
        return iDefault;
    if (iParameters == nullptr || iCount < 1)
        return CATUnicodeString(text->c_str());
    std::vector<std::string> parameters;
    parameters.reserve(static_cast<std::size_t>(iCount));
    for (int number = 0; number < iCount; ++number)
        parameters.emplace_back(iParameters[number].ConvertToChar());
    return CATUnicodeString(host::MessageCatalogs::Fill(*text, parameters).c_str());
}
