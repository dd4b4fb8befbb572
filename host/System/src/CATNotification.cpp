#include "CATNotification.h"

#include "host/FaultPoints.h"

#include <new>

CATImplementClass(CATNotification, Implementation, CATBaseUnknown, CATNull);

CATNotification::CATNotification(int iAutomaticDelete) : _automaticDelete(iAutomaticDelete) {}

CATNotification::CATNotification(const CATNotification&) = default;

CATNotification& CATNotification::operator=(const CATNotification&) = default;

CATNotification::~CATNotification() = default;

void* CATNotification::operator new(std::size_t iSize) noexcept {
    if (host::FaultPoints::Fails("notification allocation"))
        return nullptr;
    return ::operator new(iSize, std::nothrow);
}

void CATNotification::operator delete(void* iMemory) noexcept {
    ::operator delete(iMemory);
}
