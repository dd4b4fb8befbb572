#ifndef CATListValCATUnicodeString_H
#define CATListValCATUnicodeString_H

#include "CATOrderedList.h"
#include "CATUnicodeString.h"
// 1-based list of texts that a person sees.
typedef CATOrderedList<CATUnicodeString> CATListValCATUnicodeString;

#endif
