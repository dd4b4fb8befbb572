#ifndef OrvKvInterfaceOf_H
#define OrvKvInterfaceOf_H

#include "OrvKvErr.h"

// The interface of an object that must have it. A null handle raises the platform's null-handle error, an
// object without the interface "Error_NoInterface".
//
//     OrvKvInterfaceOf<CATIParmTolerance_var>(_hIParm)->Unset();
template<class Wanted, class Object>
Wanted OrvKvInterfaceOf(const Object& iObject) {
    Wanted wanted(iObject.operator->());
    if (!wanted)
        OrvKvErr::Throw_NoInterface();
    return wanted;
}

#endif
