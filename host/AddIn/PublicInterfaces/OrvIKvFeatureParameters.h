#ifndef OrvIKvFeatureParameters_H
#define OrvIKvFeatureParameters_H

#include "CATMacForInterfaces.h"
#include "CATString.h"

// The parameters of a feature that is being edited: which of them have a temporary modification, one that is
// not applied to the feature yet.
class OrvIKvFeatureParameters : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    // 1 or 0; 0 for a name that the feature does not have.
    virtual unsigned char IsTemporarilyModified(const CATString& iName) = 0;
    // Notes (1) or takes back (0) the temporary modification of a parameter.
    virtual void SetTemporarilyModified(const CATString& iName, unsigned char iModified) = 0;
    // Nothing is modified any more: what there was is applied or dropped.
    virtual void ForgetModifications() = 0;
};

CATDeclareHandler(OrvIKvFeatureParameters, CATBaseUnknown);

#endif
