#ifndef CATNotification_H
#define CATNotification_H

#include "CATBaseUnknown.h"
#include "CATMacForIUnknown.h"

#include <cstddef>

// Who destroys a notification. The host stores the choice; a sent notification is always released by it.
enum { CATNotificationDeleteOff = 0, CATNotificationDeleteOn = 1 };

// A message between commands: its class tells what happened.
//
// Whoever sends a notification hands one reference over; it is released when the notification has climbed as
// far as it goes. A receiver that keeps the notification adds a reference of its own.
class CATNotification : public CATBaseUnknown {
    CATDeclareClass;

  public:
    explicit CATNotification(int iAutomaticDelete = CATNotificationDeleteOff);
    CATNotification(const CATNotification& iOther);
    CATNotification& operator=(const CATNotification& iOther);
    ~CATNotification() override;

    // Gives null where memory is short; the new-expression is then null and no constructor runs.
    static void* operator new(std::size_t iSize) noexcept;
    static void operator delete(void* iMemory) noexcept;

  private:
    int _automaticDelete;
};

#endif
