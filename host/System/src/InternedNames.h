#ifndef InternedNames_H
#define InternedNames_H

namespace host {

// The one kept copy of a name; equal names give the same address for the life of the process.
const char* Intern(const char* iName);

} // namespace host

#endif
