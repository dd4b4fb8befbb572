#include "CATICkeInst.h"
#include "CATICkeParm.h"
#include "CATICkeParmFactory.h"
#include "CATICkeType.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "CATIParmPublisher.h"
#include "CATIParmTolerance.h"

CATImplementInterface(CATICkeType, CATBaseUnknown);
CATImplementInterface(CATICkeInst, CATBaseUnknown);
CATImplementInterface(CATICkeParm, CATICkeInst);
CATImplementInterface(CATICkeParmFactory, CATBaseUnknown);
CATImplementInterface(CATIParmAsStored, CATBaseUnknown);
CATImplementInterface(CATIParmEvents, CATBaseUnknown);
CATImplementInterface(CATIParmPublisher, CATBaseUnknown);
CATImplementInterface(CATIParmTolerance, CATBaseUnknown);
