#include "TableFixture.h"

#include "CATDlgNotify.h"
#include "host/EventScope.h"

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

namespace desktop_test {

namespace {

class TableChangeTest : public TableTest {};

TEST_F(TableChangeTest, ChangedCellsLeaveScrollPositionAndCurrentCellAlone) {
    AddRows(50);
    Open();
    Click(4, 1);
    Table().verticalScrollBar()->setValue(20);
    const QSignalSpy resets(Table().model(), &QAbstractItemModel::modelReset);
    const QSignalSpy changes(Table().model(), &QAbstractItemModel::dataChanged);
    List().SetColumnItem(1, "changed", 21, CATDlgDataModify);
    List().SetColumnItem(1, "changed too", 22, CATDlgDataModify);
    Settle();
    EXPECT_EQ(ShownCell(21, 1), "changed");
    EXPECT_EQ(TopRow(), 20);
    EXPECT_EQ(Table().currentIndex(), Table().model()->index(4, 1));
    EXPECT_EQ(ShownSelection(), std::vector<int>({4}));
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(changes.count(), 1) << "one for the event";
}

TEST_F(TableChangeTest, AChangedCellIsDrawnAnew) {
    AddRows(3);
    Open();
    const QImage before = Windows().Picture(Dialog());
    List().SetColumnItem(1, "7 mm", 2, CATDlgDataModify);
    EXPECT_NE(before, Windows().Picture(Dialog()));
    List().SetColumnItem(1, "2 mm", 2, CATDlgDataModify);
    EXPECT_EQ(before, Windows().Picture(Dialog()));
}

TEST_F(TableChangeTest, AClickThatMakesTheProgramChangeACellDoesNotScroll) {
    AddRows(50);
    Open();
    Table().verticalScrollBar()->setValue(20);
    const Reaction change("CATDlgListSelectNotification",
                          [this] { List().SetColumnItem(2, "seen", 22, CATDlgDataModify); });
    Click(22);
    EXPECT_EQ(change.Count(), 1);
    EXPECT_EQ(ShownCell(22, 2), "seen");
    EXPECT_EQ(TopRow(), 20);
    EXPECT_EQ(ShownSelection(), std::vector<int>({22}));
}

TEST_F(TableChangeTest, AppendedRowsAreInsertedAtTheEnd) {
    AddRows(50);
    Open();
    Click(3);
    Table().verticalScrollBar()->setValue(20);
    const QSignalSpy resets(Table().model(), &QAbstractItemModel::modelReset);
    const QSignalSpy insertions(Table().model(), &QAbstractItemModel::rowsInserted);
    AddRows(5);
    Settle();
    EXPECT_EQ(Table().model()->rowCount(), 55);
    EXPECT_EQ(TopRow(), 20);
    EXPECT_EQ(ShownSelection(), std::vector<int>({3}));
    EXPECT_EQ(resets.count(), 0);
    ASSERT_EQ(insertions.count(), 1);
    EXPECT_EQ(insertions.at(0).at(1).toInt(), 50);
    EXPECT_EQ(insertions.at(0).at(2).toInt(), 54);
}

TEST_F(TableChangeTest, AnAppendedRowThatIsSelectedComesIntoSight) {
    AddRows(50);
    Open();
    AddRows(1);
    Select({50});
    Settle();
    EXPECT_EQ(ShownSelection(), std::vector<int>({50}));
    EXPECT_TRUE(IsRowInSight(50));
}

TEST_F(TableChangeTest, ARemovedRowTakesItsSelectionAlong) {
    AddRows(10);
    Select({4});
    Open();
    List().ClearLine(2);
    Settle();
    EXPECT_EQ(Table().model()->rowCount(), 9);
    EXPECT_EQ(ShownCell(3, 0), "Row 4");
    EXPECT_EQ(ShownSelection(), std::vector<int>({3})) << "the same row, one further up";
    List().ClearLine(3);
    Settle();
    EXPECT_EQ(ShownSelection(), std::vector<int>());
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TableChangeTest, ARefilledListIsShownFromTheTop) {
    AddRows(50);
    Open();
    for (const int count : {50, 60, 40}) {
        Table().verticalScrollBar()->setValue(20);
        ASSERT_EQ(TopRow(), 20);
        Refill(count);
        Settle();
        EXPECT_EQ(Table().model()->rowCount(), count);
        EXPECT_EQ(TopRow(), 0) << count;
    }
}

TEST_F(TableChangeTest, ARefillShowsTheRowThatIsSelected) {
    AddRows(50);
    Open();
    Refill(60);
    Select({45});
    Settle();
    EXPECT_TRUE(IsRowInSight(45));
    Table().verticalScrollBar()->setValue(0);
    Refill(60);
    Select({45});
    Settle();
    EXPECT_TRUE(IsRowInSight(45)) << "the same one as before, too";
    EXPECT_EQ(ShownSelection(), std::vector<int>({45}));
}

TEST_F(TableChangeTest, ARefillThatSelectsARowInSightDoesNotScroll) {
    AddRows(50);
    Select({21});
    Open();
    Table().verticalScrollBar()->setValue(20);
    Refill(60);
    Select({22});
    Settle();
    EXPECT_EQ(Table().model()->rowCount(), 60);
    EXPECT_EQ(ShownSelection(), std::vector<int>({22}));
    EXPECT_EQ(TopRow(), 20);
}

TEST_F(TableChangeTest, ARefillKeepsTheColumnOfTheCurrentCell) {
    AddRows(10);
    Open();
    Click(4, 1);
    Refill(10);
    Select({5});
    Settle();
    EXPECT_EQ(Table().currentIndex(), Table().model()->index(5, 1));
    PressKey(Qt::Key_Return);
    EXPECT_EQ(List().GetActivatedColumn(), 1);
}

TEST_F(TableChangeTest, ARemovedRowScrollsNothingWhetherItWasSelectedOrNot) {
    AddRows(50);
    Select({3});
    Open();
    Table().verticalScrollBar()->setValue(20);
    List().ClearLine(30);
    Settle();
    EXPECT_EQ(Table().model()->rowCount(), 49);
    EXPECT_EQ(TopRow(), 20);
    EXPECT_EQ(ShownSelection(), std::vector<int>({3}));
    List().ClearLine(3);
    Settle();
    EXPECT_EQ(Table().model()->rowCount(), 48);
    EXPECT_EQ(TopRow(), 20);
    EXPECT_EQ(ShownSelection(), std::vector<int>());
}

TEST_F(TableChangeTest, ACellThatIsChangedAsTheSelectionIsClearedScrollsNothing) {
    AddRows(50);
    Select({22});
    Open();
    Table().verticalScrollBar()->setValue(20);
    List().SetColumnItem(1, "changed", 22, CATDlgDataModify);
    List().ClearSelect();
    Settle();
    EXPECT_EQ(ShownCell(22, 1), "changed");
    EXPECT_EQ(ShownSelection(), std::vector<int>());
    EXPECT_EQ(TopRow(), 20);
}

TEST_F(TableChangeTest, ADialogThatOpensShowsTheRowThatIsSelected) {
    AddRows(50);
    Select({3});
    Open();
    EXPECT_EQ(TopRow(), 0) << "it is in sight from the top";
    Dialog().SetVisibility(CATDlgHide);
    Settle();
    Select({30});
    Dialog().SetVisibility(CATDlgShow);
    Settle();
    EXPECT_TRUE(IsRowInSight(30));
}

TEST_F(TableChangeTest, AListIsFilledAfterItIsShown) {
    Open();
    EXPECT_EQ(Table().model()->rowCount(), 0);
    AddRows(3);
    Settle();
    EXPECT_EQ(Table().model()->rowCount(), 3);
    EXPECT_EQ(ShownCell(2, 0), "Row 2");
}

TEST_F(TableChangeTest, TheProgramMayChangeTheSelectionInsideItsNotification) {
    AddRows(5);
    Open();
    const Reaction change("CATDlgListSelectNotification", [this] { Select({0}); });
    Click(3);
    EXPECT_EQ(change.Count(), 1);
    EXPECT_EQ(Selected(), std::vector<int>({0}));
    EXPECT_EQ(ShownSelection(), std::vector<int>({0}));
}

TEST_F(TableChangeTest, TheProgramMayRefillTheListInsideItsNotification) {
    AddRows(50);
    Open();
    Table().verticalScrollBar()->setValue(20);
    const Reaction refill("CATDlgListSelectNotification", [this] { Refill(50); });
    Click(22);
    EXPECT_EQ(refill.Count(), 1);
    EXPECT_EQ(ShownSelection(), std::vector<int>());
    EXPECT_EQ(TopRow(), 0);
}

TEST_F(TableChangeTest, RowsThatAreGoneReadEmptyUntilTheViewHearsOfIt) {
    AddRows(50);
    Open();
    {
        const host::EventScope event;
        List().ClearLine();
        EXPECT_EQ(Table().model()->rowCount(), 50) << "what the view knows";
        EXPECT_EQ(ShownCell(30, 0), "");
        Table().viewport()->repaint();
        AddRows(2);
        EXPECT_EQ(ShownCell(1, 0), "Row 1");
        EXPECT_EQ(ShownCell(2, 0), "");
    }
    EXPECT_EQ(Table().model()->rowCount(), 2);
}

TEST_F(TableChangeTest, AMessageInTheMiddleOfARefillShowsWhatIsThere) {
    AddRows(50);
    Open();
    int shownRows = -1;
    const Reaction refill("CATDlgListSelectNotification", [this] {
        List().ClearLine();
        CATDlgNotify notify(MainWindow(), "Wait", CATDlgNfyWarning);
        notify.DisplayBlocked("Reading", "Parameters");
        AddRows(7);
    });
    DoSoon([this, &shownRows] {
        Table().viewport()->repaint();
        shownRows = Table().model()->rowCount();
        qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->accept();
    });
    Click(2);
    EXPECT_EQ(TakeMessages().size(), 1U);
    EXPECT_EQ(shownRows, 0);
    EXPECT_EQ(Table().model()->rowCount(), 7);
}

TEST_F(TableChangeTest, AListMayBeDestroyedInItsOwnDoubleClick) {
    AddRows(5);
    Open();
    const QPointer<QWidget> shown(&Table());
    const QPointer<QAbstractItemModel> model(Table().model());
    const Reaction destroy("CATDlgListActivateNotification", [this] { delete &List(); });
    QWidget* const cells = Table().viewport();
    const QPoint place = PlaceOfCell(1, 0);
    QTest::mouseClick(cells, Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(cells, Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(destroy.Count(), 1);
    ASSERT_FALSE(shown.isNull()) << "it is still handling the double click";
    EXPECT_EQ(model->rowCount(), 0);
    EXPECT_FALSE(shown->isVisible());
    Settle();
    EXPECT_TRUE(shown.isNull());
}

TEST_F(TableChangeTest, AListMayBeDestroyedByEnterAndByAnArrowKey) {
    auto* const other = new CATDlgMultiList(&Dialog(), "OtherMul");
    for (const char* text : {"A", "B"})
        other->SetColumnItem(0, text);
    AddRows(3);
    Select({0});
    Open();
    const QPointer<QWidget> first(&Table());
    const QPointer<QWidget> second(&Shown(*other));
    {
        const Reaction destroy("CATDlgListActivateNotification", [this] { delete &List(); });
        PressKey(Qt::Key_Return);
        EXPECT_EQ(destroy.Count(), 1);
    }
    const Reaction destroy("CATDlgListSelectNotification", [other] { delete other; });
    second->setFocus();
    QTest::keyClick(second, Qt::Key_Down);
    EXPECT_EQ(destroy.Count(), 1);
    Settle();
    EXPECT_TRUE(first.isNull());
    EXPECT_TRUE(second.isNull());
}

TEST_F(TableChangeTest, AListMayBeReplacedByOneOfTheSameNameInsideItsSelectNotification) {
    AddRows(5);
    Open();
    CATDlgMultiList* list = &List();
    const QPointer<QWidget> shown(&Table());
    const Reaction replace("CATDlgListSelectNotification", [this, &list] {
        list->RequestDelayedDestruction();
        list = new CATDlgMultiList(&Dialog(), "ParameterMul");
        list->SetColumnItem(0, "new");
    });
    const QPoint place = PlaceOfCell(2, 0);
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(replace.Count(), 1);
    EXPECT_EQ(ShownAs<QTableView>(*list).model()->rowCount(), 1);
    Settle();
    EXPECT_TRUE(shown.isNull());
    EXPECT_TRUE(Shown(*list).isVisible());
}

TEST_F(TableChangeTest, AListIsDestroyedWhileAButtonIsHeldDownOnIt) {
    AddRows(5);
    Open();
    const QPointer<QWidget> shown(&Table());
    QTest::mousePress(Table().viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOfCell(1, 0));
    {
        const host::EventScope event;
        delete &List();
    }
    Settle();
    Settle();
    EXPECT_TRUE(shown.isNull());
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

} // namespace

} // namespace desktop_test
