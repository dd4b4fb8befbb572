#include "ElementView.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyledItemDelegate>

namespace app {

namespace {

QColor Between(const QColor& first, const QColor& second) {
    return QColor((first.red() + second.red()) / 2, (first.green() + second.green()) / 2,
                  (first.blue() + second.blue()) / 2);
}

/// Draws greyed items as the style draws disabled ones, and lets them be told from others where they are
/// current too.
class GreyingDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!index.siblingAtColumn(0).data(ElementView::greyedRole).toBool())
            return;
        option->state &= ~QStyle::State_Enabled;
        const QColor text = option->palette.color(QPalette::Active, QPalette::HighlightedText);
        const QColor ground = option->palette.color(QPalette::Active, QPalette::Highlight);
        option->palette.setColor(QPalette::Disabled, QPalette::HighlightedText, Between(text, ground));
    }
};

bool IsElement(const QTreeWidgetItem* item) {
    return item != nullptr && item->parent() != nullptr;
}

} // namespace

ElementView::ElementView(QWidget* parent, std::function<void(QTreeWidgetItem&)> onPicked)
    : QTreeWidget(parent), _onPicked(std::move(onPicked)) {
    setItemDelegate(new GreyingDelegate(this));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
    setHeaderHidden(true);
}

void ElementView::Enter() {
    if (!IsElement(currentItem()))
        setCurrentItem(FirstShownElement());
    setFocus(Qt::TabFocusReason);
}

void ElementView::mousePressEvent(QMouseEvent* event) {
    _pressed = event->button() == Qt::LeftButton ? itemAt(event->position().toPoint()) : nullptr;
    QTreeWidget::mousePressEvent(event);
}

void ElementView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    QTreeWidgetItem* const released = itemAt(event->position().toPoint());
    const bool isClick = event->button() == Qt::LeftButton && released == _pressed;
    _pressed = nullptr;
    if (isClick && IsElement(released))
        _onPicked(*released);
}

// The first click of the two has picked. A second one on another item comes as a press.
void ElementView::mouseDoubleClickEvent(QMouseEvent* event) {
    _pressed = nullptr;
    QTreeWidget::mouseDoubleClickEvent(event);
}

void ElementView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QTreeWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    QTreeWidgetItem* const current = currentItem();
    if (IsElement(current))
        _onPicked(*current);
    else if (current != nullptr)
        current->setExpanded(!current->isExpanded());
}

QTreeWidgetItem* ElementView::FirstShownElement() const {
    for (int branch = 0; branch < topLevelItemCount(); ++branch)
        for (int i = 0; i < topLevelItem(branch)->childCount(); ++i)
            if (!topLevelItem(branch)->child(i)->isHidden())
                return topLevelItem(branch)->child(i);
    return nullptr;
}

} // namespace app
