#ifndef Climb_H
#define Climb_H

#include "CATCommand.h"

namespace host {

// One notification on its way up. Commands may die meanwhile: their destructors take them out of every climb.
class Climb {
  public:
    explicit Climb(CATCommand& iSender) : _sender(&iSender), _from(&iSender), _outer(_innermost) {
        _innermost = this;
    }
    ~Climb() { _innermost = _outer; }
    Climb(const Climb&) = delete;
    Climb& operator=(const Climb&) = delete;

    // Runs the whole climb; the notification stays the caller's.
    void Run(CATCommand& iTarget, CATNotification& ioNotification);

    static void Forget(const CATCommand& iCommand);
    static Climb* Innermost() { return _innermost; }
    CATCommand* Sender() const { return _sender; }

    static int Undelivered();
    static void ResetUndelivered();

  private:
    void AskSelector();
    bool Visit(CATCommand& ioCommand, CATNotification& ioNotification);

    CATCommand* _sender;         // null once it is destroyed
    CATCommand* _from;           // who passed the notification on; null once it is destroyed
    CATCommand* _here = nullptr; // where the notification is; null once it is destroyed
    CATCommand* _next = nullptr; // where it goes next
    bool _isSelectorAsked = false;
    bool _hasMetActive = false;
    Climb* _outer;
    static Climb* _innermost;
};

} // namespace host

#endif
