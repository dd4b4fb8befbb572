#ifndef OrvKvKeyCombo_H
#define OrvKvKeyCombo_H

#include "CATListValCATString.h"

class CATDlgCombo;

// A combo in which each line stands for a key of a list: line i - 1 for key i.

// Adds the display names of the keys behind the lines that are there.
void OrvKvAppendKeys(CATDlgCombo& ioCombo, const CATListValCATString& iKeys);

// Selects the line of key iNumber, from 1, as if the user had chosen it; another number selects nothing.
void OrvKvSelectKey(CATDlgCombo& ioCombo, int iNumber);

#endif
