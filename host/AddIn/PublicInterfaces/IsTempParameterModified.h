#ifndef IsTempParameterModified_H
#define IsTempParameterModified_H

#include "CATErrorDef.h"
#include "OrvIKvFeatureParameters.h"

// Whether the named parameter of the feature has a temporary modification, one that is not applied yet. S_OK
// with the answer in oModified; E_FAIL with 0 in it for a null feature.
HRESULT IsTempParameterModified(const OrvIKvFeatureParameters_var& iFeature, const CATString& iName,
                                unsigned char& oModified);

#endif
