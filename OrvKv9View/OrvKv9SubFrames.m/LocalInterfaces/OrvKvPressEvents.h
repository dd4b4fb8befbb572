#ifndef OrvKvPressEvents_H
#define OrvKvPressEvents_H

#include "CATCommand.h"

class CATDlgPushButton;

// What a panel does when one of its buttons is pressed. A button that could not be made (null) is left out.

// Lets a method of the panel answer; it receives iData.
void OrvKvSubscribePress(CATCommand& ioPanel, CATDlgPushButton* iButton, CATCommandMethod iMethod,
                         CATCommandClientData iData = nullptr);
// Ends that. iData is the same as when it began.
void OrvKvUnsubscribePress(CATCommand& ioPanel, CATDlgPushButton* iButton,
                           CATCommandClientData iData = nullptr);

#endif
