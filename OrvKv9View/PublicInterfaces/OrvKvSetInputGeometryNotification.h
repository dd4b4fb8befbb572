#ifndef OrvKvSetInputGeometryNotification_H
#define OrvKvSetInputGeometryNotification_H

#include "CATNotification.h"

// The user wants to pick one of the input geometries.
//
// Sent by OrvKvInsertionGeometrySub when one of its three selection buttons is pressed.
class OrvKvSetInputGeometryNotification : public CATNotification {
    CATDeclareClass;

  public:
    // iInputGeometryNo is 1, 2 or 3: the number of the button.
    explicit OrvKvSetInputGeometryNotification(int iInputGeometryNo);
    ~OrvKvSetInputGeometryNotification() override;

    // The number of the input geometry, 1 to 3.
    int GetInputGeometryNo();

  private:
    OrvKvSetInputGeometryNotification(OrvKvSetInputGeometryNotification& iOther) = delete;
    OrvKvSetInputGeometryNotification& operator=(OrvKvSetInputGeometryNotification& iOther) = delete;

    int _inputGeometryNo; // 1 to 3
};

#endif
