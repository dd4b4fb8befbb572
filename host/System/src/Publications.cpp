#include "Publications.h"

#include "CATNotification.h"
#include "SubscriptionIds.h"

#include <new>

namespace host {

namespace {

// Memory of a subscription that has ended.
struct Spare {
    Spare* next;
};

Spare* spares = nullptr;

} // namespace

void* Subscription::operator new(std::size_t iSize) {
    if (spares == nullptr)
        return ::operator new(iSize);
    Spare* const spare = spares;
    spares = spare->next;
    return spare;
}

void Subscription::operator delete(void* iMemory) noexcept {
    spares = ::new (iMemory) Spare{spares};
}

Publications& Publications::Of(CATBaseUnknown& ioPublisher) {
    if (ioPublisher._publications == nullptr) {
        ioPublisher._publications = new Publications;
        ioPublisher._publications->publisher = &ioPublisher;
    }
    return *ioPublisher._publications;
}

void Publications::End(CATBaseUnknown& ioPublisher) {
    Publications* const publications = ioPublisher._publications;
    ioPublisher._publications = nullptr;
    publications->publisher = nullptr;
    const Dispatching ending(*publications);
    Subscription* each = publications->first;
    while (each != nullptr) {
        Subscription* const following = each->next;
        publications->EndSubscription(*each);
        each = following;
    }
}

void Publications::Append(Subscription& ioSubscription) {
    ioSubscription.publications = this;
    ioSubscription.previous = last;
    (last == nullptr ? first : last->next) = &ioSubscription;
    last = &ioSubscription;
}

void Publications::Dispatch(CATNotification& ioNotification) {
    if (first == nullptr)
        return;
    CATBaseUnknown* const source = publisher;
    const Subscription* const stop = last;
    const Dispatching dispatch(*this);
    for (Subscription* each = first; each != nullptr; each = each->next) {
        if (each->subscriber != nullptr && ioNotification.IsAKindOf(each->event) != 0)
            (each->subscriber->*each->method)(each->event, source, &ioNotification, each->data, each->id);
        if (each == stop)
            break;
    }
}

void Publications::EndSubscription(Subscription& ioSubscription) {
    if (ioSubscription.subscriber == nullptr)
        return;
    SubscriptionChain::Remove(ioSubscription);
    SubscriptionIds::GiveBack(ioSubscription.id);
    ioSubscription.subscriber = nullptr;
    if (dispatching > 0)
        return;
    Unlink(ioSubscription);
    delete &ioSubscription;
}

void Publications::Unlink(Subscription& ioSubscription) {
    (ioSubscription.previous == nullptr ? first : ioSubscription.previous->next) = ioSubscription.next;
    (ioSubscription.next == nullptr ? last : ioSubscription.next->previous) = ioSubscription.previous;
}

// Frees the ended subscriptions, and itself once the publisher is gone.
void Publications::Sweep() {
    if (dispatching > 0)
        return;
    Subscription* each = first;
    while (each != nullptr) {
        Subscription* const following = each->next;
        if (each->subscriber == nullptr) {
            Unlink(*each);
            delete each;
        }
        each = following;
    }
    if (publisher == nullptr)
        delete this;
}

void SubscriptionChain::Add(Subscription& ioSubscription) {
    Subscription*& head = ioSubscription.subscriber->_firstSubscription;
    ioSubscription.nextOfSubscriber = head;
    if (head != nullptr)
        head->previousOfSubscriber = &ioSubscription;
    head = &ioSubscription;
}

void SubscriptionChain::Remove(Subscription& ioSubscription) {
    Subscription*& head = ioSubscription.subscriber->_firstSubscription;
    Subscription* const before = ioSubscription.previousOfSubscriber;
    Subscription* const after = ioSubscription.nextOfSubscriber;
    (before == nullptr ? head : before->nextOfSubscriber) = after;
    if (after != nullptr)
        after->previousOfSubscriber = before;
}

void SubscriptionChain::EndAll(CATEventSubscriber& ioSubscriber) {
    Subscription* each = ioSubscriber._firstSubscription;
    while (each != nullptr) {
        Subscription* const following = each->nextOfSubscriber;
        each->publications->EndSubscription(*each);
        each = following;
    }
}

} // namespace host
