#include "CATHandle.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"

const CATBaseUnknown_var NULL_var;

void CATRaiseNullHandle(const char* iHandleClass) {
    auto* error = new CATInternalError("NullHandle", "CATSystem");
    CATUnicodeString name(iHandleClass);
    error->SetNLSParameters(1, &name);
    CATThrow(error);
}
