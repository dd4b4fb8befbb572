#include "OrvKvValueEvents.h"

#include "CATCallbackManager.h"
#include "CATIParmEvents.h"
#include "OrvKvInterfaceOf.h"

static constexpr int Changed = 1;
static constexpr CATCallback NoSubscription = -1;

CATCallback OrvKvSubscribeValue(CATEventSubscriber& ioSubscriber, const CATICkeParm_var& iParm,
                                CATSubscriberMethod iMethod, CATSubscriberData iData) {
    const CATIParmEvents_var events = OrvKvInterfaceOf<CATIParmEvents_var>(iParm);
    return AddCallback(&ioSubscriber, events->GetPublisher(), events->GetValueChangedEvent(), iMethod, iData);
}

bool OrvKvUnsubscribeValue(CATEventSubscriber& ioSubscriber, const CATICkeParm_var& iParm,
                           CATCallback& ioId) {
    const CATCallback id = ioId;
    ioId = NoSubscription;
    const CATIParmEvents_var events(iParm);
    if (!events)
        return false;
    RemoveCallback(&ioSubscriber, events->GetPublisher(), id);
    return true;
}

void OrvKvRaiseValue(const CATICkeParm_var& iParm) {
    OrvKvInterfaceOf<CATIParmEvents_var>(iParm)->RaiseChange(Changed);
}
