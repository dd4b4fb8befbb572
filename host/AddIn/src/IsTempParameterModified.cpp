#include "IsTempParameterModified.h"

HRESULT IsTempParameterModified(const OrvIKvFeatureParameters_var& iFeature, const CATString& iName,
                                unsigned char& oModified) {
    oModified = 0;
    if (!iFeature)
        return E_FAIL;
    oModified = iFeature->IsTemporarilyModified(iName);
    return S_OK;
}
