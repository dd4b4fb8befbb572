#ifndef OrvKvTriggerStateChangeToValidNotification_H
#define OrvKvTriggerStateChangeToValidNotification_H

#include "CATNotification.h"

// What is entered is complete: the command may go to its valid state.
//
// Sent by OrvKvMainPanel when the command calls TriggerStateChangeToValid. Carries nothing.
class OrvKvTriggerStateChangeToValidNotification : public CATNotification {
    CATDeclareClass;

  public:
    OrvKvTriggerStateChangeToValidNotification();
    ~OrvKvTriggerStateChangeToValidNotification() override;

  private:
    OrvKvTriggerStateChangeToValidNotification(OrvKvTriggerStateChangeToValidNotification& iOther) = delete;
    OrvKvTriggerStateChangeToValidNotification&
    operator=(OrvKvTriggerStateChangeToValidNotification& iOther) = delete;
};

#endif
