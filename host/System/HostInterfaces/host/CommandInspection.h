#ifndef host_CommandInspection_H
#define host_CommandInspection_H

#include "CATCallbackManager.h"
#include "CATCommand.h"

namespace host {

// Counts over commands and subscriptions, for tests and leak checks.
class CommandInspection {
  public:
    // Notifications that climbed to the top without an answer, since the start or the last call of Reset.
    static int UndeliveredNotifications();
    // Live event subscriptions: all of them, and those on one publisher.
    static int Subscriptions();
    static int SubscriptionsOn(const CATBaseUnknown& iPublisher);
    // Analyse callbacks that iCommand has, and those of all commands.
    static int AnalyseCallbacks(const CATCommand& iCommand);
    static int AnalyseCallbacks();
    // While a callback or AnalyseNotification runs: the command that sent the notification; null once it is
    // destroyed, and outside a climb.
    static CATCommand* OriginalSender();
    // The command that hears the notifications nobody below has answered. Not owned; null for none.
    static void SetActiveCommand(CATCommand* iCommand);
    static CATCommand* ActiveCommand();
    static void Reset();
};

} // namespace host

#endif
