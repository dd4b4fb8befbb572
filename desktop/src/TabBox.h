#ifndef desktop_TabBox_H
#define desktop_TabBox_H

#include <QtWidgets/QTabWidget>

namespace desktop {

// Pages with their tabs. The tab of a page that cannot be used is greyed, and still brings the page forward.
class TabBox : public QTabWidget {
  public:
    explicit TabBox(QWidget* iParent);

    // The box around a page; null when the page has no tab.
    static TabBox* Of(const QWidget& iPage);

    void SetGreyed(int iTab, bool iIsGreyed);

    // QTabWidget: room for all tabs, which scroll only where they would make a window very wide.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  private:
    int TabWidth() const;
};

} // namespace desktop

#endif
