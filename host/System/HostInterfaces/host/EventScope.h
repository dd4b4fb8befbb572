#ifndef host_EventScope_H
#define host_EventScope_H

namespace host {

// One event of the main loop. Opened around everything that a person or a front end sets off:
//
//     { host::EventScope event; button.SendNotification(...); }
//
// Scopes nest. When the outermost one ends, watchers hear what changed and the objects whose delayed
// destruction was asked for are destroyed.
class EventScope {
  public:
    EventScope() { ++_depth; }
    ~EventScope() {
        if (--_depth == 0)
            Settle();
    }
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;

    static bool IsOpen() { return _depth > 0; }

    // What the end of an outermost event does, for code that runs outside any event: the idle step.
    static void RunIdle();

    // Lets iFlush run at the end of each outermost event, before and after the destructions. One function;
    // null takes it away.
    static void SetFlush(void (*iFlush)());
    // Runs that function now, for a window that opens in the middle of an event.
    static void Flush();

  private:
    static void Settle();
    static int _depth;
};

} // namespace host

#endif
