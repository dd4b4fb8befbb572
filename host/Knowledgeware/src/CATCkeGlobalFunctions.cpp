#include "CATCkeGlobalFunctions.h"

#include "VolatileFactory.h"

CATICkeParmFactory_var CATCkeGlobalFunctions::GetVolatileFactory() {
    if (host::FaultPoints::Fails("parameter factory"))
        return {};
    return host::Adopt<CATICkeParmFactory>(new host::VolatileFactory);
}
