#include "OrvKvParmSetRenameNotif.h"

CATImplementClass(OrvKvParmSetRenameNotif, Implementation, CATNotification, CATNull);

OrvKvParmSetRenameNotif::OrvKvParmSetRenameNotif() : CATNotification(CATNotificationDeleteOff) {}

OrvKvParmSetRenameNotif::~OrvKvParmSetRenameNotif() = default;
