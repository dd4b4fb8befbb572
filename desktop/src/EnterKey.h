#ifndef desktop_EnterKey_H
#define desktop_EnterKey_H

class QKeyEvent;
class QWidget;

namespace desktop {

// Whether it is one of the two Enter keys.
bool IsEnter(const QKeyEvent& iEvent);

// Keeps Enter from a widget that some desktops give it to, so that it is for the window.
void LeaveEnterToWindow(QWidget& ioWidget);

} // namespace desktop

#endif
