#include "host/FatalErrors.h"

#include "CATFatalError.h"

#include <cstdio>
#include <cstdlib>

namespace {

void Abort(const char* iText, const char* iFile, int iLine) {
    std::fprintf(stderr, "%s (%s:%d)\n", iText, iFile, iLine);
    std::abort();
}

host::FatalErrors::Handler handler = nullptr;

} // namespace

void CATFatalError(const char* iText, const char* iFile, int iLine) {
    const char* text = iText == nullptr ? "" : iText;
    const char* file = iFile == nullptr ? "" : iFile;
    (handler == nullptr ? Abort : handler)(text, file, iLine);
}

namespace host {

FatalErrors::Handler FatalErrors::SetHandler(Handler iHandler) {
    Handler previous = handler;
    handler = iHandler;
    return previous;
}

} // namespace host
