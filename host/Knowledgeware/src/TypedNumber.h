#ifndef TypedNumber_H
#define TypedNumber_H

#include "host/Outcome.h"

#include <string>

namespace host {

// A number with what stands behind it, as a person types it: "1,25 cm".
struct TypedNumber {
    double number = 0.0;
    std::string unit; // empty when there is none

    // Reads iText. Refused with the reason when it does not start with a number, when the number is too large
    // or too small for a double and when a second number follows.
    static Outcome Read(const std::string& iText, TypedNumber& oTyped);
};

// What counts as a blank in a typed text.
constexpr const char* blanks = " \t\r\n";

// iText without the blanks at its two ends.
std::string WithoutOuterBlanks(const std::string& iText);
// The text as a sentence quotes it: of a long one the beginning, with "..." behind it.
std::string Shortened(const std::string& iText);

} // namespace host

#endif
