#include "TableView.h"

#include "CellDelegate.h"
#include "ColumnHeader.h"
#include "EnterKey.h"
#include "OwnTexts.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <numeric>

namespace desktop {

namespace {

constexpr int rowsByDefault = 10;
constexpr int leastRows = 3;
constexpr int leastCharacters = 12;
constexpr int measuredRows = 100;
constexpr int longestText = 56;        // characters that a text gives its column
constexpr int longestTextOfWidth = 16; // the same where the column was given a width

// A cell of a text that is to be pasted elsewhere: what divides cells and rows there becomes a blank.
QString AsField(QString iText) {
    iText.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (const char divider : {'\t', '\n', '\r'})
        iText.replace(QLatin1Char(divider), QLatin1Char(' '));
    return iText.replace(QChar(QChar::LineSeparator), QLatin1Char(' '))
        .replace(QChar(QChar::ParagraphSeparator), QLatin1Char(' '));
}

} // namespace

TableView::TableView(QWidget* iParent, Wishes iWishes)
    : QTableView(iParent), _wishes(std::move(iWishes)), _header(new ColumnHeader(this)) {
    setHorizontalHeader(_header);
    _header->setSectionsClickable(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setItemDelegate(new CellDelegate(this));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    ShowRowHeight();
}

void TableView::Show(TableModel& ioModel, bool iSelectsMany) {
    _model = &ioModel;
    setModel(&ioModel);
    setSelectionMode(iSelectsMany ? QAbstractItemView::ExtendedSelection
                                  : QAbstractItemView::SingleSelection);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { _isSelectionNew = !_isShowing; });
    ShowHeader();
}

bool TableView::Follow(TableModel::Fate iFate) {
    const QScopedValueRollback<bool> showing(_isShowing, true);
    const int columnsBefore = _model->columnCount();
    const bool hadTitles = _model->HasTitles();
    if (!_model->Follow(iFate))
        return false;
    if (_model->columnCount() < columnsBefore || _model->HasTitles() != hadTitles)
        _header->ForgetGivenWidths();
    selectionModel()->clearSelection(); // which does not reach into new columns
    ShowHeader();
    MeasureColumns();
    return true;
}

void TableView::ShowSelected(const std::vector<int>& iRows) {
    _isSelectionNew = false;
    if (iRows == SelectedRows())
        return;
    const QScopedValueRollback<bool> showing(_isShowing, true);
    QItemSelection selection;
    const int lastColumn = _model->columnCount() - 1;
    for (auto first = iRows.begin(); first != iRows.end();) {
        auto last = first;
        while (std::next(last) != iRows.end() && *std::next(last) == *last + 1)
            ++last;
        selection.append(QItemSelectionRange(_model->index(*first, 0), _model->index(*last, lastColumn)));
        first = std::next(last);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (iRows.empty())
        return;
    if (!IsSelected(currentIndex().row()))
        SetCurrentRow(iRows.front());
    BringSelectionIntoSight();
}

void TableView::BringSelectionIntoSight() {
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty())
        return;
    const int top = rowAt(0);
    for (int row = top; row >= 0 && row < _model->rowCount() && IsInSight(row); ++row)
        if (IsSelected(row))
            return;
    const int current = currentIndex().row();
    const int row = IsSelected(current) ? current : selection.first().top();
    const int left = horizontalScrollBar()->value();
    scrollTo(_model->index(row, 0));
    horizontalScrollBar()->setValue(left);
}

void TableView::SetExtent(const Extent& iExtent) {
    _extent = iExtent;
    MeasureColumns();
}

QSize TableView::sizeHint() const {
    const int width = WidthOfColumns();
    QSize size = SizeOf(_extent.rows > 0 ? _extent.rows : rowsByDefault, width);
    if (_header->NaturalWidth() > width)
        size.rheight() += horizontalScrollBar()->sizeHint().height();
    return size.expandedTo(minimumSizeHint());
}

QSize TableView::minimumSizeHint() const {
    const int rows = _extent.rows > 0 ? std::min(_extent.rows, leastRows) : leastRows;
    return SizeOf(rows, leastCharacters * fontMetrics().averageCharWidth());
}

// Beside the rows a click does nothing.
void TableView::mousePressEvent(QMouseEvent* iEvent) {
    const QModelIndex pressed = indexAt(iEvent->position().toPoint());
    const bool isLeft = iEvent->button() == Qt::LeftButton;
    if (isLeft) {
        _isPressed = pressed.isValid();
        _pressedRow = pressed.row();
    }
    if (!pressed.isValid())
        return;
    QTableView::mousePressEvent(iEvent);
    if (!isLeft)
        PassSelectionOn();
}

void TableView::mouseMoveEvent(QMouseEvent* iEvent) {
    if (_isPressed)
        QTableView::mouseMoveEvent(iEvent);
}

// A click on what is selected already selects it once more.
void TableView::mouseReleaseEvent(QMouseEvent* iEvent) {
    QTableView::mouseReleaseEvent(iEvent);
    if (iEvent->button() != Qt::LeftButton || !_isPressed)
        return;
    _isPressed = false;
    _isSelectionNew = true;
    PassSelectionOn();
}

// A second click elsewhere is a click of its own.
void TableView::mouseDoubleClickEvent(QMouseEvent* iEvent) {
    const QModelIndex index = indexAt(iEvent->position().toPoint());
    if (iEvent->button() == Qt::LeftButton && index.isValid() && index.row() == _pressedRow) {
        _wishes.activate(index.row(), index.column());
        return;
    }
    QMouseEvent press(QEvent::MouseButtonPress, iEvent->position(), iEvent->scenePosition(),
                      iEvent->globalPosition(), iEvent->button(), iEvent->buttons(), iEvent->modifiers());
    mousePressEvent(&press);
}

void TableView::keyPressEvent(QKeyEvent* iEvent) {
    if (IsEnter(*iEvent)) {
        iEvent->accept();
        if (currentIndex().isValid())
            _wishes.activate(currentIndex().row(), currentIndex().column());
        return;
    }
    if (iEvent->matches(QKeySequence::Copy)) {
        iEvent->accept();
        CopySelected();
        return;
    }
    QTableView::keyPressEvent(iEvent);
    PassSelectionOn();
}

// The menu goes with the table, should that go first.
void TableView::contextMenuEvent(QContextMenuEvent* iEvent) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* const copy = menu->addAction(InCurrentLanguage(OwnText::Copy), this, [this] { CopySelected(); });
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutVisibleInContextMenu(true);
    copy->setEnabled(selectionModel()->hasSelection());
    const bool isByKey = iEvent->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid();
    menu->popup(isByKey ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                        : iEvent->globalPos());
}

