#ifndef desktop_MessageWindow_H
#define desktop_MessageWindow_H

#include "host/Messages.h"

class QWidget;

namespace desktop {

// Shows a message over iParent, or over nothing when that is null, and waits for its answer. Gives the style
// bit of the button.
int AskInWindow(const host::Message& iMessage, QWidget* iParent);

} // namespace desktop

#endif
