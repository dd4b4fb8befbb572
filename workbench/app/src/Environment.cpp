#include "Environment.h"

#include <cstdlib>

namespace app {

std::string Environment(const char* variable) {
    const char* const value = std::getenv(variable);
    return value == nullptr ? std::string() : value;
}

} // namespace app
