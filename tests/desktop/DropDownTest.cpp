#include "CATDlgCombo.h"
#include "DesktopFixture.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

namespace desktop_test {

namespace {

class DropDownTest : public DesktopTest {
  protected:
    DropDownTest() : _combo(new CATDlgCombo(&Dialog(), "GroupCmb", CATDlgCmbDropDown)) {
        for (const char* line : {"Holes", "Threads", "Grooves"})
            _combo->SetLine(line);
    }

    CATDlgCombo& Combo() { return *_combo; }
    QComboBox& Box() { return ShownAs<QComboBox>(*_combo); }

    // Opens the list by a click and chooses by another, which the list tells from a double click.
    void ClickOnLine(int iLine) {
        const int interval = QApplication::doubleClickInterval();
        QApplication::setDoubleClickInterval(0);
        QTest::mouseClick(&Box(), Qt::LeftButton);
        ASSERT_TRUE(Box().view()->isVisible());
        Settle();
        const QPoint line = Box().view()->visualRect(Box().model()->index(iLine, 0)).center();
        Box().view()->setCurrentIndex(Box().model()->index(iLine, 0)); // as the pointer passes over it
        QTest::mouseClick(Box().view()->viewport(), Qt::LeftButton, Qt::NoModifier, line);
        Settle();
        QApplication::setDoubleClickInterval(interval);
        EXPECT_FALSE(Box().view()->isVisible());
    }

