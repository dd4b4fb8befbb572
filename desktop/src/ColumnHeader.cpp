#include "ColumnHeader.h"

#include "TableModel.h"
#include "Texts.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <numeric>

namespace desktop {

ColumnHeader::ColumnHeader(QWidget* iParent) : QHeaderView(Qt::Horizontal, iParent) {
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setTextElideMode(Qt::ElideRight);
    setHighlightSections(false);
    setMinimumSectionSize(fontMetrics().height());
    connect(this, &QHeaderView::sectionResized, this,
            [this](int iColumn, int, int iWidth) { NoteResized(iColumn, iWidth); });
}

void ColumnHeader::SetNaturalWidths(const std::vector<int>& iWidths) {
    _natural = iWidths;
    for (int& width : _natural)
        width = std::max(width, minimumSectionSize());
    _given.resize(iWidths.size(), 0);
    for (int column = 0; column < count(); ++column)
        Resize(column, WantedWidth(column));
    FillRoom();
}

int ColumnHeader::NaturalWidth(int iColumns) const {
    const auto columns = std::min(_natural.size(), static_cast<std::size_t>(std::max(0, iColumns)));
    return std::accumulate(_natural.begin(), _natural.begin() + static_cast<std::ptrdiff_t>(columns), 0);
}

void ColumnHeader::SetRoom(int iWidth) {
    _room = iWidth;
    FillRoom();
}

bool ColumnHeader::viewportEvent(QEvent* iEvent) {
    if (iEvent->type() != QEvent::ToolTip)
        return QHeaderView::viewportEvent(iEvent);
    const auto* const help = static_cast<QHelpEvent*>(iEvent);
    const int column = logicalIndexAt(help->pos());
    const auto* const table = dynamic_cast<const TableModel*>(model());
    if (column < 0 || table == nullptr || TitleWidth(column) <= sectionSize(column))
        return false;
    QToolTip::showText(help->globalPos(), AsWrappedHelp(table->Title(column)), this);
    return true;
}

int ColumnHeader::WantedWidth(int iColumn) const {
    const std::size_t column = static_cast<std::size_t>(iColumn);
    if (column >= _natural.size())
        return defaultSectionSize();
    return _given[column] > 0 ? _given[column] : _natural[column];
}

void ColumnHeader::Resize(int iColumn, int iWidth) {
    const QScopedValueRollback<bool> placing(_isPlacing, true);
    resizeSection(iColumn, iWidth);
}

void ColumnHeader::FillRoom() {
    const int last = count() - 1;
    if (last < 0 || _room <= 0)
        return;
    const int others = length() - sectionSize(last);
    Resize(last, std::max(WantedWidth(last), _room - others));
}

void ColumnHeader::NoteResized(int iColumn, int iWidth) {
    const std::size_t column = static_cast<std::size_t>(iColumn);
    if (_isPlacing || column >= _given.size())
        return;
    _given[column] = iWidth;
    FillRoom();
}

} // namespace desktop
