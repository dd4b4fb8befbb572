#ifndef host_DelayedDestruction_H
#define host_DelayedDestruction_H

#include "CATCommand.h"

namespace host {

// The commands that asked for their delayed destruction and still live.
class DelayedDestruction {
  public:
    static int Pending();
    // Destroys them, and those that are queued meanwhile. Each is destroyed once, whatever its parent does.
    static void Drain();
    // Queues ioCommand; asked for twice it stays queued once.
    static void Queue(CATCommand& ioCommand);
    static bool IsDoomed(const CATCommand& iCommand) { return iCommand._isDoomed; }

  private:
    friend class ::CATCommand;
    static void Forget(CATCommand& ioCommand);
};

} // namespace host

#endif
