#ifndef OrvKvDeleteParameterSetNotification_H
#define OrvKvDeleteParameterSetNotification_H

#include "CATNotification.h"

// The user asks to delete the current parameter set.
//
// Sent by OrvKvParameterSetSub when its delete button is pressed. Carries nothing.
class OrvKvDeleteParameterSetNotification : public CATNotification {
    CATDeclareClass;

  public:
    OrvKvDeleteParameterSetNotification();
    ~OrvKvDeleteParameterSetNotification() override;

  private:
    OrvKvDeleteParameterSetNotification(OrvKvDeleteParameterSetNotification& iOther) = delete;
    OrvKvDeleteParameterSetNotification& operator=(OrvKvDeleteParameterSetNotification& iOther) = delete;
};

#endif
