#ifndef Publications_H
#define Publications_H

#include "CATEventSubscriber.h"

#include <cstddef>

namespace host {

struct Publications;

// One subscription: a link in the chain of its publisher and in the chain of its subscriber.
//
// Filling a list anew ends and begins two for each row, so their memory is kept for the next ones.
struct Subscription {
    static void* operator new(std::size_t iSize);
    static void operator delete(void* iMemory) noexcept;

    CATEventSubscriber* subscriber = nullptr; // null once the subscription has ended
    Publications* publications = nullptr;
    const char* event = nullptr; // interned
    CATSubscriberMethod method = nullptr;
    CATSubscriberData data = nullptr;
    CATCallback id = -1;
    Subscription* previous = nullptr; // in the publisher's chain
    Subscription* next = nullptr;
    Subscription* previousOfSubscriber = nullptr;
    Subscription* nextOfSubscriber = nullptr;
};

// The subscriptions on one publisher, in order.
//
// While an event is dispatched no link is taken out: ended ones stay, marked, until the dispatch is over.
struct Publications {
    CATBaseUnknown* publisher = nullptr; // null once it is destroyed
    Subscription* first = nullptr;
    Subscription* last = nullptr;
    int dispatching = 0;

    // The publications of ioPublisher, made when there are none.
    static Publications& Of(CATBaseUnknown& ioPublisher);
    // The publications of iPublisher, or null.
    static Publications* Find(const CATBaseUnknown& iPublisher) { return iPublisher._publications; }
    // Ends all of them because the publisher is being destroyed.
    static void End(CATBaseUnknown& ioPublisher);

    void Append(Subscription& ioSubscription);
    void Dispatch(CATNotification& ioNotification);
    // Marks a subscription as ended and frees what can be freed.
    void EndSubscription(Subscription& ioSubscription);

  private:
    // One dispatch; what has ended meanwhile is freed when it is over, by an error as well.
    class Dispatching {
      public:
        explicit Dispatching(Publications& ioPublications) : _publications(ioPublications) {
            ++_publications.dispatching;
        }
        ~Dispatching() {
            --_publications.dispatching;
            _publications.Sweep();
        }
        Dispatching(const Dispatching&) = delete;
        Dispatching& operator=(const Dispatching&) = delete;

      private:
        Publications& _publications;
    };

    void Unlink(Subscription& ioSubscription);
    void Sweep();
};

// The chain of one subscriber.
struct SubscriptionChain {
    static void Add(Subscription& ioSubscription);
    static void Remove(Subscription& ioSubscription);
    static void EndAll(CATEventSubscriber& ioSubscriber);
};

} // namespace host

#endif
