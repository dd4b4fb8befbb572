#pragma once

#include <string>

namespace app {

/// The value of an environment variable; empty when it is not there.
std::string Environment(const char* variable);

} // namespace app
