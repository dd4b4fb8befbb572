#ifndef OrvKvParmSetRenameNotif_H
#define OrvKvParmSetRenameNotif_H

#include "CATNotification.h"

// The user asks to rename the current parameter set.
//
// Sent by OrvKvParameterSetSub when its rename button is pressed. Carries nothing.
class OrvKvParmSetRenameNotif : public CATNotification {
    CATDeclareClass;

  public:
    OrvKvParmSetRenameNotif();
    ~OrvKvParmSetRenameNotif() override;

  private:
    OrvKvParmSetRenameNotif(OrvKvParmSetRenameNotif& iOther) = delete;
    OrvKvParmSetRenameNotif& operator=(OrvKvParmSetRenameNotif& iOther) = delete;
};

#endif
