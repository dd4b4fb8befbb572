#include "InternedNames.h"

#include <array>
#include <cstring>
#include <string>
#include <unordered_set>

namespace host {

// A publisher's few events are asked for again and again, so the latest names are looked at first.
const char* Intern(const char* iName) {
    static auto* names = new std::unordered_set<std::string>;
    static std::array<const char*, 4> latest = {"", "", "", ""};
    static std::size_t next = 0;
    for (const char* name : latest)
        if (*name != '\0' && std::strcmp(name, iName) == 0)
            return name;
    const char* const interned = names->emplace(iName).first->c_str();
    latest[next++ % latest.size()] = interned;
    return interned;
}

} // namespace host
