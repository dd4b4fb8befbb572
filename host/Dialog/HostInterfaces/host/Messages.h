#ifndef host_Messages_H
#define host_Messages_H

#include "CATDlgDefine.h"

#include <string>
#include <vector>

namespace host {

// One message that the program showed.
struct Message {
    CATDlgStyle style = 0; // CATDlgNfyError or CATDlgNfyWarning
    std::string name;
    std::string text;
    std::string title;
    int answer = 0; // style bit of the button that answered it
};

// Shows messages to a person and waits for the answer.
class MessageFrontEnd {
  public:
    MessageFrontEnd() = default;
    MessageFrontEnd(const MessageFrontEnd&) = delete;
    MessageFrontEnd& operator=(const MessageFrontEnd&) = delete;
    virtual ~MessageFrontEnd() = default;

    // Gives the style bit of the button that answered.
    virtual int Show(const Message& iMessage) = 0;
};

// The blocked messages of the application. Without a front end each is answered at once: with the answer that
// was queued first, or with OK. While a message waits, a person can use nothing else.
class Messages {
  public:
    static const std::vector<Message>& Journal();
    static void ClearJournal();

    // The answer of the next message that has none yet; a front end is then not asked.
    static void QueueAnswer(int iButton);
    static int QueuedAnswers();

    // Not owned; null for none. Gives the one before.
    static MessageFrontEnd* SetFrontEnd(MessageFrontEnd* iFrontEnd);
    static bool IsWaiting();

    // Records the message and gives its answer.
    static int Ask(const Message& iMessage);
    static void Reset();
};

} // namespace host

#endif
