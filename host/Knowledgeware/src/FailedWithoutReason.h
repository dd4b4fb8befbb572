#ifndef FailedWithoutReason_H
#define FailedWithoutReason_H

#include "CATError.h"

namespace host {

// The result of an operation that fails without an error object. What an older failure left is forgotten, so
// that nobody takes it for the reason of this one.
inline HRESULT FailedWithoutReason() {
    CATError::CATCleanLastError();
    return E_FAIL;
}

} // namespace host

#endif
