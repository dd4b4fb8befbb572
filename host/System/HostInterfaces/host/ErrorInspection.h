#ifndef host_ErrorInspection_H
#define host_ErrorInspection_H

#include "CATError.h"

#include <string>
#include <vector>

namespace host {

// One call of CATError::GetReturn.
struct ReturnRecord {
    int kind = 0;
    std::string file;
    int line = 0;
};

// What a test or a tool may want to know of errors and results, and the platform does not tell.
class ErrorInspection {
  public:
    // The last error without a reference, or null.
    static const CATError* LastError();
    // The last call of GetReturn, and how many there were.
    static ReturnRecord LastReturn();
    static int ReturnCount();
    // Where a failing return first named the error; empty file and line 0 before.
    static ReturnRecord Origin(const CATError& iError);
    static std::vector<std::string> Parameters(const CATError& iError);
};

} // namespace host

#endif
