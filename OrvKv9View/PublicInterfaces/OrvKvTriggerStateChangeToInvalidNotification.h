#ifndef OrvKvTriggerStateChangeToInvalidNotification_H
#define OrvKvTriggerStateChangeToInvalidNotification_H

#include "CATNotification.h"

// What is entered is not complete: the command has to go to its invalid state.
//
// Sent by OrvKvMainPanel when the command calls TriggerStateChangeToInvalid. Carries nothing.
class OrvKvTriggerStateChangeToInvalidNotification : public CATNotification {
    CATDeclareClass;

  public:
    OrvKvTriggerStateChangeToInvalidNotification();
    OrvKvTriggerStateChangeToInvalidNotification(OrvKvTriggerStateChangeToInvalidNotification& iOther);
    OrvKvTriggerStateChangeToInvalidNotification&
    operator=(OrvKvTriggerStateChangeToInvalidNotification& iOther);
    ~OrvKvTriggerStateChangeToInvalidNotification() override;
};

#endif
