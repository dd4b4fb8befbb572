#ifndef OrvKvLimitingSketchProvidedNotification_H
#define OrvKvLimitingSketchProvidedNotification_H

#include "CATNotification.h"

// The sketch that limits the feature is there.
//
// No panel sends it; the command uses it for itself. Carries nothing.
class OrvKvLimitingSketchProvidedNotification : public CATNotification {
    CATDeclareClass;

  public:
    OrvKvLimitingSketchProvidedNotification();
    OrvKvLimitingSketchProvidedNotification(const OrvKvLimitingSketchProvidedNotification& iOther);
    OrvKvLimitingSketchProvidedNotification& operator=(const OrvKvLimitingSketchProvidedNotification& iOther);
    ~OrvKvLimitingSketchProvidedNotification() override;
};

#endif
