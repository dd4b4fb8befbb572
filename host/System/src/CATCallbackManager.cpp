#include "CATCallbackManager.h"

#include "InternedNames.h"
#include "Publications.h"
#include "SubscriptionIds.h"

CATCallback AddCallback(CATEventSubscriber* iSubscriber, CATBaseUnknown* iPublisher, CATCallbackEvent iEvent,
                        CATSubscriberMethod iMethod, CATSubscriberData iData) {
    if (iSubscriber == nullptr || iPublisher == nullptr || iEvent == nullptr || iMethod == nullptr)
        return -1;
    auto* const subscription = new host::Subscription;
    subscription->subscriber = iSubscriber;
    subscription->event = host::Intern(iEvent);
    subscription->method = iMethod;
    subscription->data = iData;
    subscription->id = host::SubscriptionIds::Take(*subscription);
    host::Publications::Of(*iPublisher).Append(*subscription);
    host::SubscriptionChain::Add(*subscription);
    return subscription->id;
}

CATCallback AddCallback(CATEventSubscriber* iSubscriber, CATBaseUnknown* iPublisher,
                        CATNotification* iNotification, CATSubscriberMethod iMethod,
                        CATSubscriberData iData) {
    const char* event = iNotification == nullptr ? nullptr : iNotification->IsA();
    return AddCallback(iSubscriber, iPublisher, event, iMethod, iData);
}

void RemoveCallback(CATEventSubscriber* iSubscriber, CATBaseUnknown* iPublisher, CATCallback iId) {
    host::Subscription* const subscription = host::SubscriptionIds::Find(iId);
    if (subscription == nullptr || iSubscriber == nullptr || iPublisher == nullptr)
        return;
    host::Publications& publications = *subscription->publications;
    if (subscription->subscriber == iSubscriber && publications.publisher == iPublisher)
        publications.EndSubscription(*subscription);
}

void RemoveSubscriberCallbacks(CATEventSubscriber* iSubscriber, CATBaseUnknown* iPublisher) {
    if (iSubscriber == nullptr || iPublisher == nullptr)
        return;
    host::Publications* const publications = host::Publications::Find(*iPublisher);
    if (publications == nullptr)
        return;
    host::Subscription* each = publications->first;
    while (each != nullptr) {
        host::Subscription* const following = each->next;
        if (each->subscriber == iSubscriber)
            publications->EndSubscription(*each);
        each = following;
    }
}

void DispatchCallbacks(CATNotification* iNotification, CATBaseUnknown* iPublisher) {
    if (iNotification == nullptr || iPublisher == nullptr)
        return;
    host::Publications* const publications = host::Publications::Find(*iPublisher);
    if (publications != nullptr)
        publications->Dispatch(*iNotification);
}
