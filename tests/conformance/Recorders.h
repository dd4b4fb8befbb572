#ifndef Recorders_H
#define Recorders_H

#include "CATCallbackManager.h"
#include "CATCommand.h"

#include "Samples.h"

// A command that writes down what it hears:
//     "dialog hears SampleNotification from button"      AnalyseNotification
//     "dialog:first SampleNotification from button"      the callback First
class RecordingCommand : public CATCommand {
  public:
    RecordingCommand(CATCommand* iFather, const char* iName, Journal& ioJournal);

    // What AnalyseNotification answers; it transmits unless told otherwise.
    void Answer(CATNotifPropagationMode iMode) { _mode = iMode; }
    CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification) override;

    void First(CATCommand* iFrom, CATNotification* iNotification, CATCommandClientData iData);
    void Second(CATCommand* iFrom, CATNotification* iNotification, CATCommandClientData iData);

  protected:
    void Write(const char* iWhat, CATCommand* iFrom, CATNotification* iNotification);

  private:
    Journal& _journal;
    CATNotifPropagationMode _mode = CATNotifTransmitToFather;
};

// What both callbacks of a RecordingCommand are registered as.
extern const CATCommandMethod firstCallback;
extern const CATCommandMethod secondCallback;

// A subscriber that writes down the events it hears: "watcher:first SampleNotification".
class RecordingSubscriber : public CATEventSubscriber {
  public:
    RecordingSubscriber(const char* iName, Journal& ioJournal);

    void First(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
               CATSubscriberData iData, CATCallback iId);
    void Second(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
                CATSubscriberData iData, CATCallback iId);

  protected:
    Journal& journal;

  private:
    std::string _name;
};

extern const CATSubscriberMethod firstEvent;
extern const CATSubscriberMethod secondEvent;

#endif
