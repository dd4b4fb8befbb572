#include "CellDelegate.h"

#include "TableModel.h"
#include "Texts.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QToolTip>

namespace desktop {

namespace {
constexpr qsizetype longestHelp = 4000; // characters; a tooltip with more would not fit on a screen
}

void CellDelegate::paint(QPainter* iPainter, const QStyleOptionViewItem& iOption,
                         const QModelIndex& iIndex) const {
    QStyledItemDelegate::paint(iPainter, iOption, iIndex);
    if (!iOption.state.testFlag(QStyle::State_HasFocus))
        return;
    const bool isSelected = iOption.state.testFlag(QStyle::State_Selected);
    iPainter->save();
    iPainter->setPen(
        QPen(iOption.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text), 1, Qt::DotLine));
    iPainter->drawRect(iOption.rect.adjusted(1, 1, -2, -2));
    iPainter->restore();
}

// False, which leaves the event to the help of the whole table, where the text is seen anyway.
bool CellDelegate::helpEvent(QHelpEvent* iEvent, QAbstractItemView* iView,
                             const QStyleOptionViewItem& iOption, const QModelIndex& iIndex) {
    if (iEvent->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(iEvent, iView, iOption, iIndex);
    const auto* const model = dynamic_cast<const TableModel*>(iIndex.model());
    if (model == nullptr || sizeHint(iOption, iIndex).width() <= iOption.rect.width())
        return false;
    const QString text = Shortened(model->Text(iIndex.row(), iIndex.column()), longestHelp);
    QToolTip::showText(iEvent->globalPos(), AsWrappedHelp(text), iView, iOption.rect);
    return true;
}

// A character is a pixel wide at least, save a few marks, so that twice as many fill the cell in any case.
void CellDelegate::initStyleOption(QStyleOptionViewItem* oOption, const QModelIndex& iIndex) const {
    QStyledItemDelegate::initStyleOption(oOption, iIndex);
    if (oOption->rect.width() > 0)
        oOption->text = Shortened(oOption->text, qsizetype{2} * oOption->rect.width());
}

} // namespace desktop
