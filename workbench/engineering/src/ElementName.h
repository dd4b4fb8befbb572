#pragma once

// Reading the names of elements.

#include "engineering/Parsed.h"

#include <string>
#include <string_view>

namespace engineering {

/// A name that a person can read and tell from others: 1 to 100 characters of UTF-8 text, without control or
/// invisible format characters, and without a blank at either end.
Parsed<std::string> ParseElementName(std::string_view text);

} // namespace engineering
