#ifndef CATCallbackManager_H
#define CATCallbackManager_H

#include "CATEventSubscriber.h"
#include "CATNotification.h"

// Publish and subscribe. Any object publishes; the event is the name of a notification class.
//
// A subscription holds no reference: the end of either side ends it. Callbacks run at once, in the order of
// subscription; those that are added while an event is dispatched do not hear it, those that are removed
// meanwhile do not either.

// Subscribes iSubscriber. The identifier is unique among live subscriptions; -1 when an argument is null.
CATCallback AddCallback(CATEventSubscriber* iSubscriber, CATBaseUnknown* iPublisher, CATCallbackEvent iEvent,
                        CATSubscriberMethod iMethod, CATSubscriberData iData = nullptr);

// The same for the class of iNotification.
CATCallback AddCallback(CATEventSubscriber* iSubscriber, CATBaseUnknown* iPublisher,
                        CATNotification* iNotification, CATSubscriberMethod iMethod,
                        CATSubscriberData iData = nullptr);

// Ends one subscription. An identifier that is not theirs, -1 included, and null arguments change nothing.
void RemoveCallback(CATEventSubscriber* iSubscriber, CATBaseUnknown* iPublisher, CATCallback iId);

// Ends all subscriptions of iSubscriber on iPublisher.
void RemoveSubscriberCallbacks(CATEventSubscriber* iSubscriber, CATBaseUnknown* iPublisher);

// Runs the callbacks that iPublisher's subscribers have for the class of iNotification or a class above it.
// The notification stays the caller's.
void DispatchCallbacks(CATNotification* iNotification, CATBaseUnknown* iPublisher);

#endif
