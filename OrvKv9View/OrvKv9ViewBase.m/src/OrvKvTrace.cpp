#include "OrvKvTrace.h"

void OrvKvTrace::Print(const char* iChannel, OrvKvTraceLevel iLevel, const char* iText) {
    OrvKv9Trace::Print(Writable(iChannel), iLevel, Writable(iText));
}
