#include "ParameterTolerance.h"

#include "FailedWithoutReason.h"
#include "Parameter.h"

#include <cmath>

namespace host {

CATImplementClass(ParameterTolerance, TransientExtension, CATBaseUnknown, Parameter);

HRESULT ParameterTolerance::Unset() {
    if (FaultPoints::Fails("parameter write"))
        return FailedWithoutReason();
    _maximum = 0.0;
    _minimum = 0.0;
    _isSet = false;
    return S_OK;
}

HRESULT ParameterTolerance::Set(double& oDeviation, double iDeviation) {
    if (!std::isfinite(iDeviation) || FaultPoints::Fails("parameter write"))
        return FailedWithoutReason();
    oDeviation = WithoutMinusZero(iDeviation);
    _isSet = true;
    return S_OK;
}

} // namespace host
