#include "SubscriptionIds.h"

#include <deque>
#include <vector>

namespace host {

namespace {

constexpr std::size_t restingAtLeast = 4096;

struct Slots {
    std::vector<Subscription*> subscriptions;
    std::deque<CATCallback> resting; // in the order in which they were given back
};

Slots& AllSlots() {
    static auto* slots = new Slots;
    return *slots;
}

} // namespace

CATCallback SubscriptionIds::Take(Subscription& iSubscription) {
    Slots& slots = AllSlots();
    if (slots.resting.size() <= restingAtLeast) {
        slots.subscriptions.push_back(&iSubscription);
        return static_cast<CATCallback>(slots.subscriptions.size()) - 1;
    }
    const CATCallback id = slots.resting.front();
    slots.resting.pop_front();
    slots.subscriptions[static_cast<std::size_t>(id)] = &iSubscription;
    return id;
}

void SubscriptionIds::GiveBack(CATCallback iId) {
    Slots& slots = AllSlots();
    slots.subscriptions[static_cast<std::size_t>(iId)] = nullptr;
    slots.resting.push_back(iId);
}

Subscription* SubscriptionIds::Find(CATCallback iId) {
    const Slots& slots = AllSlots();
    if (iId < 0 || static_cast<std::size_t>(iId) >= slots.subscriptions.size())
        return nullptr;
    return slots.subscriptions[static_cast<std::size_t>(iId)];
}

int SubscriptionIds::Live() {
    const Slots& slots = AllSlots();
    return static_cast<int>(slots.subscriptions.size() - slots.resting.size());
}

} // namespace host
