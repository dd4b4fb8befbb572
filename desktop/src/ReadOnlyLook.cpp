#include "ReadOnlyLook.h"

#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

namespace desktop {

void LookReadOnly(QWidget& ioField) {
    const QBrush window = ioField.palette().brush(QPalette::Window);
    const bool isOwn = ioField.testAttribute(Qt::WA_SetPalette); // else the style may give it another one yet
    if (isOwn && ioField.palette().brush(QPalette::Base) == window)
        return;
    QPalette readOnly;
    readOnly.setBrush(QPalette::Base, window);
    ioField.setPalette(readOnly);
}

} // namespace desktop
