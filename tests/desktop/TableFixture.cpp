#include "TableFixture.h"

#include <QtGui/QHelpEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

#include <set>

namespace desktop_test {

TableTest::TableTest(CATDlgStyle iStyle) : _list(new CATDlgMultiList(&Dialog(), "ParameterMul", iStyle)) {
    const CATUnicodeString titles[] = {"Name", "Value", "Remark"};
    _list->SetColumnTitles(3, titles);
    _list->SetVisibleTextHeight(5);
}

void TableTest::AddRows(int iCount) {
    for (int row = 0; row < iCount; ++row) {
        const std::string number = std::to_string(_list->GetLineCount());
        _list->SetColumnItem(0, ("Row " + number).c_str());
        _list->SetColumnItem(1, (number + " mm").c_str());
    }
}

void TableTest::Refill(int iCount) {
    _list->ClearLine();
    AddRows(iCount);
}

void TableTest::Select(std::vector<int> iRows) {
    _list->SetSelect(iRows.data(), static_cast<int>(iRows.size()));
}

std::vector<int> TableTest::Selected() const {
    std::vector<int> rows(static_cast<std::size_t>(_list->GetSelectCount()));
    _list->GetSelect(rows.data(), _list->GetSelectCount());
    return rows;
}

std::string TableTest::Cell(int iRow, int iColumn) const {
    CATUnicodeString text;
    _list->GetColumnItem(iColumn, text, iRow);
    return text.ConvertToChar();
}

std::string TableTest::ShownCell(int iRow, int iColumn) {
    return Utf8(Table().model()->index(iRow, iColumn).data().toString());
}

std::vector<int> TableTest::ShownSelection() {
    std::set<int> rows;
    for (const QModelIndex& index : Table().selectionModel()->selectedRows())
        rows.insert(index.row());
    return std::vector<int>(rows.begin(), rows.end());
}

bool TableTest::IsRowInSight(int iRow) {
    const int top = Table().rowViewportPosition(iRow);
    return top >= 0 && top + Table().rowHeight(iRow) <= Table().viewport()->height();
}

QPoint TableTest::PlaceOfCell(int iRow, int iColumn) {
    return Table().visualRect(Table().model()->index(iRow, iColumn)).center();
}

void TableTest::Click(int iRow, int iColumn, Qt::KeyboardModifiers iModifiers) {
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, iModifiers, PlaceOfCell(iRow, iColumn));
}

// As a person does: the first click selects by itself.
void TableTest::DoubleClick(int iRow, int iColumn) {
    Click(iRow, iColumn);
    Command().Forget();
    QTest::mouseDClick(Table().viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOfCell(iRow, iColumn));
}

void TableTest::PressKey(Qt::Key iKey, Qt::KeyboardModifiers iModifiers) {
    Table().setFocus();
    QTest::keyClick(&Table(), iKey, iModifiers);
}

std::string TableTest::HelpAt(QWidget& ioWidget, const QPoint& iPlace) {
    QToolTip::hideText();
    Settle();
    QHelpEvent rest(QEvent::ToolTip, iPlace, ioWidget.mapToGlobal(iPlace));
    QApplication::sendEvent(&ioWidget, &rest);
    return QToolTip::isVisible() ? Utf8(QToolTip::text()) : std::string();
}

} // namespace desktop_test
