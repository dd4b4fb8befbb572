#ifndef LastError_H
#define LastError_H

#include "CATError.h"

namespace host {

// The one last error of the process. Holds a reference.
class LastError {
  public:
    static CATError* Get();
    // Takes one reference of iError over. The same error again is safe.
    static void Replace(CATError* iError);
};

} // namespace host

#endif
