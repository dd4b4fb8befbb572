#include "InternedNames.h"

#include <string>
#include <unordered_set>

namespace host {

const char* Intern(const char* iName) {
    static auto* names = new std::unordered_set<std::string>;
    return names->emplace(iName).first->c_str();
}

} // namespace host
