#include "OrvKvErr.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"
#include "CATUnicodeString.h"

namespace {

// An error of the add-in's catalogue with one parameter. The caller owns it.
CATError* MakeError(const char* iKey, const CATUnicodeString& iParameter) {
    auto* error = new CATInternalError(iKey, "OrvKv_ErrorCatalog");
    CATUnicodeString parameter(iParameter);
    error->SetNLSParameters(1, &parameter);
    return error;
}

} // namespace

void OrvKvErr::Throw(long iRC) {
    CATError* error = CATError::CATGetLastError(iRC);
    if (error == nullptr)
        error = MakeError("Error_UnknownError", "An operation failed without saying why.");
    CATThrow(error);
}

void OrvKvErr::Throw_NoInterface() {
    CATThrow(new CATInternalError("Error_NoInterface", "OrvKv_ErrorCatalog"));
}

void OrvKvErr::Throw_Description(const CATUnicodeString& iText) {
    CATThrow(MakeError("Error_Description", iText));
}
