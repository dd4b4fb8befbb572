#ifndef desktop_CellDelegate_H
#define desktop_CellDelegate_H

#include <QtWidgets/QStyledItemDelegate>

namespace desktop {

// Draws the cells of a table, the current one with a clear frame. A text that does not fit ends in an
// ellipsis and is told in full as a tooltip; a very long one costs no more than what is seen of it.
class CellDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // QStyledItemDelegate
    void paint(QPainter* iPainter, const QStyleOptionViewItem& iOption,
               const QModelIndex& iIndex) const override;
    bool helpEvent(QHelpEvent* iEvent, QAbstractItemView* iView, const QStyleOptionViewItem& iOption,
                   const QModelIndex& iIndex) override;

  protected:
    void initStyleOption(QStyleOptionViewItem* oOption, const QModelIndex& iIndex) const override;
};

} // namespace desktop

#endif
