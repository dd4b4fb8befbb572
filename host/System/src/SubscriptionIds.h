#ifndef SubscriptionIds_H
#define SubscriptionIds_H

#include "Publications.h"

namespace host {

// Identifiers of live subscriptions: small integers that are used again once their subscription has ended.
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
