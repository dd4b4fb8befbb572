#include "OrvKvErr.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"
#include "CATUnicodeString.h"

namespace {
const char errorCatalog[] = "OrvKv_ErrorCatalog";
}

void OrvKvErr::Throw(long iRC) {
    CATError* error = CATError::CATGetLastError(iRC);
    if (error == nullptr)
        error = new CATInternalError("Error_UnknownError", errorCatalog);
    CATThrow(error);
}

void OrvKvErr::Throw_NoInterface() {
    CATThrow(new CATInternalError("Error_NoInterface", errorCatalog));
}

void OrvKvErr::Throw_Description(const CATUnicodeString& iText) {
    auto* error = new CATInternalError("Error_Description", errorCatalog);
    CATUnicodeString text(iText);
    error->SetNLSParameters(1, &text);
    CATThrow(error);
}
