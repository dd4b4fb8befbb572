#ifndef OrvKvRemoveInsertionPointNotification_H
#define OrvKvRemoveInsertionPointNotification_H

#include "CATNotification.h"

// The user has picked an insertion point again, which takes it out of the list.
//
// Sent by OrvKvInputGeomSelListDlg when a point is picked closer than 0.001 mm to one in its list.
class OrvKvRemoveInsertionPointNotification : public CATNotification {
    CATDeclareClass;

  public:
    // iPosition is the place of the removed point in the list, from 1.
    explicit OrvKvRemoveInsertionPointNotification(int iPosition);
    // A copy does not carry the position: it starts with 0, and an assignment leaves the position alone.
    OrvKvRemoveInsertionPointNotification(OrvKvRemoveInsertionPointNotification& iOther);
    OrvKvRemoveInsertionPointNotification& operator=(OrvKvRemoveInsertionPointNotification& iOther);
    ~OrvKvRemoveInsertionPointNotification() override;

    // The position of the removed point, from 1; in spite of the name no count.
    int GetPointCountToRemove();

  private:
    int _position; // from 1
};

#endif
