#pragma once

// Checks what a session expects.

#include "session/Player.h"

namespace session {

/// The failure with the expected and the actual value, or none when the expectation holds.
std::optional<Failure> CheckExpectation(const Step& step, const Happenings& happenings);

} // namespace session
