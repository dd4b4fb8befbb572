#pragma once

// What the panels take of parameters: lists in which entry i describes parameter i.

#include "CATListValCATBaseUnknown_var.h"
#include "CATListValCATString.h"
#include "CATListValCATUnicodeString.h"
#include "CATRawCollint.h"

namespace workbench {

/// Flags are 0 or 1.
struct ParameterLists {
    CATListValCATBaseUnknown_var parameters;
    CATListValCATString names;
    CATListValCATUnicodeString tolerances; ///< a fit, or an empty text for the limits of the parameter itself
    CATRawCollint valueShown;
    CATRawCollint valueEditable;
    CATRawCollint toleranceShown;
    CATRawCollint toleranceEditable;
};

} // namespace workbench
