#include "LastError.h"

namespace host {

namespace {
CATError* lastError = nullptr;
}

CATError* LastError::Get() {
    return lastError;
}

void LastError::Replace(CATError* iError) {
    CATError* const previous = lastError;
    lastError = iError;
    if (previous != nullptr)
        previous->Release();
}

} // namespace host
