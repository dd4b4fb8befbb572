#include "CATICkeParm.h"

CATImplementInterface(CATICkeParm, CATBaseUnknown);
