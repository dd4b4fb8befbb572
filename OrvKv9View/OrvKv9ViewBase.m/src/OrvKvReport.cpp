#include "OrvKvReport.h"

#include "OrvKvError.h"
#include "OrvKvErrorCatalog.h"
#include "OrvKvTrace.h"

namespace {

void TraceFailure(const char* iMessage, const OrvKvSource& iWhere) {
    OrvKvTrace::Print(OrvKvTraceErrors, OrvKvTraceFailure, iMessage);
    OrvKvTrace::PrintV(OrvKvTraceErrors, OrvKvTraceFailure, " at line %ld in file %s\n",
                       static_cast<long>(iWhere.line), iWhere.file);
}

CATError* NewError(const char* iMessage) {
    CATUnicodeString message(iMessage);
    CATError* const error = new OrvKvError(OrvKvErrorKeyUnknownError, OrvKvErrorCatalog);
    error->SetNLSParameters(1, &message);
    return error;
}

} // namespace

long OrvKvReport::Success(const OrvKvSource& iWhere) {
    return CATError::GetReturn(CATReturnKindSuccess, nullptr, nullptr, iWhere.file, iWhere.line);
}

long OrvKvReport::Failure(const char* iMessage, const OrvKvSource& iWhere) {
    TraceFailure(iMessage, iWhere);
    return FailureWith(NewError(iMessage), iWhere);
}

long OrvKvReport::FailureAfter(long iResult, const char* iMessage, const OrvKvSource& iWhere) {
    TraceFailure(iMessage, iWhere);
    CATError* const calleesError = CATError::CATGetLastError(iResult, nullptr);
    return FailureWith(calleesError != nullptr ? calleesError : NewError(iMessage), iWhere);
}

long OrvKvReport::FailureWith(CATError* ioError, const OrvKvSource& iWhere) {
    return CATError::GetReturn(CATReturnKindError, ioError, nullptr, iWhere.file, iWhere.line);
}

long OrvKvReport::SilentFailure() {
    CATError::CATCleanLastError();
    return E_FAIL;
}
