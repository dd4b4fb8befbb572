#ifndef host_FunctionRegistry_H
#define host_FunctionRegistry_H

#include "CATGetFunctionAddress.h"

#include <string>

namespace host {

// The functions that CATGetFunctionAddress finds, by library and entry.
class FunctionRegistry {
  public:
    static void Register(const std::string& iLibrary, const std::string& iEntry, CATFunctionAddress iAddress);
    static void Remove(const std::string& iLibrary, const std::string& iEntry);
    static void Clear();
};

} // namespace host

#endif
