#ifndef desktop_LineField_H
#define desktop_LineField_H

#include <QtWidgets/QLineEdit>

#include <functional>

namespace desktop {

// A line to type in, as wide as a number of characters. Read-only it looks like the window behind it.
class LineField : public QLineEdit {
  public:
    // The field's own menu does not leave it.
    LineField(QWidget* iParent, std::function<void()> iOnLeft);

    // 0 for the usual width.
    void SetVisibleCharacters(int iCharacters);

    // QLineEdit
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* iEvent) override;
    void focusOutEvent(QFocusEvent* iEvent) override;

  private:
    std::function<void()> _onLeft;
    int _visibleCharacters = 0;
};

} // namespace desktop

#endif
