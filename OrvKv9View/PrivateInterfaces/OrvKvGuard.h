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
// CATError passes through unchanged, unless the block says otherwise.
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

    // The same, but a raised object that is no CATError is released and counts for nothing: the result is
    // then a success.
    template<class Body>
    static long RunIgnoringOthers(const char* iOperation, const OrvKvSource& iWhere, Body iBody) {
        long result = E_FAIL;
        if (!ReleasesOthers([&] { result = Run(iOperation, iWhere, iBody); }))
            return result;
        return OrvKvReport::Success(iWhere);
    }

    // Runs iBody, which gives nothing. A caught error is traced and released, any other raised object is
    // released. Whether iBody ran through.
    template<class Body>
    static bool RunQuietly(const char* iOperation, Body iBody) {
        bool ranThrough = false;
        ReleasesOthers([&] {
            CATTry {
                iBody();
                ranThrough = true;
            }
            CATCatch(CATError, pError) {
                TraceCaught(iOperation, *pError);
                pError->Release();
            }
            CATEndTry;
        });
        return ranThrough;
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
    // Whether iBody raised an object that is no CATError; it is released.
    template<class Body>
    static bool ReleasesOthers(Body iBody) {
        bool raised = true;
        CATTry {
            iBody();
            raised = false;
        }
        CATCatch(CATBaseUnknown, pOther) {
            pOther->Release();
        }
        CATCatchOthers {}
        CATEndTry;
        return raised;
    }

    static void TraceCaught(const char* iOperation, const CATError& iError);
};

#endif
