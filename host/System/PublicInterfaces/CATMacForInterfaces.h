#ifndef CATMacForInterfaces_H
#define CATMacForInterfaces_H

#include "CATBaseUnknown.h"
#include "CATHandle.h"

// Declaration of an interface. In the interface class, ended with a semicolon:
//     class CATIAlias : public CATBaseUnknown { CATDeclareInterface; ... };
#define CATDeclareInterface                                                                                  \
  public:                                                                                                    \
    static const char* ClassName();                                                                          \
    static const IID& ClassId()

// Handle class of an interface, after it in its header, ended with a semicolon. It makes X_var.
#define CATDeclareHandler(iInterface, iBase)                                                                 \
    extern const IID IID_##iInterface;                                                                       \
    typedef CATHandle<iInterface> iInterface##_var

// Registration of an interface, in one source file, ended with a semicolon.
#define CATImplementInterface(iInterface, iBase)                                                             \
    const char* iInterface::ClassName() {                                                                    \
        return #iInterface;                                                                                  \
    }                                                                                                        \
    const IID& iInterface::ClassId() {                                                                       \
        static const IID id = CATIidFromName(#iInterface);                                                   \
        return id;                                                                                           \
    }                                                                                                        \
    const IID IID_##iInterface = CATIidFromName(#iInterface)

#endif
