#ifndef desktop_NumberField_H
#define desktop_NumberField_H

#include <QtCore/QRegularExpression>
#include <QtWidgets/QAbstractSpinBox>

#include <functional>

namespace desktop {

// A line for a number, with its unit if it has one, and arrows. It holds no value: it shows a text, and tells
// what the person does to it.
class NumberField : public QAbstractSpinBox {
  public:
    struct Actions {
        std::function<void()> type;    // the text in the field is another one
        std::function<bool()> commit;  // Enter, or the field is left; false when there is nothing to pass on
        std::function<bool()> restore; // Escape; false when there is nothing to restore
        std::function<void(int)> step; // down for a negative number
    };

    NumberField(QWidget* iParent, Actions iActions);

    QString Text() const;
    void ShowText(const QString& iText);

    // Whether a person can type, and whether there are arrows. With neither the field looks read-only.
    void Allow(bool iTyping, bool iArrows);
    // Which arrows can be pressed.
    void SetSteps(StepEnabled iSteps);
    // Keeps out of the field what does not match; an empty pattern matches all.
    void SetPattern(const QString& iPattern);
    void SetVisibleCharacters(int iCharacters);

    // QAbstractSpinBox
    void stepBy(int iSteps) override;
    QValidator::State validate(QString& ioText, int& ioPosition) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    StepEnabled stepEnabled() const override;
    bool event(QEvent* iEvent) override;
    void keyPressEvent(QKeyEvent* iEvent) override;
    void wheelEvent(QWheelEvent* iEvent) override;
    void focusInEvent(QFocusEvent* iEvent) override;
    void focusOutEvent(QFocusEvent* iEvent) override;

  private:
    bool IsReadOnly() const;
    void ShowLook();
    QSize SizeFor(int iCharacters) const;

    Actions _actions;
    QRegularExpression _pattern;
    StepEnabled _steps = StepUpEnabled | StepDownEnabled;
    int _visibleCharacters = 10;
};

} // namespace desktop

#endif
