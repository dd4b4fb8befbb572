#ifndef CATICkeParm_H
#define CATICkeParm_H

#include "CATICkeInst.h"
#include "CATIParmPublisher.h"

// A parameter: a named value with a magnitude and a unit.
//
// The same object has CATIParmAsStored (the value in storage units), CATIParmTolerance (lengths and angles
// alone), CATIParmEvents (what subscribers hear), CATICkeParamFrame (makes edition frames) and
// CATICkeParmManipulator (their increment); a handle of the wanted interface made from it reaches them.
class CATICkeParm : public CATICkeInst {
    CATDeclareInterface;

  public:
    virtual CATUnicodeString Name() = 0;
    // The name as seen from a publisher: "Publisher\Name" where another one publishes the parameter, the bare
    // name for its own publisher and for a null handle.
    virtual CATUnicodeString RelativeName(const CATIParmPublisher_var& iPublisher) = 0;
    // The value as text with its unit, as a person reads it: "10mm", "0.5deg", "2.5", "true". Numbers have at
    // most six digits that count and a decimal point; whole numbers are shown in full.
    virtual CATUnicodeString Show() = 0;
    // The parameter's value as an object of its own interface.
    virtual CATICkeInst_var Value() = 0;
    // Who may change the value: 1 nobody, 3 the user. Other values change nothing.
    virtual void SetUserAccessMode(int iMode) = 0;
    virtual int GetUserAccessMode() = 0;
};

CATDeclareHandler(CATICkeParm, CATICkeInst);

#endif
