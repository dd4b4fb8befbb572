#include "ProgramPath.h"

namespace conformance {

namespace {

std::string& Path() {
    static std::string path;
    return path;
}

} // namespace

void SetProgramPath(const std::string& iPath) {
    Path() = iPath;
}

const std::string& ProgramPath() {
    return Path();
}

} // namespace conformance
