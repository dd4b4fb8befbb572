#ifndef CATMfErrUpdate_H
#define CATMfErrUpdate_H

#include "CATError.h"

// An update error of the feature modeler. Its diagnostic says what went wrong in the model.
class CATMfErrUpdate : public CATError {
    CATDeclareClass;

  public:
    explicit CATMfErrUpdate(const char* iKey = "", const char* iCatalog = "") : CATError(iKey, iCatalog) {}
    ~CATMfErrUpdate() override;
};

#endif
