#pragma once

// Reading single cells of a catalogue file. Errors are sentences that quote the cell.

#include "engineering/Magnitude.h"
#include "engineering/ParameterSet.h"
#include "engineering/Parsed.h"

#include <string>
#include <string_view>

namespace engineering {

/// The text in quotation marks, shortened to stay on one line of a message.
std::string Quoted(std::string_view text);

/// An identifier: one or more of A-Z, a-z, 0-9 and _.
Parsed<std::string> ParseKey(std::string_view text);

/// The name of a table in a folder of the catalogue: a plain file name that ends with ".csv".
Parsed<std::string> ParseTableName(std::string_view text, std::string_view folder);

/// "0" or "1".
Parsed<bool> ParseFlag(std::string_view text);

/// A finite decimal number with a decimal point, such as 6.4, -1, +0.25 or 1e-3, and nothing after it.
Parsed<double> ParseNumber(std::string_view text);

/// A finite decimal number above zero.
Parsed<double> ParsePositive(std::string_view text);

/// A value of the magnitude; lengths and angles are multiplied by `unitToBase`. Booleans are "true" or
/// "false".
Parsed<Value> ParseValue(std::string_view text, Magnitude magnitude, double unitToBase);

} // namespace engineering
