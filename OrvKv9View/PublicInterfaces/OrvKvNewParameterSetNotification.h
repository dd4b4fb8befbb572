#ifndef OrvKvNewParameterSetNotification_H
#define OrvKvNewParameterSetNotification_H

#include "CATNotification.h"

// The user asks for a new parameter set.
//
// Sent by OrvKvParameterSetSub when its new button is pressed. Carries nothing.
class OrvKvNewParameterSetNotification : public CATNotification {
    CATDeclareClass;

  public:
    OrvKvNewParameterSetNotification();
    ~OrvKvNewParameterSetNotification() override;

  private:
    OrvKvNewParameterSetNotification(OrvKvNewParameterSetNotification& iOther) = delete;
    OrvKvNewParameterSetNotification& operator=(OrvKvNewParameterSetNotification& iOther) = delete;
};

#endif
