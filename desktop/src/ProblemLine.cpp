#include "ProblemLine.h"

#include <QtGui/QAccessible>
#include <QtGui/QResizeEvent>

#include <algorithm>

namespace desktop {

ProblemLine::ProblemLine(QWidget* iParent) : QLabel(iParent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    hide();
}

bool ProblemLine::Show(const QString& iProblem, int iWidth) {
    const QString text = iProblem.isEmpty() ? QString() : QStringLiteral("\u26A0 ") + iProblem;
    if (text == this->text())
        return false;
    const int before = minimumHeight();
    setText(text);
    TakeHeight(iWidth);
    setVisible(!text.isEmpty());
    if (!text.isEmpty()) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
    return minimumHeight() != before;
}

void ProblemLine::resizeEvent(QResizeEvent* iEvent) {
    QLabel::resizeEvent(iEvent);
    TakeHeight(width());
}

// The layouts around ask for a height before they give a width.
void ProblemLine::TakeHeight(int iWidth) {
    setMinimumHeight(text().isEmpty() ? 0 : std::max(heightForWidth(iWidth), 0));
}

} // namespace desktop
