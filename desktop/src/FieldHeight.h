#ifndef desktop_FieldHeight_H
#define desktop_FieldHeight_H

namespace desktop {

// The height of the highest kind of field of one line, in the style and font of the application.
int FieldHeight();

} // namespace desktop

#endif
