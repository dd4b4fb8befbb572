#ifndef CATEventSubscriber_H
#define CATEventSubscriber_H

#include "CATBaseUnknown.h"
#include "CATMacForIUnknown.h"

class CATNotification;

namespace host {
struct Subscription;
struct SubscriptionChain;
} // namespace host

typedef const char* CATCallbackEvent; // name of a notification class
typedef void* CATSubscriberData;
typedef int CATCallback; // identifies a live subscription; 0 or more

class CATEventSubscriber;

// A subscriber's method. iPublisher is the publisher as a CATBaseUnknown*.
typedef void (CATEventSubscriber::*CATSubscriberMethod)(CATCallbackEvent iEvent, void* iPublisher,
                                                        CATNotification* iNotification,
                                                        CATSubscriberData iData, CATCallback iId);

// An object that can subscribe to the events of publishers; see CATCallbackManager.h. Its subscriptions end
// with it.
class CATEventSubscriber : public CATBaseUnknown {
    CATDeclareClass;

  public:
    CATEventSubscriber();
    CATEventSubscriber(const CATEventSubscriber& iOther);
    CATEventSubscriber& operator=(const CATEventSubscriber& iOther);
    ~CATEventSubscriber() override;

  private:
    friend struct host::SubscriptionChain;

    host::Subscription* _firstSubscription = nullptr; // this object's own subscriptions
};

#endif