// A table that comes on the screen begins with its first row, unless no selected one would be in sight.
void TableView::resizeEvent(QResizeEvent* iEvent) {
    _header->SetRoom(viewport()->width());
    QTableView::resizeEvent(iEvent);
    if (viewport()->isVisible() || _model == nullptr)
        return;
    scrollToTop();
    BringSelectionIntoSight();
}

void TableView::changeEvent(QEvent* iEvent) {
    QTableView::changeEvent(iEvent);
    const bool isOtherFont = iEvent->type() == QEvent::FontChange || iEvent->type() == QEvent::StyleChange;
    if (!isOtherFont || _model == nullptr)
        return;
    ShowRowHeight();
    MeasureColumns();
}

void TableView::currentChanged(const QModelIndex& iCurrent, const QModelIndex& iBefore) {
    QTableView::currentChanged(iCurrent, iBefore);
    if (iCurrent.isValid())
        _column = iCurrent.column();
}

// Home and End are for the rows, in the column that is current.
QModelIndex TableView::moveCursor(CursorAction iAction, Qt::KeyboardModifiers iModifiers) {
    if (iAction == MoveHome)
        return _model->index(0, CurrentColumn());
    if (iAction == MoveEnd)
        return _model->index(_model->rowCount() - 1, CurrentColumn());
    return QTableView::moveCursor(iAction, iModifiers);
}

QItemSelectionModel::SelectionFlags TableView::selectionCommand(const QModelIndex& iIndex,
                                                                const QEvent* iEvent) const {
    if (!iIndex.isValid())
        return QItemSelectionModel::NoUpdate;
    if (iEvent != nullptr && iEvent->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(iEvent)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right)
            return QItemSelectionModel::NoUpdate;
    }
    if (selectionMode() == QAbstractItemView::SingleSelection)
        return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    return QTableView::selectionCommand(iIndex, iEvent);
}

