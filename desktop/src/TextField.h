#ifndef desktop_TextField_H
#define desktop_TextField_H

#include <QtWidgets/QPlainTextEdit>

#include <functional>

namespace desktop {

// Several lines to type in, as large as a number of lines and characters. Tab leaves it. Read-only it looks
// like the window behind it.
class TextField : public QPlainTextEdit {
  public:
    TextField(QWidget* iParent, std::function<void()> iOnLeft);

    void SetReadOnly(bool iReadOnly);
    // 0 for the usual extent.
    void SetVisibleText(int iLines, int iCharacters);
    // Longest text that can be typed, in characters; 0 for any.
    void SetLongestText(int iCharacters) { _longestText = iCharacters; }

    // Shows a text that nobody has typed.
    void ShowText(const QString& iText);
    bool IsShowing() const { return _isShowing; }

    // QPlainTextEdit
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void focusOutEvent(QFocusEvent* iEvent) override;

  private:
    void CutToLongestText();

    std::function<void()> _onLeft;
    int _visibleLines = 0;
    int _visibleCharacters = 0;
    int _longestText = 0;
    bool _isShowing = false;
};

} // namespace desktop

#endif
