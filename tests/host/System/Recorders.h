#ifndef Recorders_H
#define Recorders_H

#include "CATCallbackManager.h"
#include "CATCommand.h"

#include <functional>
#include <string>
#include <vector>

// Commands, subscribers and notifications whose reactions a test states as a function, so that a listener can
// be made to do anything while it is called.

// What happened, in order.
typedef std::vector<std::string> Journal;

class SampleNotification : public CATNotification {
    CATDeclareClass;
};

class SpecialNotification : public SampleNotification {
    CATDeclareClass;
};

// A command that writes down what it hears, then does what it was told to:
//     "frame hears button"        AnalyseNotification, from button
//     "frame:first button"        its callback
class HostileCommand : public CATCommand {
  public:
    typedef std::function<void()> Action;

    HostileCommand(CATCommand* iFather, const char* iName, Journal& ioJournal);
    ~HostileCommand() override;

    // What it does when AnalyseNotification is called, and what that then answers.
    Action onAnalyse;
    CATNotifPropagationMode answer = CATNotifTransmitToFather;
    Action onFirst;
    Action onSecond;
    Action onEnd; // while it is destroyed

    // Lets First or Second answer what iPublisher sends, of any class when iNotification is null.
    void HearFirst(CATCommand* iPublisher, CATNotification* iNotification = nullptr);
    void HearSecond(CATCommand* iPublisher, CATNotification* iNotification = nullptr);
    // Ends both.
    void Forget(CATCommand* iPublisher, CATNotification* iNotification = nullptr);

    // Sends a new notification to the father.
    void Send();

    CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification) override;
    void First(CATCommand* iFrom, CATNotification* iNotification, CATCommandClientData iData);
    void Second(CATCommand* iFrom, CATNotification* iNotification, CATCommandClientData iData);

  private:
    void Write(const std::string& iWhat, const CATCommand* iFrom);

    Journal& _journal;
};

// A subscriber that writes down "name:first" or "name:second", then does what it was told to.
class HostileSubscriber : public CATEventSubscriber {
  public:
    typedef std::function<void()> Action;

    HostileSubscriber(const char* iName, Journal& ioJournal);

    Action onFirst;
    Action onSecond;

    CATCallback HearFirst(CATBaseUnknown& ioPublisher, const char* iEvent = "SampleNotification");
    CATCallback HearSecond(CATBaseUnknown& ioPublisher, const char* iEvent = "SampleNotification");

    void First(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
               CATSubscriberData iData, CATCallback iId);
    void Second(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
                CATSubscriberData iData, CATCallback iId);

  private:
    std::string _name;
    Journal& _journal;
};

#endif
