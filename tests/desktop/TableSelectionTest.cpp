#include "TableFixture.h"

#include "CATDlgEditor.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>

namespace desktop_test {

namespace {

class TableSelectionTest : public TableTest {};

class TableOfManyTest : public TableTest {
  protected:
    TableOfManyTest() : TableTest(CATDlgLstMultisel) {}
};

TEST_F(TableSelectionTest, AClickSelectsItsRowOnce) {
    AddRows(3);
    Open();
    Click(1, 2);
    EXPECT_EQ(Selected(), std::vector<int>({1}));
    EXPECT_EQ(ShownSelection(), std::vector<int>({1}));
    EXPECT_EQ(Command().TakeClasses(), selected);
}

TEST_F(TableSelectionTest, AClickOnTheSelectedRowTellsAgain) {
    AddRows(3);
    Open();
    Click(1);
    Click(1);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgListSelectNotification", "CATDlgListSelectNotification"}));
}

TEST_F(TableSelectionTest, WithoutMultiSelectionOneRowIsSelectedWhateverIsHeldDown) {
    AddRows(4);
    Open();
    Click(0);
    Click(2, 0, Qt::ControlModifier);
    EXPECT_EQ(Selected(), std::vector<int>({2}));
    Click(3, 0, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), std::vector<int>({3}));
    Click(3, 0, Qt::ControlModifier);
    EXPECT_EQ(Selected(), std::vector<int>({3}));
    PressKey(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected(), std::vector<int>({3}));
}

TEST_F(TableSelectionTest, AClickBesideTheRowsClearsNothing) {
    AddRows(2);
    Select({1});
    Open();
    const QPoint beside(5, Table().viewport()->height() - 2);
    ASSERT_FALSE(Table().indexAt(beside).isValid());
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, Qt::NoModifier, beside);
    QTest::mouseDClick(Table().viewport(), Qt::LeftButton, Qt::NoModifier, beside);
    EXPECT_EQ(Selected(), std::vector<int>({1}));
    EXPECT_EQ(ShownSelection(), std::vector<int>({1}));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TableOfManyTest, AClickBesideTheRowsClearsNothing) {
    AddRows(2);
    Select({0, 1});
    Open();
    const QPoint beside(5, Table().viewport()->height() - 2);
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, Qt::NoModifier, beside);
    QTest::mouseClick(Table().viewport(), Qt::RightButton, Qt::NoModifier, beside);
    EXPECT_EQ(ShownSelection(), std::vector<int>({0, 1}));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TableOfManyTest, ShiftExtendsAndCtrlAddsOrRemoves) {
    AddRows(5);
    Open();
    Click(1);
    Click(3, 0, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), std::vector<int>({1, 2, 3}));
    Click(2, 0, Qt::ControlModifier);
    EXPECT_EQ(Selected(), std::vector<int>({1, 3}));
    Click(0, 0, Qt::ControlModifier);
    EXPECT_EQ(Selected(), std::vector<int>({0, 1, 3}));
    EXPECT_EQ(Command().TakeClasses().size(), 4U);
}

TEST_F(TableOfManyTest, CtrlRemovesTheLastSelectedRowToo) {
    AddRows(2);
    Open();
    Click(1);
    Click(1, 0, Qt::ControlModifier);
    EXPECT_EQ(Selected(), std::vector<int>());
    EXPECT_EQ(ShownSelection(), std::vector<int>());
    EXPECT_EQ(Command().TakeClasses().size(), 2U);
}

TEST_F(TableOfManyTest, ADragSelectsOnceWhenTheButtonIsReleased) {
    AddRows(5);
    Open();
    QWidget* const cells = Table().viewport();
    QTest::mousePress(cells, Qt::LeftButton, Qt::NoModifier, PlaceOfCell(1, 0));
    QTest::mouseMove(cells, PlaceOfCell(2, 0));
    QTest::mouseMove(cells, PlaceOfCell(3, 0));
    EXPECT_EQ(Command().TakeClasses(), Classes());
    QTest::mouseRelease(cells, Qt::LeftButton, Qt::NoModifier, PlaceOfCell(3, 0));
    EXPECT_EQ(Selected(), std::vector<int>({1, 2, 3}));
    EXPECT_EQ(Command().TakeClasses(), selected);
}

TEST_F(TableOfManyTest, CtrlASelectsAllAndShiftArrowExtends) {
    AddRows(4);
    Open();
    Click(1);
    PressKey(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), std::vector<int>({1, 2}));
    PressKey(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected(), std::vector<int>({0, 1, 2, 3}));
    EXPECT_EQ(Command().TakeClasses().size(), 3U);
}

