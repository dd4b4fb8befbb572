#pragma once

// A rule of a feature type: a condition over its parameters that a sound feature meets.

#include <string>

namespace engineering {

enum class Severity {
    Warning,  ///< unusual, may be meant
    Violation ///< the feature cannot be made or does not work
};

struct Rule {
    std::string key;       ///< unique within its type; the message in other languages is "Type.key"
    std::string condition; ///< over parameter names, holds when all is well: "D > DH"
    Severity severity = Severity::Violation;
    std::string message; ///< what is wrong when the condition does not hold, in English
    std::string problem; ///< why the condition cannot be used, as ToText(Problem) tells; else empty
};

} // namespace engineering
