#include "engineering/ThreadStandard.h"

#include <algorithm>

namespace engineering {

int ThreadStandard::PositionOf(std::string_view designation) const {
    const auto found = std::ranges::find(threads, designation, &Thread::designation);
    return found == threads.end() ? -1 : static_cast<int>(found - threads.begin());
}

} // namespace engineering
