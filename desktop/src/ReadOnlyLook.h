#ifndef desktop_ReadOnlyLook_H
#define desktop_ReadOnlyLook_H

class QWidget;

namespace desktop {

// Lets a field look like the window behind it, in the palette of now. Called again after each change of the
// palette; the change that it makes itself finds nothing to do.
void LookReadOnly(QWidget& ioField);

} // namespace desktop

#endif
