#include "CATInputError.h"
#include "CATInternalError.h"
#include "CATMfErrUpdate.h"
#include "CATResourceError.h"

CATImplementClass(CATInternalError, Implementation, CATError, CATNull);
CATImplementClass(CATInputError, Implementation, CATError, CATNull);
CATImplementClass(CATResourceError, Implementation, CATError, CATNull);
CATImplementClass(CATMfErrUpdate, Implementation, CATError, CATNull);

CATInternalError::~CATInternalError() = default;
CATInputError::~CATInputError() = default;
CATResourceError::~CATResourceError() = default;
CATMfErrUpdate::~CATMfErrUpdate() = default;
