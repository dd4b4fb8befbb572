#pragma once

#include <string>

namespace support {

// The lines in which two texts differ: "-12: line" stands in the expected text alone, "+12: line" in the
// actual one. Empty when the texts are equal.
std::string LineDiff(const std::string& iExpected, const std::string& iActual);

} // namespace support
