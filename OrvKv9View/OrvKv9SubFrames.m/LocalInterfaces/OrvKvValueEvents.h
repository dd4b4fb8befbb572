#ifndef OrvKvValueEvents_H
#define OrvKvValueEvents_H

#include "CATEventSubscriber.h"
#include "CATICkeParm.h"

// The event of a parameter that its value has changed. Unless told otherwise a null parameter raises the
// platform's null-handle error, one without events "Error_NoInterface".

// Lets a method hear it; the method receives iData. Gives the identifier of the subscription.
CATCallback OrvKvSubscribeValue(CATEventSubscriber& ioSubscriber, const CATICkeParm_var& iParm,
                                CATSubscriberMethod iMethod, CATSubscriberData iData = nullptr);

// Ends that, if ioId is a subscription, and leaves -1 in ioId. Raises nothing: false for a parameter that is
// null or has no events, whose subscription ends with the subscriber.
bool OrvKvUnsubscribeValue(CATEventSubscriber& ioSubscriber, const CATICkeParm_var& iParm, CATCallback& ioId);

// Runs the callbacks of all subscribers.
void OrvKvRaiseValue(const CATICkeParm_var& iParm);

#endif
