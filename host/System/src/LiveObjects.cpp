#include "host/LiveObjects.h"

namespace host {

namespace {
CATBaseUnknown* youngest = nullptr;
}

void LiveObjects::Join(CATBaseUnknown& ioObject) {
    ioObject._nextLive = youngest;
    if (youngest != nullptr)
        youngest->_previousLive = &ioObject;
    youngest = &ioObject;
}

void LiveObjects::Leave(CATBaseUnknown& ioObject) {
    if (ioObject._previousLive != nullptr)
        ioObject._previousLive->_nextLive = ioObject._nextLive;
    else
        youngest = ioObject._nextLive;
    if (ioObject._nextLive != nullptr)
        ioObject._nextLive->_previousLive = ioObject._previousLive;
}

std::vector<CATBaseUnknown*> LiveObjects::All() {
    std::vector<CATBaseUnknown*> objects;
    for (CATBaseUnknown* object = youngest; object != nullptr; object = object->_nextLive)
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
