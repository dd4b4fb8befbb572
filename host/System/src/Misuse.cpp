#include "host/Misuse.h"

#include <cstdio>
#include <cstdlib>

namespace host {

namespace {

std::vector<std::string>& Texts() {
    static std::vector<std::string> texts;
    return texts;
}

} // namespace

void Misuse::Record(const std::string& iText) {
    Texts().push_back(iText);
}

const std::vector<std::string>& Misuse::Recorded() {
    return Texts();
}

void Misuse::Clear() {
    Texts().clear();
}

void NotImplemented(const char* iOperation) {
    std::fprintf(stderr, "%s is declared but not implemented\n", iOperation);
    std::abort();
}

} // namespace host
