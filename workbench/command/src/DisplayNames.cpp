#include "DisplayNames.h"

#include "CATMsgCatalog.h"

namespace workbench {

namespace {

constexpr const char* names = "OrvKvCustomisation";
constexpr const char* meanings = "OrvKvParametersDescription";

} // namespace

CATUnicodeString DisplayNameOf(const std::string& key) {
    return CATMsgCatalog::BuildMessage(names, key.c_str(), nullptr, 0, key.c_str());
}

CATUnicodeString MeaningOf(const std::string& typeKey, const std::string& parameter) {
    const CATUnicodeString general =
        CATMsgCatalog::BuildMessage(meanings, parameter.c_str(), nullptr, 0, CATUnicodeString());
    return CATMsgCatalog::BuildMessage(meanings, (typeKey + "." + parameter).c_str(), nullptr, 0, general);
}

} // namespace workbench
