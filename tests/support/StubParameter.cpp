#include "StubParameter.h"

namespace support {

CATImplementClass(StubParameter, Implementation, CATBaseUnknown, CATNull);

StubParameter::StubParameter(const CATUnicodeString& iName, const CATUnicodeString& iShown)
    : _name(iName), _shown(iShown) {}

HRESULT StubParameter::QueryInterface(const IID& iInterface, void** oPointer) {
    if (iInterface != IID_CATICkeParm)
        return CATBaseUnknown::QueryInterface(iInterface, oPointer);
    AddRef();
    *oPointer = static_cast<CATICkeParm*>(this);
    return S_OK;
}

} // namespace support
