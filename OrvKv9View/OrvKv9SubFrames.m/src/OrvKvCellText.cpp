#include "OrvKvCellText.h"

CATUnicodeString OrvKvInParentheses(const CATUnicodeString& iText) {
    CATUnicodeString text("(");
    text += iText;
    text += ")";
    return text;
}

CATUnicodeString OrvKvDeviationText(double iDeviation) {
    CATUnicodeString text;
    text.BuildFromNum(iDeviation + 0.0, "%g"); // the sum turns -0 into 0
    return text;
}
