#ifndef OrvKvUpdateParameterEditNotification_H
#define OrvKvUpdateParameterEditNotification_H

#include "CATNotification.h"

// The parameter edit panel has to show its parameter anew.
//
// No panel sends it; the command uses it for itself. Carries nothing.
class OrvKvUpdateParameterEditNotification : public CATNotification {
    CATDeclareClass;

  public:
    OrvKvUpdateParameterEditNotification();
    OrvKvUpdateParameterEditNotification(OrvKvUpdateParameterEditNotification& iOther);
    OrvKvUpdateParameterEditNotification& operator=(OrvKvUpdateParameterEditNotification& iOther);
    ~OrvKvUpdateParameterEditNotification() override;
};

#endif
