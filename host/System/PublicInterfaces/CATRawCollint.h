#ifndef CATRawCollint_H
#define CATRawCollint_H

#include "CATOrderedList.h"

// 1-based collection of integers.
typedef CATOrderedList<int> CATRawCollint;

#endif
