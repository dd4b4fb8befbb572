#ifndef ParameterFacts_H
#define ParameterFacts_H

#include "CATCkeGlobalFunctions.h"
#include "CATIParmAsStored.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"

#include "Recorders.h"

// The fixture of the facts about parameters: one of each magnitude.
class ParameterFixture : public PlatformTest {
  protected:
    static double Stored(const CATBaseUnknown_var& iParameter) {
        return CATIParmAsStored_var(iParameter)->GetValue();
    }

    const CATICkeParmFactory_var factory = CATCkeGlobalFunctions::GetVolatileFactory();
    const CATICkeParm_var length = factory->CreateLength("DIAMETER", 0.01);
    const CATICkeParm_var angle = factory->CreateAngle("COUNTERSINK", 1.5707963267948966);
    const CATICkeParm_var real = factory->CreateReal("RATIO", 2.5);
    const CATICkeParm_var integer = factory->CreateInteger("COUNT", 3);
    const CATICkeParm_var boolean = factory->CreateBoolean("CHAMFER", 1);
    const CATICkeParm_var string = factory->CreateString("THREAD", "M10");
};

#endif
