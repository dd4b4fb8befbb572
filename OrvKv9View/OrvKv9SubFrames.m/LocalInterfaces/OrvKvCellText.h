#ifndef OrvKvCellText_H
#define OrvKvCellText_H

#include "CATUnicodeString.h"

// Texts in the tables of parameters.

// How a text stands that cannot be edited: "(H7)".
CATUnicodeString OrvKvInParentheses(const CATUnicodeString& iText);

// A deviation with at most six digits that count: "0.1", "1e-07". Zero has no sign.
CATUnicodeString OrvKvDeviationText(double iDeviation);

#endif
