#include "OrvKvErr.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"
#include "CATMsgCatalog.h"
#include "CATUnicodeString.h"

namespace {

constexpr const char* errorCatalog = "OrvKv_ErrorCatalog";

// An error of the add-in's catalogue with one parameter. The caller owns it.
CATError* MakeError(const char* iKey, const CATUnicodeString& iParameter) {
    auto* error = new CATInternalError(iKey, errorCatalog);
    CATUnicodeString parameter(iParameter);
    error->SetNLSParameters(1, &parameter);
    return error;
}

CATUnicodeString NoReason() {
    return CATMsgCatalog::BuildMessage(errorCatalog, "Error_UnknownError.NoReason", nullptr, 0,
                                       "An operation failed without saying why.");
}

} // namespace

void OrvKvErr::Throw(long iRC) {
    CATError* error = CATError::CATGetLastError(iRC);
    if (error == nullptr)
        error = MakeError("Error_UnknownError", NoReason());
    CATThrow(error);
}

void OrvKvErr::Throw_NoInterface() {
    CATThrow(new CATInternalError("Error_NoInterface", errorCatalog));
}

void OrvKvErr::Throw_Description(const CATUnicodeString& iText) {
    CATThrow(MakeError("Error_Description", iText));
}
