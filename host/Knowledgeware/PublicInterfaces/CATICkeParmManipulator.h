#ifndef CATICkeParmManipulator_H
#define CATICkeParmManipulator_H

#include "CATMacForInterfaces.h"

// How a parameter is handled by its edition frames. The same object as its CATICkeParm; parameters that have
// no steps (BOOLEAN and STRING) have no such interface.
class CATICkeParmManipulator : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    // By how much one step of a spinner changes the value, in storage units; 1 at start. It holds for the
    // frames that are there and for those that are built later. A number that is not finite or not positive
    // changes nothing.
    virtual void SetIncrement(double iIncrement) = 0;
};

CATDeclareHandler(CATICkeParmManipulator, CATBaseUnknown);

#endif
