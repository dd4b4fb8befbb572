#pragma once

// Words of the command line, and what the program prints about them: one line for each name and value.

#include <cstddef>
#include <string>
#include <vector>

namespace app {

std::string Joined(const std::vector<std::string>& texts, const char* between);

/// Why the text can name nothing: it is empty, too long, or has a control character. Empty for a text that
/// may. `what` begins the sentence.
std::string TextFault(const std::string& text, const std::string& what);

/// The shortest text without exponent that gives the same number: as a table has it, without zeros at the
/// end.
std::string TextOf(double number);

std::string Millimetres(double length);

/// "name     value", the value in column `width`.
void PrintLine(const std::string& name, const std::string& value, std::size_t width);

} // namespace app
