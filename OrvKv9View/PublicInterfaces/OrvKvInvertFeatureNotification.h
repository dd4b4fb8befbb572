#ifndef OrvKvInvertFeatureNotification_H
#define OrvKvInvertFeatureNotification_H

#include "CATNotification.h"

// The user asks to turn the direction of the feature round.
//
// Sent by OrvKvInsertionGeometrySub when its invert button is pressed. Carries nothing.
class OrvKvInvertFeatureNotification : public CATNotification {
    CATDeclareClass;

  public:
    OrvKvInvertFeatureNotification();
    ~OrvKvInvertFeatureNotification() override;

  private:
    OrvKvInvertFeatureNotification(OrvKvInvertFeatureNotification& iOther) = delete;
    OrvKvInvertFeatureNotification& operator=(OrvKvInvertFeatureNotification& iOther) = delete;
};

#endif
