#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "CATDlgSpinner.h"
#include "DesktopFixture.h"

#include <QtCore/QPointer>
#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace desktop_test {

namespace {

const Classes modified = {"CATDlgSpinnerModifyNotification"};

// A spinner from 0 to 100 with the value 50, in a dialog whose OK button answers Enter.
class SpinnerTest : public DesktopTest {
  protected:
    SpinnerTest() {
        Dialog().SetDefaultButton(CATDlgWndOK);
        Dialog().SetDefaultOrientation(Vertical);
        _other = new CATDlgPushButton(&Dialog(), "OtherPbt");
    }

    CATDlgSpinner& Make(CATDlgStyle iStyle = CATDlgSpnEntry | CATDlgSpnDouble) {
        _spinner = new CATDlgSpinner(&Dialog(), "LengthSpn", iStyle);
        _spinner->SetMinMaxStep(0.0, 100.0, 1.0, 1);
        _spinner->SetPrecision(0, 0);
        _spinner->SetValue(50);
        return *_spinner;
    }
    QAbstractSpinBox& Field() { return ShownAs<QAbstractSpinBox>(*_spinner); }
    std::string Text() { return Utf8(Field().text()); }
    void TypeIn(const char* iText) {
        Field().setFocus();
        Field().selectAll();
        QTest::keyClicks(&Field(), QString::fromUtf8(iText));
    }
    void Press(Qt::Key iKey) { QTest::keyClick(&Field(), iKey); }
    void Leave() { Shown(*_other).setFocus(); }
    void Turn(int iNotches) {
        const QPoint middle = Field().rect().center();
        QWheelEvent turn(middle, Field().mapToGlobal(middle), QPoint(), QPoint(0, 120 * iNotches),
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Field(), &turn);
    }

