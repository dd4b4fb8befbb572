#include "host/LiveObjects.h"

namespace host {

CATBaseUnknown* LiveObjects::_youngest = nullptr;

std::vector<CATBaseUnknown*> LiveObjects::All() {
    std::vector<CATBaseUnknown*> objects;
    for (CATBaseUnknown* object = _youngest; object != nullptr; object = object->_nextLive)
        objects.push_back(object);
    return objects;
}

std::map<std::string, int> LiveObjects::CountByClass() {
    std::map<std::string, int> counts;
    for (const CATBaseUnknown* object : All())
        ++counts[object->IsA()];
    return counts;
}

int LiveObjects::Count(const char* iClassName) {
    const std::map<std::string, int> counts = CountByClass();
    const auto found = counts.find(iClassName);
    return found == counts.end() ? 0 : found->second;
}

} // namespace host
