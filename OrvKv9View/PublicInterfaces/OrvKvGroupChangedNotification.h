#ifndef OrvKvGroupChangedNotification_H
#define OrvKvGroupChangedNotification_H

#include "CATNotification.h"

// The user has chosen another feature group.
//
// Sent by OrvKvGroupAndGeometrySub with the line of the group combo. A copy carries the same group.
class OrvKvGroupChangedNotification : public CATNotification {
    CATDeclareClass;

  public:
    // iGroup counts from 1.
    explicit OrvKvGroupChangedNotification(int iGroup);
    OrvKvGroupChangedNotification(const OrvKvGroupChangedNotification& iOther);
    OrvKvGroupChangedNotification& operator=(const OrvKvGroupChangedNotification& iOther);
    ~OrvKvGroupChangedNotification() override;

    // Writes the number of the group, from 1. Always succeeds; oGroup must not be null.
    HRESULT GetGroup(int* oGroup);

  private:
    int _group; // from 1
};

#endif
