#include "CATDlgNotifications.h"

CATImplementClass(CATDlgVisibilityNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgWindMoveNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgWindSizeNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgWindCloseNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgEscapeNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgDiaOKNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgDiaCANCELNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgDiaAPPLYNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgDiaCLOSENotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgDiaHELPNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgTabSelectNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgEditModifyNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgEditFocusOutNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgPushBActivateNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgRadBModifyNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgChkBModifyNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgComboSelectNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgComboDropNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgSpinnerModifyNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgListSelectNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgListActivateNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgListColumnActivateNotification, Implementation, CATNotification, CATNull);
CATImplementClass(CATDlgListCellModifyNotification, Implementation, CATNotification, CATNull);
