#ifndef CATInputError_H
#define CATInputError_H

#include "CATError.h"

// An error in what the caller or a person gave.
class CATInputError : public CATError {
    CATDeclareClass;

  public:
    explicit CATInputError(const char* iKey = "", const char* iCatalog = "") : CATError(iKey, iCatalog) {}
    ~CATInputError() override;
};

#endif
