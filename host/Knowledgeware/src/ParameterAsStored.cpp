#include "ParameterAsStored.h"

#include "Parameter.h"

namespace host {

CATImplementClass(ParameterAsStored, TransientExtension, CATBaseUnknown, Parameter);

double ParameterAsStored::GetValue() {
    return _owner.Stored();
}

HRESULT ParameterAsStored::SetValue(double iValue) {
    return _owner.Store(iValue);
}

} // namespace host
