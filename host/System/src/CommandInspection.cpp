#include "host/CommandInspection.h"

#include "AnalyseTable.h"
#include "Climb.h"
#include "Publications.h"
#include "SubscriptionIds.h"

namespace host {

int CommandInspection::UndeliveredNotifications() {
    return Climb::Undelivered();
}

int CommandInspection::Subscriptions() {
    return SubscriptionIds::Live();
}

int CommandInspection::SubscriptionsOn(const CATBaseUnknown& iPublisher) {
    const Publications* const publications = Publications::Find(iPublisher);
    if (publications == nullptr)
        return 0;
    int count = 0;
    for (const Subscription* each = publications->first; each != nullptr; each = each->next)
        if (each->subscriber != nullptr)
            ++count;
    return count;
}

int CommandInspection::AnalyseCallbacks(const CATCommand& iCommand) {
    return AnalyseTable::CountOf(iCommand);
}

int CommandInspection::AnalyseCallbacks() {
    return AnalyseTable::CountOfAll();
}

CATCommand* CommandInspection::OriginalSender() {
    const Climb* const climb = Climb::Innermost();
    return climb == nullptr ? nullptr : climb->Sender();
}

void CommandInspection::Reset() {
    Climb::ResetUndelivered();
}

} // namespace host
