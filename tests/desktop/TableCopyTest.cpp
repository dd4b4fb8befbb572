#include "TableFixture.h"

#include "host/EventScope.h"
#include "host/MessageCatalogs.h"

#include <QtCore/QPointer>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

namespace desktop_test {

namespace {

class TableCopyTest : public TableTest {
  protected:
    TableCopyTest() : TableTest(CATDlgLstMultisel) { QApplication::clipboard()->setText("before"); }

    static std::string Copied() { return Utf8(QApplication::clipboard()->text()); }
    QPointer<QMenu> OpenMenu(const QPoint& iPlace) {
        QTest::mouseClick(Table().viewport(), Qt::RightButton, Qt::NoModifier, iPlace);
        QContextMenuEvent ask(QContextMenuEvent::Mouse, iPlace, Table().viewport()->mapToGlobal(iPlace));
        QApplication::sendEvent(Table().viewport(), &ask);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
};

TEST_F(TableCopyTest, CtrlCCopiesTheSelectedRowsWithAllTheirColumns) {
    AddRows(4);
    List().SetColumnItem(2, "last", 3, CATDlgDataModify);
    Open();
    Click(3);
    Click(1, 0, Qt::ControlModifier);
    Command().Forget();
    PressKey(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), "Row 1\t1 mm\t\nRow 3\t3 mm\tlast");
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TableCopyTest, WhatDividesCellsAndRowsBecomesABlank) {
    AddRows(1);
    List().SetColumnItem(0, "a\tb\nc\r\nd", 0, CATDlgDataModify);
    List().SetColumnItem(1, std::string(100000, 'W').c_str(), 0, CATDlgDataModify);
    Select({0});
    Open();
    PressKey(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), "a b c d\t" + std::string(100000, 'W') + "\t") << "whole, however long";
}

TEST_F(TableCopyTest, WithoutASelectedRowNothingIsCopied) {
    AddRows(2);
    Open();
    PressKey(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), "before");
}

TEST_F(TableCopyTest, TheMenuSelectsTheRowAndCopiesIt) {
    AddRows(3);
    Open();
    const QPointer<QMenu> menu = OpenMenu(PlaceOfCell(1, 0));
    ASSERT_FALSE(menu.isNull());
    EXPECT_EQ(Command().TakeClasses(), selected);
    ASSERT_EQ(menu->actions().size(), 1);
    QAction* const copy = menu->actions().at(0);
    EXPECT_EQ(Utf8(copy->text()), "Copy");
    EXPECT_EQ(copy->shortcut(), QKeySequence(QKeySequence::Copy));
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(Copied(), "Row 1\t1 mm\t");
    Settle();
    EXPECT_TRUE(menu.isNull()) << "it goes when it is closed";
}

TEST_F(TableCopyTest, TheMenuKeepsSeveralSelectedRows) {
    AddRows(4);
    Select({1, 2});
    Open();
    const QPointer<QMenu> menu = OpenMenu(PlaceOfCell(2, 0));
    ASSERT_FALSE(menu.isNull());
    EXPECT_EQ(Selected(), std::vector<int>({1, 2}));
    EXPECT_EQ(Command().TakeClasses(), Classes());
    menu->close();
}

TEST_F(TableCopyTest, TheMenuOffersNothingWhereNothingIsSelected) {
    AddRows(1);
    Open();
    const QPointer<QMenu> menu = OpenMenu(QPoint(5, Table().viewport()->height() - 2));
    ASSERT_FALSE(menu.isNull());
    EXPECT_FALSE(menu->actions().at(0)->isEnabled());
    menu->close();
}

TEST_F(TableCopyTest, TheMenuSpeaksTheLanguageOfTheMessages) {
    AddRows(1);
    Open();
    host::MessageCatalogs::SetLanguage("German");
    const QPointer<QMenu> menu = OpenMenu(PlaceOfCell(0, 0));
    host::MessageCatalogs::SetLanguage("");
    ASSERT_FALSE(menu.isNull());
    EXPECT_EQ(Utf8(menu->actions().at(0)->text()), "Kopieren");
    menu->close();
}

TEST_F(TableCopyTest, TheListMayGoWhileItsMenuIsOpen) {
    AddRows(1);
    Open();
    const QPointer<QMenu> menu = OpenMenu(PlaceOfCell(0, 0));
    ASSERT_FALSE(menu.isNull());
    {
        const host::EventScope event;
        delete &List();
    }
    Settle();
    Settle();
    EXPECT_TRUE(menu.isNull());
    EXPECT_EQ(Copied(), "before");
}

} // namespace

} // namespace desktop_test
