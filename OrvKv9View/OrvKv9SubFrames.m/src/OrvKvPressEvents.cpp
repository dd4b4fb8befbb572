#include "OrvKvPressEvents.h"

#include "CATDlgPushButton.h"

void OrvKvSubscribePress(CATCommand& ioPanel, CATDlgPushButton* iButton, CATCommandMethod iMethod,
                         CATCommandClientData iData) {
    if (iButton != nullptr)
        ioPanel.AddAnalyseNotificationCB(iButton, iButton->GetPushBActivateNotification(), iMethod, iData);
}

void OrvKvUnsubscribePress(CATCommand& ioPanel, CATDlgPushButton* iButton, CATCommandClientData iData) {
    if (iButton != nullptr)
        ioPanel.RemoveAnalyseNotificationCB(iButton, iButton->GetPushBActivateNotification(), iData);
}
