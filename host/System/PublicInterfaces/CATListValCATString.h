#ifndef CATListValCATString_H
#define CATListValCATString_H

#include "CATOrderedList.h"
#include "CATString.h"
// 1-based list of 8-bit texts.
typedef CATOrderedList<CATString> CATListValCATString;

#endif
