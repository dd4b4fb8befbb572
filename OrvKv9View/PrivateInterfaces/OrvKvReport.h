#ifndef OrvKvReport_H
#define OrvKvReport_H

#include "OrvKvSource.h"

class CATError;

// The results of the library's operations.
//
//     long result = _pTypeSub->SetTypes(iTypes);
//     if (FAILED(result))
//         return OrvKvReport::FailureAfter(result, "Error in setting the types.", OrvKvHere);
//     return OrvKvReport::Success(OrvKvHere);
//
// Messages are plain texts; a line break in one is "\n". Nothing here raises.
class OrvKvReport {
  public:
    // S_OK. An earlier failure stays the last error.
    static long Success(const OrvKvSource& iWhere);

    // E_FAIL with a new error object that carries the message. The message and the place are traced.
    static long Failure(const char* iMessage, const OrvKvSource& iWhere);

    // The same after a called operation gave the failing code iResult: the error object that the callee left
    // is kept unchanged. A new one is made only where it left none.
    static long FailureAfter(long iResult, const char* iMessage, const OrvKvSource& iWhere);

    // E_FAIL with an error that was caught and traced already. Takes ioError over.
    static long FailureWith(CATError* ioError, const OrvKvSource& iWhere);

    // E_FAIL without trace and without an error object. What an older failure left is forgotten, so that
    // nobody takes it for the reason of this one.
    static long SilentFailure();
};

#endif
