#include "FieldHeight.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace desktop {

namespace {

int Measure() {
    QComboBox box;
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return std::max({box.sizeHint().height(), QLineEdit().sizeHint().height(),
                     QPushButton(QStringLiteral("X")).sizeHint().height(), QSpinBox().sizeHint().height()});
}

} // namespace

// Measured once for each style and font, since every container asks.
int FieldHeight() {
    static QString styleBefore;
    static QFont fontBefore;
    static int height = 0;
    const QString style = QApplication::style()->name();
    if (height == 0 || style != styleBefore || QApplication::font() != fontBefore) {
        styleBefore = style;
        fontBefore = QApplication::font();
        height = Measure();
    }
    return height;
}

} // namespace desktop
