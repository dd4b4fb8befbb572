#include "host/EventScope.h"

#include "host/DelayedDestruction.h"

namespace host {

int EventScope::_depth = 0;

namespace {
void (*flushFunction)() = nullptr;
}

void EventScope::SetFlush(void (*iFlush)()) {
    flushFunction = iFlush;
}

void EventScope::Flush() {
    if (flushFunction != nullptr)
        flushFunction();
}

void EventScope::RunIdle() {
    if (!IsOpen())
        Settle();
}

// Destructors and watchers run inside a scope of their own, so that what they set off does not settle twice.
void EventScope::Settle() {
    ++_depth;
    Flush();
    while (DelayedDestruction::Pending() > 0) {
        DelayedDestruction::Drain();
        Flush();
    }
    --_depth;
}

} // namespace host
