#ifndef desktop_ProblemLine_H
#define desktop_ProblemLine_H

#include <QtWidgets/QLabel>

namespace desktop {

// Tells below a field why its text is not taken: a sign and the reason, which wraps where the field is
// narrow. It takes room only while there is a problem.
class ProblemLine : public QLabel {
  public:
    explicit ProblemLine(QWidget* iParent);

    // Empty for no problem. It will be iWidth wide. True when it needs more or less room than before.
    bool Show(const QString& iProblem, int iWidth);

  protected:
    void resizeEvent(QResizeEvent* iEvent) override;

  private:
    void TakeHeight(int iWidth);
};

} // namespace desktop

#endif
