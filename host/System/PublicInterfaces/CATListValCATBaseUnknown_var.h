#ifndef CATListValCATBaseUnknown_var_H
#define CATListValCATBaseUnknown_var_H

#include "CATBaseUnknown.h"
#include "CATOrderedList.h"
// 1-based list of handles; each entry holds a reference.
typedef CATOrderedList<CATBaseUnknown_var> CATListValCATBaseUnknown_var;

#endif