// For the double click on a divider, which makes a column no wider than the table.
int TableView::sizeHintForColumn(int iColumn) const {
    return std::min(QTableView::sizeHintForColumn(iColumn), viewport()->width());
}

std::vector<int> TableView::SelectedRows() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        const std::size_t before = rows.size();
        rows.resize(before + static_cast<std::size_t>(range.height()));
        std::iota(rows.begin() + static_cast<std::ptrdiff_t>(before), rows.end(), range.top());
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

bool TableView::IsSelected(int iRow) const {
    return iRow >= 0 && selectionModel()->isSelected(_model->index(iRow, 0));
}

bool TableView::IsInSight(int iRow) const {
    return rowViewportPosition(iRow) >= 0 &&
           rowViewportPosition(iRow) + rowHeight(iRow) <= viewport()->height();
}

void TableView::PassSelectionOn() {
    if (!_isSelectionNew)
        return;
    _isSelectionNew = false;
    _wishes.select(SelectedRows());
}

void TableView::CopySelected() const {
    const std::vector<int> rows = SelectedRows();
    if (rows.empty())
        return;
    QString text;
    for (const int row : rows) {
        if (row != rows.front())
            text += QLatin1Char('\n');
        for (int column = 0; column < _model->columnCount(); ++column) {
            if (column > 0)
                text += QLatin1Char('\t');
            text += AsField(_model->Text(row, column));
        }
    }
    QGuiApplication::clipboard()->setText(text);
}

// Without scrolling, and without a word about the selection.
void TableView::SetCurrentRow(int iRow) {
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(_model->index(iRow, CurrentColumn()), QItemSelectionModel::NoUpdate);
    setAutoScroll(true);
}

int TableView::CurrentColumn() const {
    return std::min(_column, _model->columnCount() - 1);
}

void TableView::ShowHeader() {
    _header->setVisible(_model->HasTitles());
}

void TableView::ShowRowHeight() {
    const int height = fontMetrics().height() * 4 / 3;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

void TableView::MeasureColumns() {
    const int character = fontMetrics().averageCharWidth();
    const int margins = character * 2;
    std::vector<int> widths;
    for (int column = 0; column < _model->columnCount(); ++column) {
        const std::size_t place = static_cast<std::size_t>(column);
        const int asked = place < _extent.columnWidths.size() ? _extent.columnWidths[place] : 0;
        const int longest = asked > 0 ? longestTextOfWidth : longestText;
        const int texts = std::max(asked * character, WidthOfTexts(column, longest * character));
        widths.push_back(std::max(texts + margins, _model->HasTitles() ? _header->TitleWidth(column) : 0));
    }
    _header->SetNaturalWidths(widths);
    updateGeometry();
}

int TableView::WidthOfTexts(int iColumn, int iLongest) const {
    int widest = 0;
    for (int row = 0; row < std::min(_model->rowCount(), measuredRows) && widest < iLongest; ++row) {
        const QString text = _model->index(row, iColumn).data().toString().left(iLongest);
        widest = std::max(widest, fontMetrics().horizontalAdvance(text));
    }
    return std::min(widest, iLongest);
}

// As many as were asked for, or all of them unless a width was asked for instead.
int TableView::WidthOfColumns() const {
    const int asked = _extent.width * fontMetrics().averageCharWidth();
    if (asked > 0 && _extent.columns == 0)
        return asked;
    const int natural =
        _extent.columns > 0 ? _header->NaturalWidth(_extent.columns) : _header->NaturalWidth();
    const int widest = screen()->availableSize().width() * 3 / 4;
    return std::max(asked, std::min(natural, widest));
}

QSize TableView::SizeOf(int iRows, int iWidth) const {
    const int frame = 2 * frameWidth();
    const int titles = _header->isHidden() ? 0 : _header->sizeHint().height();
    return QSize(iWidth + verticalScrollBar()->sizeHint().width() + frame,
                 verticalHeader()->defaultSectionSize() * iRows + titles + frame);
}

} // namespace desktop
