#pragma once

// Numbers of things in sentences: Counted(1, "step") == "1 step", Counted(2, "step") == "2 steps".

#include <cstddef>
#include <string>

namespace session {

inline std::string Counted(std::size_t count, const std::string& thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

} // namespace session
