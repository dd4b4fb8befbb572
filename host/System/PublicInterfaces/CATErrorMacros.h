#ifndef CATErrorMacros_H
#define CATErrorMacros_H

#include "CATBaseUnknown.h"

// Guarded blocks. An exception is an error object thrown by its pointer:
//
//     CATTry {
//         CATThrow(new CATInternalError("Key", "Catalogue"));
//     }
//     CATCatch(CATError, pError) {
//         pError->Release(); // the catcher owns the reference
//     }
//     CATEndTry;
//
// An object of another class is raised again unchanged, unless CATCatchOthers takes it. There is one CATCatch
// to a block. C++ exceptions pass through.

// The frame of one guarded block.
class CATXHContext {
  public:
    CATXHContext() = default;
    CATXHContext(const CATXHContext&) = delete;
    CATXHContext& operator=(const CATXHContext&) = delete;

    // iThrown as the class iClass, or null when it is no kind of it.
    template<class Class>
    static Class* As(CATBaseUnknown* iThrown) {
        if (iThrown == nullptr || !iThrown->IsAKindOf(Class::ClassName()))
            return nullptr;
        return static_cast<Class*>(iThrown);
    }
};

#define CATThrow(iObject) throw static_cast<CATBaseUnknown*>(iObject)
#define CATRethrow throw

// clang-format off
#define CATTry { CATXHContext catGuardedBlock; static_cast<void>(catGuardedBlock); try
#define CATCatch(iClass, iVariable)                                                                            \
    catch (CATBaseUnknown* catThrown) { if (iClass* iVariable = CATXHContext::As<iClass>(catThrown))
#define CATCatchOthers else if (catThrown != nullptr)
#define CATEndTry else { throw; } } } static_cast<void>(0)
// clang-format on

#endif
