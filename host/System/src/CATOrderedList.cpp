#include "CATOrderedList.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"

void CATRaiseBadPosition(int iPosition, int iSize) {
    CATUnicodeString position;
    CATUnicodeString size;
    position.BuildFromNum(iPosition);
    size.BuildFromNum(iSize);
    auto* error = new CATInternalError("BadPosition", "CATSystem");
    error->SetNLSParameters(2, &position, &size);
    CATThrow(error);
}
