#include "host/FunctionRegistry.h"

#include "host/FaultPoints.h"

#include <map>

namespace {

typedef std::map<std::string, CATFunctionAddress> Entries;

std::map<std::string, Entries>& Libraries() {
    static std::map<std::string, Entries> libraries;
    return libraries;
}

} // namespace

CATFunctionAddress CATGetFunctionAddress(const char* iLibrary, const char* iEntry, const char*, int, int, int,
                                         CATLibraryHandle* oLibrary) {
    if (oLibrary != nullptr)
        oLibrary->library = nullptr;
    if (iLibrary == nullptr || iEntry == nullptr || host::FaultPoints::Fails("function look-up"))
        return nullptr;
    const auto library = Libraries().find(iLibrary);
    if (library == Libraries().end())
        return nullptr;
    if (oLibrary != nullptr)
        oLibrary->library = &library->second;
    const auto entry = library->second.find(iEntry);
    return entry == library->second.end() ? nullptr : entry->second;
}

namespace host {

void FunctionRegistry::Register(const std::string& iLibrary, const std::string& iEntry,
                                CATFunctionAddress iAddress) {
    Libraries()[iLibrary][iEntry] = iAddress;
}

void FunctionRegistry::Remove(const std::string& iLibrary, const std::string& iEntry) {
    const auto library = Libraries().find(iLibrary);
    if (library != Libraries().end())
        library->second.erase(iEntry);
}

void FunctionRegistry::Clear() {
    Libraries().clear();
}

} // namespace host
