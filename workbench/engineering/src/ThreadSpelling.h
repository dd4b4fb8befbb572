#pragma once

// The spellings of a thread's designation that mean the same.

#include "engineering/Thread.h"

#include <optional>
#include <string>
#include <string_view>

namespace engineering {

/// One spelling for all that differ in blanks, case, decimal comma or point, and zeros at the end of a
/// fraction: "M 10X1,50" gives "m10x1.5". The blank of a mixed number stays: "G 1 1/4" gives "g1 1/4".
std::string NormalSpelling(std::string_view designation);

/// The normal spelling of a metric coarse thread with its pitch, which its designation leaves out: "m10x1.5".
/// None for any other thread.
std::optional<std::string> SpellingWithPitch(const Thread& thread);

} // namespace engineering
