#ifndef desktop_TableView_H
#define desktop_TableView_H

#include "TableModel.h"

#include <QtWidgets/QTableView>

#include <functional>
#include <vector>

namespace desktop {

class ColumnHeader;

// A table whose rows are selected by mouse, keys and typing, and activated cell by cell by a double click or
// Enter, which stays in the table. Its selected rows can be copied as text.
class TableView : public QTableView {
  public:
    // What the person asks for, once for each click and key.
    struct Wishes {
        std::function<void(const std::vector<int>&)> select; // these rows and no others, in ascending order
        std::function<void(int, int)> activate;              // row and column
    };
    TableView(QWidget* iParent, Wishes iWishes);

    // iModel is not owned.
    void Show(TableModel& ioModel, bool iSelectsMany);
    // Takes over the rows of the host. True when no row is shown as selected any more.
    bool Follow(TableModel::Fate iFate);
    // Rows that are there, in ascending order. Scrolls to one of them when they are others than before,
    // unless one is in sight.
    void ShowSelected(const std::vector<int>& iRows);

    // As it was asked for: rows, characters, columns; 0 for what was not.
    struct Extent {
        int rows = 0;
        int width = 0;
        int columns = 0;
        std::vector<int> columnWidths; // least ones, in characters
    };
    void SetExtent(const Extent& iExtent);

    // QTableView
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void mousePressEvent(QMouseEvent* iEvent) override;
    void mouseMoveEvent(QMouseEvent* iEvent) override;
    void mouseReleaseEvent(QMouseEvent* iEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* iEvent) override;
    void keyPressEvent(QKeyEvent* iEvent) override;
    void contextMenuEvent(QContextMenuEvent* iEvent) override;
    void resizeEvent(QResizeEvent* iEvent) override;
    void changeEvent(QEvent* iEvent) override;
    void currentChanged(const QModelIndex& iCurrent, const QModelIndex& iBefore) override;
    QModelIndex moveCursor(CursorAction iAction, Qt::KeyboardModifiers iModifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& iIndex,
                                                         const QEvent* iEvent) const override;
    int sizeHintForColumn(int iColumn) const override;

  private:
    std::vector<int> SelectedRows() const;
    bool IsSelected(int iRow) const;
    bool IsInSight(int iRow) const;
    void BringSelectionIntoSight();
    void PassSelectionOn();
    void CopySelected() const;
    void SetCurrentRow(int iRow);
    int CurrentColumn() const;
    void ShowHeader();
    void ShowRowHeight();
    void MeasureColumns();
    int WidthOfTexts(int iColumn, int iLongest) const; // in pixels, at most iLongest
    int WidthOfColumns() const;                        // of those that are to be in sight, in pixels
    QSize SizeOf(int iRows, int iWidth) const;

    Wishes _wishes;
    TableModel* _model = nullptr; // not owned
    ColumnHeader* _header;
    Extent _extent;
    int _column = 0;              // of the current cell; outlives the rows
    int _pressedRow = -1;         // by the left button, until the next press
    bool _isPressed = false;      // on a row, by the left button
    bool _isShowing = false;      // what the host holds, so that changes are no person's doing
    bool _isSelectionNew = false; // the person has changed it, the host does not know yet
};

} // namespace desktop

#endif
