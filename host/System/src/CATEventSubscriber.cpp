#include "CATEventSubscriber.h"

#include "Publications.h"

CATImplementClass(CATEventSubscriber, Implementation, CATBaseUnknown, CATNull);

CATEventSubscriber::CATEventSubscriber() = default;

CATEventSubscriber::CATEventSubscriber(const CATEventSubscriber& iOther) : CATBaseUnknown(iOther) {}

CATEventSubscriber& CATEventSubscriber::operator=(const CATEventSubscriber&) {
    return *this;
}

CATEventSubscriber::~CATEventSubscriber() {
    host::SubscriptionChain::EndAll(*this);
}
