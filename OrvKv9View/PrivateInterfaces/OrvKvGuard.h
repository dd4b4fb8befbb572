#ifndef OrvKvGuard_H
#define OrvKvGuard_H

#include "CATError.h"
#include "CATErrorMacros.h"
#include "OrvKvPrompt.h"
#include "OrvKvReport.h"

// Guarded blocks around calls that may raise a platform error.
//
//     return OrvKvGuard::Run("OrvKvTypeAndParameterSetSub::UnselectParameterSet", OrvKvHere, [&]() -> long {
//         ...
//         return OrvKvReport::Success(OrvKvHere);
//     });
//
// A caught error is traced under the name of the operation, "Class::Operation". A raised object that is no
// CATError passes through unchanged.
class OrvKvGuard {
  public:
    // The result of iBody, or the failing result that carries the caught error.
    template<class Body>
    static long Run(const char* iOperation, const OrvKvSource& iWhere, Body iBody) {
        long result = E_FAIL;
        CATTry {
            result = iBody();
        }
        CATCatch(CATError, pError) {
            TraceCaught(iOperation, *pError);
            result = OrvKvReport::FailureWith(pError, iWhere);
        }
        CATEndTry;
        return result;
    }

    // Runs iBody, which gives nothing. A caught error is shown to the user at once.
    template<class Body>
    static void RunShowing(const char* iOperation, Body iBody) {
        CATTry {
            iBody();
        }
        CATCatch(CATError, pError) {
            TraceCaught(iOperation, *pError);
            OrvKvPrompt::Error(pError);
        }
        CATEndTry;
    }

  private:
    static void TraceCaught(const char* iOperation, const CATError& iError);
};

#endif
