#ifndef host_Misuse_H
#define host_Misuse_H

#include <string>
#include <vector>

namespace host {

// Calls that a caller should not have made and that the host survived: a widget without parent, without name,
// under a parent that takes no children. Each is told once where it happens.
class Misuse {
  public:
    static void Record(const std::string& iText);
    static const std::vector<std::string>& Recorded();
    static void Clear();
};

// Stops the program because iOperation is declared but has no implementation.
[[noreturn]] void NotImplemented(const char* iOperation);

} // namespace host

#endif
