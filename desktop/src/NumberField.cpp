#include "NumberField.h"

#include "ReadOnlyLook.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyleOptionSpinBox>

#include <algorithm>

namespace desktop {

namespace {
constexpr int fewestCharacters = 6; // that stay in sight in a narrow window
}

NumberField::NumberField(QWidget* iParent, Actions iActions)
    : QAbstractSpinBox(iParent), _actions(std::move(iActions)) {
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
    ShowWhetherReadOnly();
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
        ShowWhetherReadOnly();
    return isHandled;
}

// Enter is for the field alone, so that a number never ends the dialog.
void NumberField::keyPressEvent(QKeyEvent* iEvent) {
    const bool isEnter = iEvent->key() == Qt::Key_Return || iEvent->key() == Qt::Key_Enter;
    if (isEnter && !lineEdit()->isReadOnly()) {
        _actions.commit();
        selectAll();
        return;
    }
    if (iEvent->matches(QKeySequence::Cancel) && _actions.restore())
        return;
    if (isEnter || iEvent->matches(QKeySequence::Cancel)) {
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

// The menu of the field itself does not leave it.
void NumberField::focusOutEvent(QFocusEvent* iEvent) {
    QAbstractSpinBox::focusOutEvent(iEvent);
    if (iEvent->reason() != Qt::PopupFocusReason)
        _actions.commit();
}

bool NumberField::IsReadOnly() const {
    return lineEdit()->isReadOnly() && buttonSymbols() == NoButtons;
}

void NumberField::ShowWhetherReadOnly() {
    if (IsReadOnly())
        LookReadOnly(*this);
    else if (_hasReadOnlyLook)
        setPalette(QPalette());
    _hasReadOnlyLook = IsReadOnly();
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
