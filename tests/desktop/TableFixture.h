#pragma once

#include "CATDlgMultiList.h"
#include "DesktopFixture.h"

#include <QtGui/QImage>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>

#include <string>
#include <vector>

namespace desktop_test {

// A dialog with a list of named columns, which a test fills, opens and uses with mouse and keyboard.
class TableTest : public DesktopTest {
  protected:
    // A list of iStyle with the titles "Name", "Value" and "Remark".
    explicit TableTest(CATDlgStyle iStyle = 0);

    CATDlgMultiList& List() { return *_list; }
    QTableView& Table() { return ShownAs<QTableView>(*_list); }

    // Fills in rows named "Row 0" and so on, after those that are there.
    void AddRows(int iCount);
    void Refill(int iCount);
    void Select(std::vector<int> iRows);
    std::vector<int> Selected() const;
    std::string Cell(int iRow, int iColumn) const;

    // What the table shows.
    std::string ShownCell(int iRow, int iColumn);
    std::vector<int> ShownSelection();
    int TopRow() { return Table().rowAt(0); }
    bool IsRowInSight(int iRow);

    QPoint PlaceOfCell(int iRow, int iColumn);
    void Click(int iRow, int iColumn = 0, Qt::KeyboardModifiers iModifiers = Qt::NoModifier);
    void DoubleClick(int iRow, int iColumn);
    void PressKey(Qt::Key iKey, Qt::KeyboardModifiers iModifiers = Qt::NoModifier);
    // Rests the pointer on a place of a widget, and the help that comes up; empty for none.
    std::string HelpAt(QWidget& ioWidget, const QPoint& iPlace);

  private:
    CATDlgMultiList* _list;
};

const Classes selected = {"CATDlgListSelectNotification"};
const Classes activated = {"CATDlgListSelectNotification", "CATDlgListActivateNotification",
                           "CATDlgListColumnActivateNotification"};

} // namespace desktop_test
