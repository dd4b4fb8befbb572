#ifndef CATDlgNotifications_H
#define CATDlgNotifications_H

#include "CATNotification.h"

// The notification classes of the widgets, named after what a person did.

#define CATDeclareDlgNotification(iClass)                                                                    \
    class iClass : public CATNotification {                                                                  \
        CATDeclareClass;                                                                                     \
    }

CATDeclareDlgNotification(CATDlgVisibilityNotification);
CATDeclareDlgNotification(CATDlgWindMoveNotification);
CATDeclareDlgNotification(CATDlgWindSizeNotification);
CATDeclareDlgNotification(CATDlgWindCloseNotification);
CATDeclareDlgNotification(CATDlgEscapeNotification);
CATDeclareDlgNotification(CATDlgDiaOKNotification);
CATDeclareDlgNotification(CATDlgDiaCANCELNotification);
CATDeclareDlgNotification(CATDlgDiaAPPLYNotification);
CATDeclareDlgNotification(CATDlgDiaCLOSENotification);
CATDeclareDlgNotification(CATDlgDiaHELPNotification);
CATDeclareDlgNotification(CATDlgTabSelectNotification);
CATDeclareDlgNotification(CATDlgEditModifyNotification);
CATDeclareDlgNotification(CATDlgEditFocusOutNotification);
CATDeclareDlgNotification(CATDlgPushBActivateNotification);
CATDeclareDlgNotification(CATDlgRadBModifyNotification);
CATDeclareDlgNotification(CATDlgChkBModifyNotification);
CATDeclareDlgNotification(CATDlgComboSelectNotification);
CATDeclareDlgNotification(CATDlgComboDropNotification);
CATDeclareDlgNotification(CATDlgSpinnerModifyNotification);
CATDeclareDlgNotification(CATDlgListSelectNotification);
CATDeclareDlgNotification(CATDlgListActivateNotification);
CATDeclareDlgNotification(CATDlgListColumnActivateNotification);
CATDeclareDlgNotification(CATDlgListCellModifyNotification);

#undef CATDeclareDlgNotification

#endif
