#ifndef CATCommand_H
#define CATCommand_H

#include "CATEventSubscriber.h"
#include "CATNotification.h"
#include "CATString.h"

namespace host {
class AnalyseTable;
class Climb;
class DelayedDestruction;
} // namespace host

typedef void* CATCommandClientData;

// What a command answers to a notification: let it climb on, or end the climb.
enum CATNotifPropagationMode { CATNotifTransmitToFather = 0, CATNotifDontTransmitToFather = 1 };

class CATCommand;

typedef void (CATCommand::*CATCommandMethod)(CATCommand* iFrom, CATNotification* iNotification,
                                             CATCommandClientData iData);

// A node of the command tree: it sends notifications to its father and hears those of the commands below it.
//
// A notification climbs from its sender: the sender's own subscriptions, then for each command upwards its
// subscriptions and its AnalyseNotification. The first that matches or answers
// CATNotifDontTransmitToFather ends the climb.
class CATCommand : public CATEventSubscriber {
    CATDeclareClass;

  public:
    // iFather is not owned and must outlive the command, or be null.
    CATCommand(CATCommand* iFather, const CATString& iName);
    CATCommand(const CATCommand& iOther);
    CATCommand& operator=(const CATCommand& iOther);
    ~CATCommand() override;

    const CATString& GetName() const { return _name; }
    CATCommand* GetFather() const { return _father; }

    // Sends iNotification to iToCommand and upwards, and takes one reference of it over. A null notification
    // or target does nothing, except that the reference of the notification is released.
    void SendNotification(CATCommand* iToCommand, CATNotification* iNotification);

    // iFrom is the command that passed the notification on. The base lets it climb.
    virtual CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification);

    // Lets a method of this command answer a notification that iPublisher, this command itself or one below
    // it, sends. A null publisher or notification stands for any. Several methods for one pair run in order.
    // A method hears of the sender itself, however many commands lie between.
    void AddAnalyseNotificationCB(CATCommand* iPublisher, CATNotification* iNotification,
                                  CATCommandMethod iMethod, CATCommandClientData iData);
    void AddAnalyseNotificationCB(CATCommand* iPublisher, const char* iNotificationClass,
                                  CATCommandMethod iMethod, CATCommandClientData iData);

    // Ends the subscriptions with the same publisher, notification and data. What was never added, and a null
    // publisher, change nothing.
    void RemoveAnalyseNotificationCB(CATCommand* iPublisher, CATNotification* iNotification,
                                     CATCommandClientData iData);
    void RemoveAnalyseNotificationCB(CATCommand* iPublisher, const char* iNotificationClass,
                                     CATCommandClientData iData);

    // Destroys the command when control is back in the main loop. From now on it sends nothing. Repeated
    // calls are harmless.
    virtual void RequestDelayedDestruction();

  protected:
    // Ends the father link, for a command that leaves the tree.
    void LeaveFather() { _father = nullptr; }

  private:
    friend class host::AnalyseTable;
    friend class host::Climb;
    friend class host::DelayedDestruction;

    CATString _name;
    CATCommand* _father; // not owned
    host::AnalyseTable* _analyseTable =
        nullptr;            // subscriptions by and on this command; null while there is none
    bool _isDoomed = false; // delayed destruction was asked for
};

#endif
