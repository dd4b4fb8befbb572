#pragma once

#include "CATListValCATUnicodeString.h"
#include "CATRawColldouble.h"

#include <initializer_list>

// Lists as panels take them.

inline CATListValCATUnicodeString TextsOf(std::initializer_list<const char*> iTexts) {
    CATListValCATUnicodeString texts;
    for (const char* text : iTexts)
        texts.Append(text);
    return texts;
}

inline CATRawColldouble NumbersOf(std::initializer_list<double> iNumbers) {
    CATRawColldouble numbers;
    for (const double number : iNumbers)
        numbers.Append(number);
    return numbers;
}