TEST_F(TableOfManyTest, LeftAndRightLeaveTheSelectedRowsAlone) {
    AddRows(4);
    Select({1, 2});
    Open();
    PressKey(Qt::Key_Right);
    EXPECT_EQ(Table().currentIndex().column(), 1);
    EXPECT_EQ(ShownSelection(), std::vector<int>({1, 2}));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TableSelectionTest, KeysSelectARowEach) {
    AddRows(20);
    Select({3});
    Open();
    struct Step {
        Qt::Key key;
        int row;
    };
    for (const Step step : {Step{Qt::Key_Down, 4}, Step{Qt::Key_Up, 3}, Step{Qt::Key_End, 19},
                            Step{Qt::Key_Home, 0}, Step{Qt::Key_PageDown, 5}, Step{Qt::Key_PageUp, 0}}) {
        PressKey(step.key);
        EXPECT_EQ(Selected(), std::vector<int>({step.row})) << step.key;
        EXPECT_TRUE(IsRowInSight(step.row)) << step.key;
        EXPECT_EQ(Command().TakeClasses(), selected) << step.key;
    }
    PressKey(Qt::Key_Up);
    EXPECT_EQ(Command().TakeClasses(), Classes()) << "there is no row above the first";
}

TEST_F(TableSelectionTest, HomeAndEndStayInTheirColumn) {
    AddRows(20);
    Select({3});
    Open();
    PressKey(Qt::Key_Right);
    PressKey(Qt::Key_End);
    EXPECT_EQ(Table().currentIndex(), Table().model()->index(19, 1));
    PressKey(Qt::Key_Home);
    EXPECT_EQ(Table().currentIndex(), Table().model()->index(0, 1));
}

TEST_F(TableSelectionTest, TheCurrentCellHasAFrameWhileTheTableHasTheFocus) {
    AddRows(3);
    Select({0});
    Open();
    Table().setFocus();
    const QImage first = Windows().Picture(Dialog());
    PressKey(Qt::Key_Right);
    EXPECT_NE(first, Windows().Picture(Dialog()));
    PressKey(Qt::Key_Left);
    EXPECT_EQ(first, Windows().Picture(Dialog()));
}

TEST_F(TableSelectionTest, TypingGoesToTheRowThatBeginsSoWhateverTheCase) {
    for (const char* name : {"Depth", "Diameter", "Länge", "pitch"})
        List().SetColumnItem(0, name);
    Open();
    Click(0);
    QTest::keyClicks(&Table(), QStringLiteral("PIT"));
    EXPECT_EQ(Selected(), std::vector<int>({3}));
}

TEST_F(TableSelectionTest, TypingFindsLettersOfAnyAlphabet) {
    for (const char* name : {"Depth", "Lochtiefe", "Länge"})
        List().SetColumnItem(0, name);
    Open();
    Click(0);
    for (const char* letter : {"l", "Ä"})
        QTest::sendKeyEvent(QTest::Click, &Table(), Qt::Key_unknown, QString::fromUtf8(letter),
                            Qt::NoModifier);
    EXPECT_EQ(Selected(), std::vector<int>({2}));
}

TEST_F(TableSelectionTest, TypingLooksInTheCurrentColumn) {
    AddRows(3);
    List().SetColumnItem(0, "long", 1, CATDlgDataModify);
    List().SetColumnItem(2, "long", 2, CATDlgDataModify);
    Open();
    Click(0, 2);
    QTest::keyClicks(&Table(), QStringLiteral("lo"));
    EXPECT_EQ(Selected(), std::vector<int>({2}));
    EXPECT_EQ(Table().currentIndex().column(), 2);
}

TEST_F(TableSelectionTest, TypingFindsTheLastOfManyRows) {
    AddRows(200000);
    List().SetColumnItem(0, "Needle");
    Open();
    Click(0);
    QTest::keyClicks(&Table(), QStringLiteral("needle"));
    EXPECT_EQ(Selected(), std::vector<int>({200000}));
    EXPECT_TRUE(IsRowInSight(200000));
}

TEST_F(TableSelectionTest, ADoubleClickActivatesTheCellThatWasClicked) {
    AddRows(3);
    Open();
    DoubleClick(1, 2);
    EXPECT_EQ(Command().TakeClasses(), activated);
    EXPECT_EQ(List().GetActivatedColumn(), 2);
    EXPECT_EQ(Selected(), std::vector<int>({1}));
    EXPECT_EQ(ShownSelection(), std::vector<int>({1}));
}

