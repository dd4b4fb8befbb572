#ifndef ProgramPath_H
#define ProgramPath_H

#include <string>

namespace conformance {

// How this program was called, for a test that runs it again.
void SetProgramPath(const std::string& iPath);
const std::string& ProgramPath();

} // namespace conformance

#endif
