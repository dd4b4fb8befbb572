#include "TabBox.h"

#include <QtWidgets/QStyleOptionTab>
#include <QtWidgets/QTabBar>

#include <algorithm>

namespace desktop {

namespace {

constexpr int widestTabs = 80; // characters

// The row of tabs. What is kept with a tab tells whether it is greyed.
class TabRow : public QTabBar {
  public:
    using QTabBar::QTabBar;

  protected:
    void initStyleOption(QStyleOptionTab* oOption, int iTab) const override {
        QTabBar::initStyleOption(oOption, iTab);
        if (!tabData(iTab).toBool())
            return;
        oOption->state &= ~QStyle::State_Enabled;
        oOption->palette.setCurrentColorGroup(QPalette::Disabled);
    }
};

} // namespace

TabBox::TabBox(QWidget* iParent) : QTabWidget(iParent) {
    setTabBar(new TabRow(this));
    setElideMode(Qt::ElideNone);
}

TabBox* TabBox::Of(const QWidget& iPage) {
    const QWidget* const stack = iPage.parentWidget();
    auto* const box = stack == nullptr ? nullptr : dynamic_cast<TabBox*>(stack->parentWidget());
    return box == nullptr || box->indexOf(&iPage) == -1 ? nullptr : box;
}

QSize TabBox::sizeHint() const {
    return QTabWidget::sizeHint().expandedTo(QSize(TabWidth(), 0));
}

QSize TabBox::minimumSizeHint() const {
    return QTabWidget::minimumSizeHint().expandedTo(QSize(TabWidth(), 0));
}

int TabBox::TabWidth() const {
    return std::min(tabBar()->sizeHint().width(), fontMetrics().averageCharWidth() * widestTabs);
}

void TabBox::SetGreyed(int iTab, bool iIsGreyed) {
    tabBar()->setTabData(iTab, iIsGreyed);
    tabBar()->update();
}

} // namespace desktop