    CATDlgPushButton* _other;
    CATDlgSpinner* _spinner = nullptr;
};

TEST_F(SpinnerTest, ShowsItsValueWithTheDigitsOfItsPrecision) {
    CATDlgSpinner& spinner = Make();
    Open();
    EXPECT_EQ(Text(), "50");
    spinner.SetPrecision(2, 0);
    Settle();
    EXPECT_EQ(Text(), "50.00");
    spinner.SetPrecision(-1, 0);
    spinner.SetValue(0.125);
    Settle();
    EXPECT_EQ(Text(), "0.125");
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(SpinnerTest, KeysAndWheelStepItWhenItIsInUse) {
    CATDlgSpinner& spinner = Make();
    Open();
    Leave();
    Turn(1);
    EXPECT_EQ(spinner.GetValue(), 50);
    Command().Forget();
    Field().setFocus();
    Press(Qt::Key_Up);
    EXPECT_EQ(Text(), "51");
    Press(Qt::Key_PageUp);
    EXPECT_EQ(spinner.GetValue(), 61);
    Turn(-1);
    EXPECT_EQ(spinner.GetValue(), 60);
    EXPECT_EQ(Command().TakeClasses(), Classes({modified[0], modified[0], modified[0]}));
}

TEST_F(SpinnerTest, StopsAtTheEndsOfItsRange) {
    CATDlgSpinner& spinner = Make();
    spinner.SetValue(95);
    Open();
    Field().setFocus();
    Press(Qt::Key_PageUp);
    EXPECT_EQ(spinner.GetValue(), 100);
    EXPECT_EQ(Command().TakeClasses(), modified);
    Press(Qt::Key_Up);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    spinner.SetMinMaxStep(0.0, 200.0, 1.0, 1);
    Settle();
    Press(Qt::Key_Up);
    EXPECT_EQ(spinner.GetValue(), 101) << "the range has grown";
}

TEST_F(SpinnerTest, StepsByTheStepOfItsRange) {
    CATDlgSpinner& spinner = Make();
    spinner.SetMinMaxStep(0.0, 100.0, 0.5, 1);
    spinner.SetPrecision(1, 0);
    Open();
    Field().setFocus();
    Press(Qt::Key_Down);
    EXPECT_EQ(Text(), "49.5");
}

TEST_F(SpinnerTest, ATypedNumberIsTakenByEnterWhichOnlyThenPressesTheDefaultButton) {
    CATDlgSpinner& spinner = Make();
    Open();
    TypeIn("75");
    EXPECT_EQ(spinner.GetValue(), 50);
    Press(Qt::Key_Return);
    EXPECT_EQ(spinner.GetValue(), 75);
    EXPECT_EQ(Command().TakeClasses(), modified);
    Press(Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaOKNotification"}));
}

TEST_F(SpinnerTest, ATypedNumberIsTakenWhenTheFieldIsLeft) {
    CATDlgSpinner& spinner = Make();
    Open();
    TypeIn("75");
    Leave();
    EXPECT_EQ(spinner.GetValue(), 75);
    EXPECT_EQ(Command().TakeClasses(), modified);
}

TEST_F(SpinnerTest, ARefusedNumberGivesWayToTheOneBefore) {
    CATDlgSpinner& spinner = Make();
    Open();
    TypeIn("101");
    Press(Qt::Key_Return);
    EXPECT_EQ(spinner.GetValue(), 50);
    EXPECT_EQ(Text(), "50");
    EXPECT_NE(ShownReason().find("out of its range"), std::string::npos) << ShownReason();
    TypeIn("100");
    Press(Qt::Key_Return);
    EXPECT_EQ(spinner.GetValue(), 100);
}

TEST_F(SpinnerTest, TakesNoCharactersThatCannotBelongToItsNumber) {
    CATDlgSpinner& spinner = Make();
    Open();
    TypeIn("2x.5");
    EXPECT_EQ(Text(), "25");
    Press(Qt::Key_Escape);
    spinner.SetPrecision(1, 0);
    Settle();
    TypeIn("2.57");
    EXPECT_EQ(Text(), "2.5");
}

TEST_F(SpinnerTest, EscapeDropsWhatIsTypedAndOnlyThenIsForTheDialog) {
    CATDlgSpinner& spinner = Make();
    Open();
    TypeIn("75");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Text(), "50");
    EXPECT_EQ(spinner.GetValue(), 50);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    Press(Qt::Key_Escape);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaCANCELNotification"}));
}

TEST_F(SpinnerTest, AStepGoesFromWhatIsTyped) {
    CATDlgSpinner& spinner = Make();
    Open();
    TypeIn("75");
    Press(Qt::Key_Down);
    EXPECT_EQ(spinner.GetValue(), 74);
    EXPECT_EQ(Command().TakeClasses(), Classes({modified[0], modified[0]}));
}

TEST_F(SpinnerTest, IsOnlySteppedWhereItsStyleHasNoEntry) {
    CATDlgSpinner& spinner = Make(CATDlgSpnDouble);
    Open();
    TypeIn("75");
    Leave();
    EXPECT_EQ(spinner.GetValue(), 50);
    EXPECT_EQ(Text(), "50");
    Field().setFocus();
    Press(Qt::Key_Up);
    EXPECT_EQ(spinner.GetValue(), 51);
    Press(Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(), Classes({modified[0], "CATDlgDiaOKNotification"}))
        << "nothing is typed that Enter could be for";
}

TEST_F(SpinnerTest, FollowsTheProgramWithoutTelling) {
    CATDlgSpinner& spinner = Make();
    Open();
    spinner.SetValue(7);
    Settle();
    EXPECT_EQ(Text(), "7");
    spinner.SetMinMaxStep(10.0, 20.0, 1.0, 1);
    Settle();
    EXPECT_EQ(Text(), "10");
    spinner.SetSensitivity(CATDlgDisable);
    Settle();
    EXPECT_FALSE(Field().isEnabled());
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(SpinnerTest, HasRoomForTheLongestNumberOfItsRange) {
    Make().SetMinMaxStep(0.0, 9999.0, 1.0, 1);
    Open();
    const auto& line = *Field().findChild<QLineEdit*>();
    EXPECT_GE(line.width(), line.fontMetrics().horizontalAdvance(QStringLiteral("9999")));
}

TEST_F(SpinnerTest, IsNamedAfterTheLabelBesideItAndStandsAtItsHeight) {
    auto* const row = new CATDlgFrame(&Dialog(), "RowFrm", CATDlgFraNoFrame);
    auto* const label = new CATDlgLabel(row, "LengthLab");
    label->SetTitle("Length");
    _spinner = new CATDlgSpinner(row, "LengthSpn");
    Open();
    EXPECT_EQ(Utf8(Field().accessibleName()), "Length");
    EXPECT_EQ(ShownAs<QLabel>(*label).buddy(), &Field());
    EXPECT_NEAR(PlaceOf(*label).center().y(), PlaceOf(*_spinner).center().y(), 1);
}

TEST_F(SpinnerTest, MayDestroyItselfWhenItIsStepped) {
    CATDlgSpinner& spinner = Make();
    Open();
    const QPointer<QWidget> field(&Field());
    const Reaction destroy(modified[0], [&spinner] { delete &spinner; });
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Up);
    EXPECT_EQ(destroy.Count(), 1);
    Settle();
    EXPECT_TRUE(field.isNull());
}

} // namespace

} // namespace desktop_test
