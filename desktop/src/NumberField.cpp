#include "NumberField.h"

#include "EnterKey.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyleOptionSpinBox>

#include <algorithm>

namespace desktop {

namespace {

constexpr int fewestCharacters = 6; // that stay in sight in a narrow window

constexpr float greyedShare = 0.6F; // of the text's own colour

QColor Mixed(const QColor& iText, const QColor& iBehind) {
    const auto mix = [](float iOne, float iOther) { return greyedShare * iOne + (1 - greyedShare) * iOther; };
    return QColor::fromRgbF(mix(iText.redF(), iBehind.redF()), mix(iText.greenF(), iBehind.greenF()),
                            mix(iText.blueF(), iBehind.blueF()));
}

} // namespace

NumberField::NumberField(QWidget* iParent, Actions iActions)
    : QAbstractSpinBox(iParent), _actions(std::move(iActions)) {
    ShowLook();
    setFocusPolicy(Qt::StrongFocus); // the wheel is for what it scrolls until the field is in use
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { _actions.type(); });
}

QString NumberField::Text() const {
    return lineEdit()->text();
}

void NumberField::ShowText(const QString& iText) {
    if (iText == Text())
        return;
    lineEdit()->setText(iText);
    lineEdit()->setCursorPosition(0);
}

void NumberField::Allow(bool iTyping, bool iArrows) {
    lineEdit()->setReadOnly(!iTyping);
    setButtonSymbols(iArrows ? UpDownArrows : NoButtons);
    ShowLook();
}

void NumberField::SetSteps(StepEnabled iSteps) {
    if (_steps == iSteps)
        return;
    _steps = iSteps;
    update();
}

void NumberField::SetPattern(const QString& iPattern) {
    if (_pattern.pattern() != iPattern)
        _pattern.setPattern(iPattern);
}

void NumberField::SetVisibleCharacters(int iCharacters) {
    if (_visibleCharacters == iCharacters)
        return;
    _visibleCharacters = iCharacters;
    updateGeometry();
}

void NumberField::stepBy(int iSteps) {
    _actions.step(iSteps);
}

QValidator::State NumberField::validate(QString& ioText, int&) const {
    const bool fits = _pattern.pattern().isEmpty() || _pattern.match(ioText).hasMatch();
    return fits ? QValidator::Acceptable : QValidator::Invalid;
}

QSize NumberField::sizeHint() const {
    return SizeFor(_visibleCharacters);
}

QSize NumberField::minimumSizeHint() const {
    return SizeFor(std::min(_visibleCharacters, fewestCharacters));
}

QAbstractSpinBox::StepEnabled NumberField::stepEnabled() const {
    return buttonSymbols() == NoButtons ? StepEnabled(StepNone) : _steps;
}

bool NumberField::event(QEvent* iEvent) {
    const bool isHandled = QAbstractSpinBox::event(iEvent);
    if (iEvent->type() == QEvent::PaletteChange)
        ShowLook();
    return isHandled;
}

// Enter and Escape are for a text that is being typed, and without one for the window.
void NumberField::keyPressEvent(QKeyEvent* iEvent) {
    if (IsEnter(*iEvent)) {
        if (_actions.commit())
            selectAll();
        else
            iEvent->ignore();
        return;
    }
    if (iEvent->matches(QKeySequence::Cancel)) {
        if (!_actions.restore())
            iEvent->ignore();
        return;
    }
    QAbstractSpinBox::keyPressEvent(iEvent);
}

void NumberField::wheelEvent(QWheelEvent* iEvent) {
    if (hasFocus())
        QAbstractSpinBox::wheelEvent(iEvent);
    else
        iEvent->ignore();
}

// A window that opens, or comes back with a field that was only looked at, lets the number be typed over.
void NumberField::focusInEvent(QFocusEvent* iEvent) {
    QAbstractSpinBox::focusInEvent(iEvent);
    if (iEvent->reason() == Qt::ActiveWindowFocusReason && lineEdit()->cursorPosition() == 0)
        selectAll();
}

// The menu of the field itself does not leave it.
void NumberField::focusOutEvent(QFocusEvent* iEvent) {
    QAbstractSpinBox::focusOutEvent(iEvent);
    if (iEvent->reason() != Qt::PopupFocusReason)
        _actions.commit();
}

bool NumberField::IsReadOnly() const {
    return lineEdit()->isReadOnly() && buttonSymbols() == NoButtons;
}

// Read-only it looks like the window behind it. Greyed it can still be read, since a number that nobody may
// change tells something all the same. The change of the palette made here finds nothing to do.
void NumberField::ShowLook() {
    const QPalette shown = palette();
    QPalette look;
    look.setColor(QPalette::Disabled, QPalette::Text,
                  Mixed(shown.color(QPalette::Active, QPalette::Text),
                        shown.color(QPalette::Active, QPalette::Window)));
    if (IsReadOnly())
        look.setBrush(QPalette::Base, shown.brush(QPalette::Window));
    setPalette(look);
}

QSize NumberField::SizeFor(int iCharacters) const {
    ensurePolished();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const int width = fontMetrics().horizontalAdvance(QLatin1Char('0')) * (iCharacters + 1);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option,
                                     QSize(width, lineEdit()->sizeHint().height()), this);
}

} // namespace desktop
