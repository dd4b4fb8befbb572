#ifndef CATCkeGlobalFunctions_H
#define CATCkeGlobalFunctions_H

#include "CATICkeParmFactory.h"

class CATCkeGlobalFunctions {
  public:
    // The factory of volatile parameters: nothing saves them, they go with their last reference. May be null.
    static CATICkeParmFactory_var GetVolatileFactory();
};

#endif
