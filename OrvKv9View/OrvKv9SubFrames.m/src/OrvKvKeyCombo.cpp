#include "OrvKvKeyCombo.h"

#include "CATDlgCombo.h"
#include "OrvKvDisplayName.h"
#include "OrvKvPanelValues.h"

void OrvKvAppendKeys(CATDlgCombo& ioCombo, const CATListValCATString& iKeys) {
    for (int key = 1; key <= iKeys.Size(); ++key)
        ioCombo.SetLine(OrvKvDisplayName(iKeys[key]), OrvKvAtEnd, OrvKvAppend);
}

void OrvKvSelectKey(CATDlgCombo& ioCombo, int iNumber) {
    ioCombo.SetSelect(iNumber < 1 ? -1 : iNumber - 1, OrvKvNotifying);
}
