#include "ExitStatus.h"

#include <iostream>

namespace app {

int Complain(ExitStatus status, const char* sentence) {
    std::cerr << "kelvane: " << sentence << '\n';
    return status;
}

} // namespace app
