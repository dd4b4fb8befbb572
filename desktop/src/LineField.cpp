#include "LineField.h"

#include "ReadOnlyLook.h"

#include <QtCore/QEvent>
#include <QtGui/QFocusEvent>

#include <algorithm>

namespace desktop {

LineField::LineField(QWidget* iParent, std::function<void()> iOnLeft)
    : QLineEdit(iParent), _onLeft(std::move(iOnLeft)) {}

void LineField::SetVisibleCharacters(int iCharacters) {
    if (_visibleCharacters == iCharacters)
        return;
    _visibleCharacters = iCharacters;
    updateGeometry();
}

QSize LineField::sizeHint() const {
    const QSize usual = QLineEdit::sizeHint();
    if (_visibleCharacters <= 0)
        return usual;
    const int border = QLineEdit::minimumSizeHint().width() - fontMetrics().maxWidth();
    const int text = fontMetrics().horizontalAdvance(QLatin1Char('0')) * (_visibleCharacters + 1);
    return QSize(text + std::max(border, 0), usual.height());
}

QSize LineField::minimumSizeHint() const {
    return QSize(std::min(sizeHint().width(), QLineEdit::sizeHint().width() / 2), sizeHint().height());
}

bool LineField::event(QEvent* iEvent) {
    const bool isHandled = QLineEdit::event(iEvent);
    const bool mayLookOther =
        iEvent->type() == QEvent::ReadOnlyChange || iEvent->type() == QEvent::PaletteChange;
    if (mayLookOther && isReadOnly())
        LookReadOnly(*this);
    return isHandled;
}

void LineField::focusOutEvent(QFocusEvent* iEvent) {
    QLineEdit::focusOutEvent(iEvent);
    if (iEvent->reason() != Qt::PopupFocusReason)
        _onLeft();
}

} // namespace desktop
