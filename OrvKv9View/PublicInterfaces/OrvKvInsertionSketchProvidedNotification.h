#ifndef OrvKvInsertionSketchProvidedNotification_H
#define OrvKvInsertionSketchProvidedNotification_H

#include "CATNotification.h"

// The sketch with the insertion points is there.
//
// No panel sends it; the command uses it for itself. Carries nothing.
class OrvKvInsertionSketchProvidedNotification : public CATNotification {
    CATDeclareClass;

  public:
    OrvKvInsertionSketchProvidedNotification();
    OrvKvInsertionSketchProvidedNotification(const OrvKvInsertionSketchProvidedNotification& iOther);
    OrvKvInsertionSketchProvidedNotification&
    operator=(const OrvKvInsertionSketchProvidedNotification& iOther);
    ~OrvKvInsertionSketchProvidedNotification() override;
};

#endif
