#include "ParameterManipulator.h"

#include "Parameter.h"

#include <cmath>

namespace host {

CATImplementClass(ParameterManipulator, TransientExtension, CATBaseUnknown, Parameter);

void ParameterManipulator::SetIncrement(double iIncrement) {
    if (std::isfinite(iIncrement) && iIncrement > 0.0)
        _increment = iIncrement;
}

} // namespace host