  private:
    CATDlgCombo* _combo;
};

TEST_F(DropDownTest, ShowsTheLinesOfTheHostWithoutSelectingOne) {
    Open();
    EXPECT_EQ(Box().count(), 3);
    EXPECT_EQ(Utf8(Box().itemText(1)), "Threads");
    EXPECT_EQ(Box().currentIndex(), -1);
}

TEST_F(DropDownTest, FollowsWhatTheProgramSelectsAndFills) {
    Open();
    Combo().SetSelect(1);
    Settle();
    EXPECT_EQ(Utf8(Box().currentText()), "Threads");
    Combo().ClearLine();
    Combo().SetLine("Keyways");
    Settle();
    EXPECT_EQ(Box().count(), 1);
    EXPECT_EQ(Box().currentIndex(), -1);
    EXPECT_EQ(Command().TakeClasses(), Classes()) << "the program changed the combo, not a person";
}

TEST_F(DropDownTest, OpensByMouseAndTellsThatItOpens) {
    Open();
    QTest::mouseClick(&Box(), Qt::LeftButton);
    EXPECT_TRUE(Box().view()->isVisible());
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgComboDropNotification"}));
    Box().hidePopup();
}

TEST_F(DropDownTest, ChoosesALineInTheOpenedList) {
    Open();
    ClickOnLine(2);
    EXPECT_EQ(Combo().GetSelect(), 2);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgComboDropNotification", "CATDlgComboSelectNotification"}));
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(DropDownTest, ChoosesInTheOpenedListWithTheKeyboard) {
    Combo().SetSelect(0);
    Open();
    QTest::keyClick(&Box(), Qt::Key_F4);
    ASSERT_TRUE(Box().view()->isVisible());
    QTest::keyClick(Box().view(), Qt::Key_Down);
    EXPECT_EQ(Combo().GetSelect(), 0) << "moving through the open list chooses nothing yet";
    QTest::keyClick(Box().view(), Qt::Key_Return);
    EXPECT_EQ(Combo().GetSelect(), 1);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgComboDropNotification", "CATDlgComboSelectNotification"}));
}

TEST_F(DropDownTest, EscapeClosesTheOpenedListAndChangesNothing) {
    Combo().SetSelect(0);
    Open();
    QTest::keyClick(&Box(), Qt::Key_F4);
    QTest::keyClick(Box().view(), Qt::Key_Down);
    QTest::keyClick(Box().view(), Qt::Key_Escape);
    EXPECT_FALSE(Box().view()->isVisible());
    EXPECT_EQ(Box().currentIndex(), 0);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgComboDropNotification"}));
}

TEST_F(DropDownTest, ChoosesTheSameLineAgainAndTellsAgain) {
    Combo().SetSelect(1);
    Open();
    ClickOnLine(1);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgComboDropNotification", "CATDlgComboSelectNotification"}));
}

TEST_F(DropDownTest, ChoosesWithTheArrowKeysWithoutOpening) {
    Combo().SetSelect(0);
    Open();
    QTest::keyClick(&Box(), Qt::Key_Down);
    EXPECT_EQ(Combo().GetSelect(), 1);
    QTest::keyClick(&Box(), Qt::Key_End);
    EXPECT_EQ(Combo().GetSelect(), 2);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgComboSelectNotification", "CATDlgComboSelectNotification"}));
}

TEST_F(DropDownTest, ChoosesByTypingTheBeginningOfALine) {
    Open();
    QTest::keyClicks(&Box(), QStringLiteral("Gr"));
    EXPECT_EQ(Combo().GetSelect(), 2);
    EXPECT_EQ(Utf8(Box().currentText()), "Grooves");
}

TEST_F(DropDownTest, LeavesTheWheelAloneUnlessItIsInUse) {
    Combo().SetSelect(0);
    Open();
    Box().clearFocus();
    const QPointF middle = Box().rect().center();
    QWheelEvent turn(middle, Box().mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&Box(), &turn);
    EXPECT_EQ(Combo().GetSelect(), 0);
    Box().setFocus();
    QCoreApplication::sendEvent(&Box(), &turn);
    EXPECT_EQ(Combo().GetSelect(), 1);
}

TEST_F(DropDownTest, ShowsLinesThatTheProgramFillsInAsTheListOpens) {
    Open();
    const Reaction fill("CATDlgComboDropNotification", [this] { Combo().SetLine("Keyways"); });
    QTest::mouseClick(&Box(), Qt::LeftButton);
    EXPECT_TRUE(Box().view()->isVisible());
    EXPECT_EQ(Box().view()->model()->rowCount(), 4);
    Box().hidePopup();
}

TEST_F(DropDownTest, MayBeFilledAnewWhileItsListIsOpen) {
    Combo().SetSelect(0);
    Open();
    QTest::mouseClick(&Box(), Qt::LeftButton);
    Combo().ClearLine();
    for (const char* line : {"Slots", "Keyways"})
        Combo().SetLine(line);
    Combo().SetSelect(0);
    Settle();
    ASSERT_TRUE(Box().view()->isVisible());
    EXPECT_EQ(Box().view()->model()->rowCount(), 2);
    QTest::keyClick(Box().view(), Qt::Key_Down);
    QTest::keyClick(Box().view(), Qt::Key_Return);
    EXPECT_EQ(Combo().GetSelect(), 1);
    EXPECT_EQ(Utf8(Box().currentText()), "Keyways");
}

TEST_F(DropDownTest, MayBeFilledAnewWithOthersWhenALineIsChosen) {
    auto* const types = new CATDlgCombo(&Dialog(), "TypeCmb", CATDlgCmbDropDown);
    Open();
    const Reaction select("CATDlgComboSelectNotification", [&] {
        Combo().ClearLine();
        for (const char* line : {"Grooves", "Holes"})
            Combo().SetLine(line);
        Combo().SetSelect(0);
        types->ClearLine();
        types->SetLine("Ring groove");
        types->SetSelect(0);
    });
    ClickOnLine(2);
    EXPECT_EQ(select.Count(), 1);
    EXPECT_EQ(Box().count(), 2);
    EXPECT_EQ(Utf8(Box().currentText()), "Grooves");
    EXPECT_EQ(Utf8(ShownAs<QComboBox>(*types).currentText()), "Ring groove");
}

TEST_F(DropDownTest, StaysClosedWhenTheProgramHidesItAsItOpens) {
    Open();
    const Reaction hide("CATDlgComboDropNotification", [this] { Combo().SetVisibility(CATDlgHide); });
    QTest::mouseClick(&Box(), Qt::LeftButton);
    EXPECT_FALSE(Box().view()->isVisible());
    EXPECT_EQ(hide.Count(), 1);
}

TEST_F(DropDownTest, IsAsWideAsTheCharactersAskedFor) {
    Combo().SetVisibleTextWidth(10);
    Open();
    const int narrow = Box().sizeHint().width();
    Combo().SetVisibleTextWidth(30);
    Settle();
    EXPECT_GE(Box().sizeHint().width() - narrow, 15 * Box().fontMetrics().averageCharWidth());
    Combo().SetVisibleTextHeight(2);
    Settle();
    EXPECT_EQ(Box().maxVisibleItems(), 2);
}

TEST_F(DropDownTest, TakesBackAChoiceThatTheHostRefuses) {
    Combo().SetSelect(0);
    Open();
    // The host's combo is disabled in the same event, and Qt has not heard of it yet.
    Combo().SetSensitivity(CATDlgDisable);
    QTest::keyClick(&Box(), Qt::Key_Down);
    EXPECT_EQ(Combo().GetSelect(), 0);
    EXPECT_EQ(Box().currentIndex(), 0);
    EXPECT_NE(ShownReason().find("is disabled"), std::string::npos) << ShownReason();
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

} // namespace

} // namespace desktop_test
