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

// What a block calls the thrown object: another name on each line, since blocks nest.
#define CATThrownName(iLine) CATThrownNameOf(iLine)
#define CATThrownNameOf(iLine) catThrownInLine##iLine

// clang-format off
#define CATTry { static_cast<void>(CATXHContext()); try
#define CATCatch(iClass, iVariable)                                                                            \
    catch (CATBaseUnknown* CATThrownName(__LINE__)) {                                                          \
        if (iClass* iVariable = CATXHContext::As<iClass>(CATThrownName(__LINE__)))
#define CATCatchOthers else if (true)
#define CATEndTry else { throw; } } } static_cast<void>(0)
// clang-format on

#endif
