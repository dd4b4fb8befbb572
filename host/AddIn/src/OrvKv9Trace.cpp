#include "OrvKv9Trace.h"

#include "host/Trace.h"

#include <cstdarg>
#include <cstdio>

namespace {

std::string TextOf(const char* iText) {
    return iText == nullptr ? std::string() : std::string(iText);
}

} // namespace

void OrvKv9Trace::Print(char* iCategory, int iLevel, char* iText) {
    host::Trace::Write(host::TraceLine{TextOf(iCategory), iLevel, TextOf(iText)});
}

void OrvKv9Trace::PrintV(char* iCategory, int iLevel, char* iFormat, ...) {
    if (iFormat == nullptr)
        return Print(iCategory, iLevel, nullptr);
    va_list arguments;
    va_start(arguments, iFormat);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, iFormat, arguments);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    if (length > 0)
        std::vsnprintf(text.data(), text.size() + 1, iFormat, again);
    va_end(again);
    va_end(arguments);
    host::Trace::Write(host::TraceLine{TextOf(iCategory), iLevel, text});
}
