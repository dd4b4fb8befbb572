#ifndef ActiveCommand_H
#define ActiveCommand_H

#include "CATCommand.h"

namespace host {

// The command that hears the notifications nobody in the dialog tree has answered. Not owned.
class ActiveCommand {
  public:
    static CATCommand* Get() { return _active; }
    static void Set(CATCommand* iCommand) { _active = iCommand; }

  private:
    static CATCommand* _active;
};

} // namespace host

#endif
