#include "TextField.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QFocusEvent>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <cmath>

namespace desktop {

namespace {
constexpr int usualLines = 4;
constexpr int usualCharacters = 20;
} // namespace

TextField::TextField(QWidget* iParent, std::function<void()> iOnLeft)
    : QPlainTextEdit(iParent), _onLeft(std::move(iOnLeft)) {
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // long lines wrap
    connect(this, &QPlainTextEdit::textChanged, this, [this] { CutToLongestText(); });
}

void TextField::SetReadOnly(bool iReadOnly) {
    setReadOnly(iReadOnly);
    viewport()->setBackgroundRole(iReadOnly ? QPalette::Window : QPalette::Base);
}

void TextField::SetVisibleText(int iLines, int iCharacters) {
    _visibleLines = iLines;
    _visibleCharacters = iCharacters;
    updateGeometry();
}

void TextField::ShowText(const QString& iText) {
    const QScopedValueRollback<bool> showing(_isShowing, true);
    setPlainText(iText);
}

QSize TextField::sizeHint() const {
    const int lines = _visibleLines > 0 ? _visibleLines : usualLines;
    const int characters = _visibleCharacters > 0 ? _visibleCharacters : usualCharacters;
    const int border = 2 * (frameWidth() + static_cast<int>(std::ceil(document()->documentMargin())));
    return QSize(fontMetrics().averageCharWidth() * characters + verticalScrollBar()->sizeHint().width() +
                     border,
                 fontMetrics().lineSpacing() * lines + border);
}

QSize TextField::minimumSizeHint() const {
    return sizeHint();
}

// The menu of the field itself does not leave it.
void TextField::focusOutEvent(QFocusEvent* iEvent) {
    QPlainTextEdit::focusOutEvent(iEvent);
    if (iEvent->reason() != Qt::PopupFocusReason)
        _onLeft();
}

// What was typed last goes.
void TextField::CutToLongestText() {
    const int surplus = static_cast<int>(toPlainText().size()) - _longestText;
    if (_isShowing || _longestText <= 0 || surplus <= 0)
        return;
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, std::min(surplus, cursor.position()));
    cursor.removeSelectedText();
}

} // namespace desktop
