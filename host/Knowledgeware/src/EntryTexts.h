#ifndef EntryTexts_H
#define EntryTexts_H

#include "host/Outcome.h"

#include <string>
#include <vector>

namespace host {

// Why a typed value or a step is refused.
enum class EntryText {
    // No parameters.
    NothingTyped,
    // /p1 is what was typed.
    NotANumber,
    OutsideRange,
    SeveralNumbers,
    NotAWholeNumber,
    NeitherTrueNorFalse,
    OpenParenthesis,
    NotOpenParenthesis,
    TooManyParentheses,      // more than /p2 in one another
    NoNumberBehind,          // the character /p2
    NoNumberBefore,          // the character /p2
    NoOperatorBehind,        // a closing parenthesis
    NoOperatorBefore,        // an opening parenthesis
    NotAUnit,                // /p2 is the magnitude, /p3 the list of its units
    NotAUnitWhereNoneExists, // /p2 is the magnitude
    OtherMagnitude,          // than /p2
    SecondUnit,
    UnlikeTerms,
    NumberWithoutUnit,
    DivisionByZero,
    TooLarge,
    TooSmall,
    // /p1 is the name of the parameter.
    ValueNotTaken,
    ReadOnly,
    NoSteps,
    StepTooFar,
    StepNotTaken, // to /p2
    StepTooSmall, // of /p2
};

// Refused with the sentence in the language of the host's messages; in English where there is none.
// Parameters that the sentence does not use are ignored.
Outcome RefusedFor(EntryText iWhy, const std::vector<std::string>& iParameters = {});

// What a parameter of iMagnitude measures, as the sentences of that language want it: LENGTH in English.
std::string WordFor(const std::string& iMagnitude);

} // namespace host

#endif
