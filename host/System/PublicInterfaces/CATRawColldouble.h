#ifndef CATRawColldouble_H
#define CATRawColldouble_H

#include "CATOrderedList.h"

// 1-based collection of numbers.
typedef CATOrderedList<double> CATRawColldouble;

#endif
