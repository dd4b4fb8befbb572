#include "CAT2DRep.h"

#include "CAT2DViewer.h"
#include "host/FaultPoints.h"

#include <new>

CATImplementClass(CAT2DRep, Implementation, CATBaseUnknown, CATNull);

CAT2DRep::CAT2DRep() = default;

CAT2DRep::~CAT2DRep() {
    while (!_viewers.empty())
        _viewers.back()->LoseMainRep();
}

void* CAT2DRep::operator new(std::size_t iSize) noexcept {
    if (host::FaultPoints::Fails("representation allocation"))
        return nullptr;
    return ::operator new(iSize, std::nothrow);
}

void CAT2DRep::operator delete(void* iMemory) noexcept {
    ::operator delete(iMemory);
}
