#ifndef OrvKvComboLines_H
#define OrvKvComboLines_H

#include "CATListValCATUnicodeString.h"

class CATDlgCombo;

// Adds the texts behind the lines that are there.
void OrvKvAppendLines(CATDlgCombo& ioCombo, const CATListValCATUnicodeString& iTexts);

// The text of the selected line; empty while there is none, and without a combo.
CATUnicodeString OrvKvSelectedText(const CATDlgCombo* iCombo);

#endif
