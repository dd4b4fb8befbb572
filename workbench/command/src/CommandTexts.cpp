#include "CommandTexts.h"

#include "CATMsgCatalog.h"

namespace workbench {

CATUnicodeString CommandText(const char* key, std::initializer_list<CATUnicodeString> parameters) {
    return CATMsgCatalog::BuildMessage("FeatureCommand", key, parameters.begin(),
                                       static_cast<int>(parameters.size()));
}

} // namespace workbench
