#include "OrvKvGuard.h"

#include "CATString.h"
#include "OrvKvTrace.h"

void OrvKvGuard::TraceCaught(const char* iOperation, const CATError& iError) {
    const CATString caught = CATString(iOperation) + " -> caught ERROR";
    OrvKvTrace::Print(OrvKvTraceSubFrames, OrvKvTraceDetail, caught.ConvertToChar());
    OrvKvTrace::PrintV(OrvKvTraceSubFrames, OrvKvTraceDetail, "%s%s", "error message: ", iError.GetMsgId());
}
