#include "LineView.h"

#include "EnterKey.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>

#include <algorithm>

namespace desktop {

namespace {

// Lines with some air between them.
class LineDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& iOption, const QModelIndex& iIndex) const override {
        return QStyledItemDelegate::sizeHint(iOption, iIndex) + QSize(0, iOption.fontMetrics.height() / 3);
    }
};

} // namespace

LineView::LineView(QWidget* iParent, std::function<void(int)> iOnChosen)
    : QListView(iParent), _onChosen(std::move(iOnChosen)) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabKeyNavigation(false);
    setItemDelegate(new LineDelegate(this));
}

void LineView::SetVisibleText(int iLines, int iWidth) {
    _visibleLines = iLines;
    _visibleWidth = iWidth;
    updateGeometry();
}

QSize LineView::sizeHint() const {
    return SizeOf(_visibleLines, _visibleWidth);
}

QSize LineView::minimumSizeHint() const {
    return SizeOf(std::min(_visibleLines, 3), _visibleWidth / 2);
}

void LineView::mousePressEvent(QMouseEvent* iEvent) {
    _isPressedOnLine = iEvent->button() == Qt::LeftButton && indexAt(iEvent->position().toPoint()).isValid();
    QListView::mousePressEvent(iEvent);
}

void LineView::mouseReleaseEvent(QMouseEvent* iEvent) {
    QListView::mouseReleaseEvent(iEvent);
    if (iEvent->button() == Qt::LeftButton)
        _onChosen(_isPressedOnLine ? currentIndex().row() : -1);
}

void LineView::keyPressEvent(QKeyEvent* iEvent) {
    if (IsEnter(*iEvent)) {
        iEvent->accept();
        if (currentIndex().isValid())
            _onChosen(currentIndex().row());
        return;
    }
    const int before = currentIndex().row();
    QListView::keyPressEvent(iEvent);
    if (currentIndex().row() != before)
        _onChosen(currentIndex().row());
}

// A list of a new height begins with its first line, unless the chosen one would be out of sight.
void LineView::resizeEvent(QResizeEvent* iEvent) {
    QListView::resizeEvent(iEvent);
    if (iEvent->oldSize().height() == iEvent->size().height())
        return;
    scrollToTop();
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

QSize LineView::SizeOf(int iLines, int iWidth) const {
    const int line =
        model() != nullptr && model()->rowCount() > 0 ? sizeHintForRow(0) : fontMetrics().height() * 4 / 3;
    const int frame = 2 * frameWidth();
    return QSize(iWidth + 2 * fontMetrics().averageCharWidth() + verticalScrollBar()->sizeHint().width() +
                     frame,
                 line * iLines + frame);
}

} // namespace desktop
