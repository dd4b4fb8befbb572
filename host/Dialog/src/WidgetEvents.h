#ifndef WidgetEvents_H
#define WidgetEvents_H

#include "CATDialog.h"
#include "CATDlgNotifications.h"

#include <new>

// A widget's notification objects are made outside the notifications' own allocation, which may fail on
// request: a subscription to a missing object would hear everything.
template<class Notification>
CATNotification* CATDialog::Event() {
    CATNotification* event = FindEvent(Notification::ClassName());
    if (event != nullptr)
        return event;
    event = ::new Notification;
    KeepEvent(event);
    return event;
}

#endif
