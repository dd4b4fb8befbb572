#include "host/DelayedDestruction.h"

#include <algorithm>
#include <deque>

namespace host {

namespace {

std::deque<CATCommand*>& Waiting() {
    static std::deque<CATCommand*> waiting;
    return waiting;
}

} // namespace

int DelayedDestruction::Pending() {
    return static_cast<int>(Waiting().size());
}

void DelayedDestruction::Queue(CATCommand& ioCommand) {
    if (ioCommand._isDoomed)
        return;
    ioCommand._isDoomed = true;
    Waiting().push_back(&ioCommand);
}

void DelayedDestruction::Drain() {
    while (!Waiting().empty()) {
        CATCommand* const next = Waiting().front();
        Waiting().pop_front(); // first, so that a destructor that drains does not meet it again
        delete next;
    }
}

void DelayedDestruction::Forget(CATCommand& ioCommand) {
    if (!ioCommand._isDoomed)
        return;
    std::deque<CATCommand*>& waiting = Waiting();
    const auto found = std::find(waiting.begin(), waiting.end(), &ioCommand);
    if (found != waiting.end())
        waiting.erase(found);
}

} // namespace host
