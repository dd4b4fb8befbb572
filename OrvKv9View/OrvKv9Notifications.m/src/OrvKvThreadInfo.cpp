#include "OrvKvThreadInfo.h"

#include "OrvKvOutPointers.h"
#include "OrvKvReport.h"

long OrvKvThreadInfo::GiveTo(CATUnicodeString* pType, CATUnicodeString* pDim, double* pPitch,
                             const OrvKvSource& iWhere) const {
    const char* const complaint =
        OrvKvFirstComplaint({{pType, "NULL == pType"}, {pDim, "NULL == pDim"}, {pPitch, "NULL == pPitch"}});
    if (complaint != nullptr)
        return OrvKvReport::Failure(complaint, iWhere);
    *pType = type;
    *pDim = dimension;
    *pPitch = pitch;
    return OrvKvReport::Success(iWhere);
}
