#include "CATMetaClass.h"

#include <cstring>
#include <map>
#include <memory>
#include <string>

namespace {

// Never destroyed: objects that die after main still ask for their class.
std::map<std::string, std::unique_ptr<CATMetaClass>>& Registry() {
    static auto* registry = new std::map<std::string, std::unique_ptr<CATMetaClass>>;
    return *registry;
}

} // namespace

CATMetaClass::CATMetaClass(const char* iName, CATTypeOfClass iType, CATMetaClass* iBase,
                           const char* iExtended)
    : _name(iName), _type(iType), _base(iBase), _extended(iExtended), _id(CATIidFromName(iName)) {}

CATMetaClass* CATMetaClass::Find(const char* iName, CATTypeOfClass iType, CATMetaClass* iBase,
                                 const char* iExtended) {
    std::unique_ptr<CATMetaClass>& found = Registry()[iName];
    if (found == nullptr)
        found.reset(new CATMetaClass(iName, iType, iBase, iExtended));
    return found.get();
}

int CATMetaClass::IsAKindOf(const char* iName) const {
    if (iName == nullptr)
        return 0;
    for (const CATMetaClass* meta = this; meta != nullptr; meta = meta->_base)
        if (meta->_name == iName || std::strcmp(meta->_name, iName) == 0)
            return 1;
    return 0;
}
