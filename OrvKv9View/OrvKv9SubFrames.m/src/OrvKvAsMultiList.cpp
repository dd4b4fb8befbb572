#include "OrvKvAsMultiList.h"

#include "CATDlgMultiList.h"

CATDlgMultiList* OrvKvAsMultiList(CATCommand* iFrom) {
    if (iFrom == nullptr || iFrom->IsAKindOf(CATDlgMultiList::ClassName()) == 0)
        return nullptr;
    return static_cast<CATDlgMultiList*>(iFrom);
}
