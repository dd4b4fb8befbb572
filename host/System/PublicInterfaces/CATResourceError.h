#ifndef CATResourceError_H
#define CATResourceError_H

#include "CATError.h"

// An error of a resource: memory, a file, a catalogue.
class CATResourceError : public CATError {
    CATDeclareClass;

  public:
    explicit CATResourceError(const char* iKey = "", const char* iCatalog = "") : CATError(iKey, iCatalog) {}
    ~CATResourceError() override;
};

#endif
