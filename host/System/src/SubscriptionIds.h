#ifndef SubscriptionIds_H
#define SubscriptionIds_H

#include "Publications.h"

namespace host {

// Identifiers of live subscriptions: small integers. One that was given back rests until many others were
// given back after it, so that a subscriber who removes a subscription twice does not hit a newer one.
class SubscriptionIds {
  public:
    static CATCallback Take(Subscription& iSubscription);
    static void GiveBack(CATCallback iId);
    // The subscription behind iId, or null.
    static Subscription* Find(CATCallback iId);
    static int Live();
};

} // namespace host

#endif
