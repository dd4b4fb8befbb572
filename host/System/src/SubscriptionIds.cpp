#include "SubscriptionIds.h"

#include <vector>

namespace host {

namespace {

struct Slots {
    std::vector<Subscription*> subscriptions;
    std::vector<CATCallback> unused;
};

Slots& AllSlots() {
    static auto* slots = new Slots;
    return *slots;
}

} // namespace

CATCallback SubscriptionIds::Take(Subscription& iSubscription) {
    Slots& slots = AllSlots();
    if (slots.unused.empty()) {
        slots.subscriptions.push_back(&iSubscription);
        return static_cast<CATCallback>(slots.subscriptions.size()) - 1;
    }
    const CATCallback id = slots.unused.back();
    slots.unused.pop_back();
    slots.subscriptions[static_cast<std::size_t>(id)] = &iSubscription;
    return id;
}

void SubscriptionIds::GiveBack(CATCallback iId) {
    Slots& slots = AllSlots();
    slots.subscriptions[static_cast<std::size_t>(iId)] = nullptr;
    slots.unused.push_back(iId);
}

Subscription* SubscriptionIds::Find(CATCallback iId) {
    const Slots& slots = AllSlots();
    if (iId < 0 || static_cast<std::size_t>(iId) >= slots.subscriptions.size())
        return nullptr;
    return slots.subscriptions[static_cast<std::size_t>(iId)];
}

int SubscriptionIds::Live() {
    const Slots& slots = AllSlots();
    return static_cast<int>(slots.subscriptions.size() - slots.unused.size());
}

} // namespace host
