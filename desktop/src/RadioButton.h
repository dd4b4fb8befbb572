#ifndef desktop_RadioButton_H
#define desktop_RadioButton_H

#include <QtWidgets/QRadioButton>

namespace desktop {

// A radio button whose group, those with the same parent, is one stop of Tab: the checked button, and while
// none of those that can be used is checked, each of them.
class RadioButton : public QRadioButton {
  public:
    explicit RadioButton(QWidget* iParent);

  protected:
    bool event(QEvent* iEvent) override;

  private:
    void ShowTabStops() const;
};

} // namespace desktop

#endif
