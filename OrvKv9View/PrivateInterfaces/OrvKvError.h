#ifndef OrvKvError_H
#define OrvKvError_H

#include "CATInternalError.h"

// An error that the library makes itself. To the platform it is a CATInternalError like any other.
class OrvKvError : public CATInternalError {
  public:
    OrvKvError(const char* iKey, const char* iCatalog) : CATInternalError(iKey, iCatalog) {}
    ~OrvKvError() override;
};

#endif
