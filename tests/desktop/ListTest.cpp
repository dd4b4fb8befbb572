#include "CATDlgCombo.h"
#include "DesktopFixture.h"

#include <QtTest/QTest>
#include <QtWidgets/QListView>
#include <QtWidgets/QScrollBar>

namespace desktop_test {

namespace {

class ListTest : public DesktopTest {
  protected:
    ListTest() : _combo(new CATDlgCombo(&Dialog(), "TypeSelectCombo")) {
        for (const char* line : {"Clearance hole", "Counterbore", "Countersink", "Keyway", "Undercut"})
            _combo->SetLine(line);
    }

    CATDlgCombo& Combo() { return *_combo; }
    QListView& List() { return ShownAs<QListView>(*_combo); }

    void ClickOnLine(int iLine) {
        const QRect line = List().visualRect(List().model()->index(iLine, 0));
        QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, line.center());
    }

  private:
    CATDlgCombo* _combo;
};

TEST_F(ListTest, ShowsAsManyLinesAsAskedFor) {
    Combo().SetVisibleTextHeight(5);
    Open();
    EXPECT_FALSE(List().verticalScrollBar()->isVisible());
    for (int line = 0; line < 5; ++line)
        EXPECT_TRUE(List().viewport()->rect().contains(List().visualRect(List().model()->index(line, 0))))
            << line;
    const int five = List().height();
    Combo().SetVisibleTextHeight(3);
    Settle();
    EXPECT_EQ(five - List().height(), 2 * List().sizeHintForRow(0));
}

TEST_F(ListTest, ChoosesALineByOneClick) {
    Open();
    ClickOnLine(2);
    EXPECT_EQ(Combo().GetSelect(), 2);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgComboSelectNotification"}));
}

TEST_F(ListTest, ChoosesTheSameLineAgainAndTellsAgain) {
    Open();
    ClickOnLine(1);
    ClickOnLine(1);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgComboSelectNotification", "CATDlgComboSelectNotification"}));
}

TEST_F(ListTest, KeepsItsLineAfterAClickBesideTheLines) {
    Combo().SetSelect(1);
    Combo().SetVisibleTextHeight(8);
    Open();
    const QPoint below(5, List().viewport()->height() - 2);
    ASSERT_FALSE(List().indexAt(below).isValid());
    QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, below);
    EXPECT_EQ(Combo().GetSelect(), 1);
    EXPECT_EQ(List().selectionModel()->selectedIndexes().size(), 1);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(ListTest, ChoosesWithTheArrowKeys) {
    Combo().SetSelect(0);
    Open();
    QTest::keyClick(&List(), Qt::Key_Down);
    QTest::keyClick(&List(), Qt::Key_Down);
    QTest::keyClick(&List(), Qt::Key_Up);
    EXPECT_EQ(Combo().GetSelect(), 1);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgComboSelectNotification", "CATDlgComboSelectNotification",
                       "CATDlgComboSelectNotification"}));
}

TEST_F(ListTest, ChoosesByTypingTheBeginningOfALine) {
    Open();
    QTest::keyClicks(&List(), QStringLiteral("un"));
    EXPECT_EQ(Combo().GetSelect(), 4);
}

TEST_F(ListTest, EnterChoosesTheLineOnceMoreAndLeavesTheDialogOpen) {
    Combo().SetSelect(3);
    Open();
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(Combo().GetSelect(), 3);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgComboSelectNotification"}));
}

TEST_F(ListTest, FollowsWhatTheProgramSelectsAndFills) {
    Open();
    Combo().SetSelect(4);
    Settle();
    EXPECT_EQ(List().currentIndex().row(), 4);
    Combo().ClearLine();
    Combo().SetLine("Centre hole");
    Settle();
    EXPECT_EQ(List().model()->rowCount(), 1);
    EXPECT_FALSE(List().currentIndex().isValid());
    EXPECT_TRUE(List().selectionModel()->selectedIndexes().isEmpty());
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(ListTest, TakesBackAChoiceThatTheHostRefuses) {
    Combo().SetSelect(0);
    Open();
    Combo().SetSensitivity(CATDlgDisable); // Qt has not heard of it yet
    ClickOnLine(2);
    EXPECT_EQ(Combo().GetSelect(), 0);
    EXPECT_EQ(List().currentIndex().row(), 0);
    EXPECT_NE(ShownReason().find("is disabled"), std::string::npos) << ShownReason();
}

TEST_F(ListTest, ReadsALongListInPlace) {
    Combo().ClearLine();
    for (int line = 0; line < 100000; ++line)
        Combo().SetLine("Line");
    Combo().SetLine("Needle");
    Open();
    QTest::keyClicks(&List(), QStringLiteral("needle"));
    EXPECT_EQ(Combo().GetSelect(), 100000);
}

} // namespace

} // namespace desktop_test