TEST_F(TableSelectionTest, ADoubleClickWithAnotherButtonActivatesNothing) {
    AddRows(3);
    Open();
    QTest::mouseDClick(Table().viewport(), Qt::RightButton, Qt::NoModifier, PlaceOfCell(1, 0));
    EXPECT_EQ(Command().TakeClasses(), selected) << "it selects the row for the menu";
}

TEST_F(TableSelectionTest, TwoQuickClicksOnTwoRowsAreTwoClicks) {
    AddRows(3);
    Open();
    Click(0);
    QTest::mouseDClick(Table().viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOfCell(0, 0));
    Command().Forget();
    Click(1);
    const QPointF place = PlaceOfCell(2, 0);
    const QPointF onScreen = Table().viewport()->mapToGlobal(place);
    QMouseEvent second(QEvent::MouseButtonDblClick, place, onScreen, Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QApplication::sendEvent(Table().viewport(), &second);
    QTest::mouseRelease(Table().viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOfCell(2, 0));
    EXPECT_EQ(Selected(), std::vector<int>({2}));
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgListSelectNotification", "CATDlgListSelectNotification"}));
}

TEST_F(TableSelectionTest, EnterActivatesTheCurrentCellAndNotTheDialog) {
    AddRows(3);
    Select({1});
    Open();
    PressKey(Qt::Key_Right);
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        PressKey(enter);
        EXPECT_EQ(Command().TakeClasses(), activated);
        EXPECT_EQ(List().GetActivatedColumn(), 1);
    }
    EXPECT_EQ(Selected(), std::vector<int>({1}));
}

TEST_F(TableSelectionTest, EnterInAnEmptyTableDoesNothing) {
    Open();
    PressKey(Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TableSelectionTest, EscapeIsForTheDialog) {
    AddRows(3);
    Select({1});
    Open();
    PressKey(Qt::Key_Escape);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaCANCELNotification"}));
}

TEST_F(TableSelectionTest, TabLeavesTheTable) {
    AddRows(3);
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    PressKey(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*editor));
    QTest::keyClick(&Shown(*editor), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &Table());
}

TEST_F(TableSelectionTest, WhatTheHostRefusesIsTakenBackAndTold) {
    AddRows(3);
    Select({0});
    Open();
    List().SetSensitivity(CATDlgDisable); // Qt has not heard of it yet
    Click(2);
    EXPECT_EQ(Selected(), std::vector<int>({0}));
    EXPECT_EQ(ShownSelection(), std::vector<int>({0}));
    EXPECT_NE(ShownReason().find("is disabled"), std::string::npos) << ShownReason();
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TableSelectionTest, ARefusalLeavesTheScrollPosition) {
    AddRows(50);
    Open();
    Table().verticalScrollBar()->setValue(20);
    List().SetSensitivity(CATDlgDisable);
    Click(22);
    EXPECT_EQ(ShownSelection(), std::vector<int>());
    EXPECT_EQ(TopRow(), 20);
}

TEST_F(TableSelectionTest, ADisabledTableIsGreyAndTakesNothing) {
    AddRows(3);
    Open();
    const QImage enabled = Windows().Picture(Dialog());
    List().SetSensitivity(CATDlgDisable);
    Settle();
    EXPECT_FALSE(Table().isEnabled());
    EXPECT_NE(enabled, Windows().Picture(Dialog()));
    Click(1);
    DoubleClick(1, 0);
    EXPECT_EQ(Selected(), std::vector<int>());
    EXPECT_EQ(Command().TakeClasses(), Classes());
    List().SetVisibility(CATDlgHide);
    Settle();
    EXPECT_FALSE(Table().isVisible());
}

TEST_F(TableSelectionTest, ShowsWhatTheProgramSelectsAndBringsItIntoSight) {
    AddRows(50);
    Open();
    Select({40});
    Settle();
    EXPECT_EQ(ShownSelection(), std::vector<int>({40}));
    EXPECT_TRUE(IsRowInSight(40));
    PressKey(Qt::Key_Down);
    EXPECT_EQ(Selected(), std::vector<int>({41})) << "keys go on from there";
    List().ClearSelect();
    Settle();
    EXPECT_EQ(ShownSelection(), std::vector<int>());
}

TEST_F(TableOfManyTest, ShowsScatteredRowsThatTheProgramSelects) {
    AddRows(50);
    Open();
    Select({2, 3, 4, 30, 49});
    Settle();
    EXPECT_EQ(ShownSelection(), std::vector<int>({2, 3, 4, 30, 49}));
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_EQ(TopRow(), 0) << "one of them is in sight";
}

} // namespace

} // namespace desktop_test
