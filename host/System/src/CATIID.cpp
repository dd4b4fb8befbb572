#include "CATIID.h"

namespace {

// FNV-1a over the name, with two different starts for the two halves.
unsigned long long Hash(const char* iName, unsigned long long iStart) {
    unsigned long long hash = iStart;
    for (; *iName != '\0'; ++iName)
        hash = (hash ^ static_cast<unsigned char>(*iName)) * 1099511628211ULL;
    return hash;
}

} // namespace

CATGuid CATIidFromName(const char* iName) {
    const char* name = iName == nullptr ? "" : iName;
    return CATGuid{Hash(name, 14695981039346656037ULL), Hash(name, 88172645463325252ULL)};
}
