#ifndef CATInternalError_H
#define CATInternalError_H

#include "CATError.h"

// An error in the program's own working.
class CATInternalError : public CATError {
    CATDeclareClass;

  public:
    explicit CATInternalError(const char* iKey = "", const char* iCatalog = "") : CATError(iKey, iCatalog) {}
    ~CATInternalError() override;
};

#endif
