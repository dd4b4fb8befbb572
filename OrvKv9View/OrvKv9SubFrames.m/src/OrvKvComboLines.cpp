#include "OrvKvComboLines.h"

#include "CATDlgCombo.h"
#include "OrvKvPanelValues.h"

void OrvKvAppendLines(CATDlgCombo& ioCombo, const CATListValCATUnicodeString& iTexts) {
    for (int text = 1; text <= iTexts.Size(); ++text)
        ioCombo.SetLine(iTexts[text], OrvKvAtEnd, OrvKvAppend);
}

CATUnicodeString OrvKvSelectedText(const CATDlgCombo* iCombo) {
    CATUnicodeString text;
    const int line = iCombo == nullptr ? -1 : iCombo->GetSelect();
    if (line >= 0)
        iCombo->GetLine(text, line);
    return text;
}
