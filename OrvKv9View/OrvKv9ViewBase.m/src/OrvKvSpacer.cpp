#include "OrvKvSpacer.h"

#include "CATDlgContainer.h"

CATDlgContainer* OrvKvNewSpacer(CATDialog* iParent, const char* iName, int iHeight, int iWidth) {
    auto* const spacer = new CATDlgContainer(iParent, iName);
    if (spacer != nullptr)
        spacer->SetRectDimensions(1, 1, iHeight, iWidth);
    return spacer;
}
