#include "CATCkeGlobalFunctions.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "CATICkeParamFrame.h"
#include "CATICkeParmFactory.h"
#include "CATIParmAsStored.h"
#include "DesktopFixture.h"
#include "host/EventScope.h"
#include "host/ValueFrame.h"
#include "support/ParameterWatcher.h"

#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyleOptionSpinBox>

namespace desktop_test {

namespace {

using support::Events;

const std::string stepped = "value of Depth";

// The editor of a depth of 12.5 mm in a dialog whose OK button answers Enter, and another field.
class NumberFieldTest : public DesktopTest {
  protected:
    NumberFieldTest() {
        Dialog().SetDefaultButton(CATDlgWndOK);
        Dialog().SetDefaultOrientation(Vertical);
        _other = new CATDlgEditor(&Dialog(), "OtherEdt");
        _depth = CATCkeGlobalFunctions::GetVolatileFactory()->CreateLength("Depth", 0.0125);
        _changes.Watch(_depth);
    }
    ~NumberFieldTest() override { _changes.Unwatch(_depth); }

    // Makes the editor of the depth in the dialog, and opens that.
    void OpenWith(int iOptions = CATCkeNoLabel | CATCkeWithSpinner) {
        _frame = CATICkeParamFrame_var(_depth)->BuildFrame(NULL_var, &Dialog(), iOptions, "DepthFrm");
        Open();
        Field().setFocus(); // the other field stands first
        Command().Forget();
    }
    double Depth() const { return CATIParmAsStored_var(_depth)->GetValue(); }
    void SetDepth(double iMetres) {
        EXPECT_GE(_depth->Valuate(iMetres), 0);
        static_cast<void>(_changes.Take());
        Settle();
    }

    QAbstractSpinBox& Field() { return *Shown(*_frame).findChild<QAbstractSpinBox*>(); }
    QLineEdit& Line() { return *Field().findChild<QLineEdit*>(); }
    std::string Text() { return Utf8(Line().text()); }
    // The line with the reason beside the field; null when none is seen.
    const QLabel* ReasonLine() {
        for (const QLabel* label : Shown(*_frame).findChildren<QLabel*>())
            if (label->isVisible() && label->buddy() == nullptr)
                return label;
        return nullptr;
    }
    std::string Reason() {
        const QLabel* const line = ReasonLine();
        return line == nullptr ? std::string() : Utf8(line->text());
    }
    bool LooksReadOnly() {
        const QPoint inside(Field().width() - 8, Field().height() / 2);
        return Field().grab().toImage().pixelColor(inside) == Field().palette().color(QPalette::Window);
    }
    void TypeIn(const char* iText) {
        Field().setFocus();
        Line().selectAll();
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
    void ClickArrow(QStyle::SubControl iArrow) {
        QStyleOptionSpinBox option;
        option.initFrom(&Field());
        option.frame = Field().hasFrame();
        option.buttonSymbols = Field().buttonSymbols();
        option.subControls = QStyle::SC_All;
        const QRect arrow = Field().style()->subControlRect(QStyle::CC_SpinBox, &option, iArrow, &Field());
        QTest::mouseClick(&Field(), Qt::LeftButton, Qt::NoModifier, arrow.center());
    }

    CATDlgEditor* _other;
    CATDlgFrame* _frame = nullptr;
    CATICkeParm_var _depth;
    support::ParameterWatcher _changes;
};

TEST_F(NumberFieldTest, ShowsTheValueWithItsUnit) {
    OpenWith();
    EXPECT_EQ(Text(), "12.5mm");
    EXPECT_EQ(Reason(), "");
}

TEST_F(NumberFieldTest, EnterPassesTheNumberOnAndOnlyThenPressesTheDefaultButton) {
    OpenWith();
    TypeIn("20");
    EXPECT_EQ(Depth(), 12.5) << "not while it is being typed";
    Press(Qt::Key_Return);
    EXPECT_EQ(Depth(), 20);
    EXPECT_EQ(Text(), "20mm");
    EXPECT_TRUE(Field().hasFocus());
    EXPECT_EQ(Command().TakeClasses(), Classes());
    Press(Qt::Key_Enter);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaOKNotification"}));
}

TEST_F(NumberFieldTest, EnterThatIsHeldDownPassesTheNumberOnAlone) {
    OpenWith();
    TypeIn("20");
    Press(Qt::Key_Return);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&Field(), &held);
    EXPECT_EQ(Depth(), 20);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(NumberFieldTest, EnterPressesNothingWhereTheDialogHasNoDefaultButton) {
    Dialog().SetDefaultButton(0);
    OpenWith();
    TypeIn("20");
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_EQ(Depth(), 20);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(NumberFieldTest, EnterPressesNothingWhileATextIsNotTaken) {
    OpenWith();
    TypeIn("deep");
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(), "deep");
    EXPECT_NE(Reason(), "");
    EXPECT_EQ(Command().TakeClasses(), Classes());
    Leave();
    QTest::keyClick(&Shown(*_other), Qt::Key_Return);
    EXPECT_TRUE(Field().hasFocus()) << "it leads to what has to be mended";
    Command().Forget();
    QTest::keyClicks(&Field(), QStringLiteral("8"));
    Press(Qt::Key_Return);
    EXPECT_EQ(Depth(), 8) << "which is selected and replaced by what is typed";
    Press(Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaOKNotification"}));
}

TEST_F(NumberFieldTest, ATextThatNobodyCanMendHoldsNothingUp) {
    OpenWith();
    TypeIn("deep");
    Press(Qt::Key_Return);
    _frame->SetVisibility(CATDlgHide);
    Settle();
    Leave();
    QTest::keyClick(&Shown(*_other), Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaOKNotification"}));
}

TEST_F(NumberFieldTest, LeavingTheFieldPassesTheNumberOn) {
    OpenWith();
    TypeIn("20");
    Press(Qt::Key_Tab);
    EXPECT_FALSE(Field().hasFocus());
    EXPECT_EQ(Depth(), 20);
    EXPECT_EQ(_changes.Take(), Events({stepped}));
}

TEST_F(NumberFieldTest, PressingAButtonPassesTheNumberOnFirst) {
    OpenWith();
    TypeIn("20");
    QTest::mouseClick(&StandardButton("OK"), Qt::LeftButton);
    EXPECT_EQ(Depth(), 20);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaOKNotification"}));
}

TEST_F(NumberFieldTest, TakesUnitsDecimalCommasAndComputations) {
    OpenWith();
    for (const auto& [text, value] : {std::pair("1,25 cm", 12.5), {"2*(3+4)", 14.0}, {"1/2 in", 12.7}}) {
        TypeIn(text);
        Press(Qt::Key_Return);
        EXPECT_EQ(Depth(), value) << text;
    }
    EXPECT_EQ(Text(), "12.7mm");
}

TEST_F(NumberFieldTest, ATextThatIsNoNumberStaysWithTheReasonBesideIt) {
    OpenWith();
    const int before = Shown(*_frame).height();
    TypeIn("deep");
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(), "deep");
    EXPECT_EQ(Depth(), 12.5) << "the last good value stays in force";
    EXPECT_EQ(_changes.Take(), Events());
    EXPECT_NE(Reason().find("'deep'"), std::string::npos) << Reason();
    EXPECT_NE(Utf8(Field().accessibleDescription()).find("'deep'"), std::string::npos);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Shown(*_frame).height() > before; })) << "nothing is cut off";
    Leave();
    EXPECT_EQ(Text(), "deep") << "it is still there to be mended";
    EXPECT_NE(Reason(), "");
}

TEST_F(NumberFieldTest, TheReasonGoesWithTheNextGoodNumber) {
    OpenWith();
    const int before = Shown(*_frame).height();
    TypeIn("deep");
    Press(Qt::Key_Return);
    TypeIn("8");
    Press(Qt::Key_Return);
    EXPECT_EQ(Depth(), 8);
    EXPECT_EQ(Reason(), "");
    EXPECT_EQ(Utf8(Field().accessibleDescription()), "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(*_frame).height() == before; }));
}

TEST_F(NumberFieldTest, ALongReasonWrapsAndIsSeenWhole) {
    OpenWith();
    TypeIn("a depth that somebody has described in far too many words for one line of a narrow window");
    Press(Qt::Key_Return);
    const QLabel* const shown = ReasonLine();
    ASSERT_NE(shown, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown->height() >= shown->heightForWidth(shown->width()); }));
    EXPECT_GT(shown->heightForWidth(shown->width()), shown->fontMetrics().height());
    EXPECT_TRUE(QTest::qWaitFor([&] { return PlaceOf(*_frame).bottom() < Window().height(); }));
}

TEST_F(NumberFieldTest, EscapeDropsWhatIsTypedAndOnlyThenIsForTheDialog) {
    OpenWith();
    TypeIn("20");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Text(), "12.5mm");
    EXPECT_EQ(Depth(), 12.5);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    Press(Qt::Key_Escape);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaCANCELNotification"}));
}

TEST_F(NumberFieldTest, EscapeRestoresTheValueInPlaceOfATextThatIsNoNumber) {
    OpenWith();
    TypeIn("deep");
    Press(Qt::Key_Return);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Text(), "12.5mm");
    EXPECT_EQ(Reason(), "");
    EXPECT_EQ(Command().TakeClasses(), Classes());
    TypeIn("deep");
    Press(Qt::Key_Return);
    TypeIn("deeper");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Text(), "12.5mm") << "both texts go at once";
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(NumberFieldTest, KeysWheelAndArrowsStepTheValue) {
    OpenWith();
    Field().setFocus();
    Press(Qt::Key_Up);
    EXPECT_EQ(Depth(), 13.5);
    EXPECT_EQ(Text(), "13.5mm");
    Press(Qt::Key_Down);
    EXPECT_EQ(Depth(), 12.5);
    Press(Qt::Key_PageUp);
    EXPECT_EQ(Depth(), 22.5);
    Press(Qt::Key_PageDown);
    Turn(2);
    EXPECT_EQ(Depth(), 14.5);
    ClickArrow(QStyle::SC_SpinBoxDown);
    EXPECT_EQ(Depth(), 13.5);
    EXPECT_EQ(_changes.Take().size(), 6U);
}

TEST_F(NumberFieldTest, TheWheelIsForWhatItScrollsUntilTheFieldIsInUse) {
    OpenWith();
    Leave();
    Turn(1);
    EXPECT_EQ(Depth(), 12.5);
    Field().setFocus();
    Turn(1);
    EXPECT_EQ(Depth(), 13.5);
}

TEST_F(NumberFieldTest, AStepGoesFromWhatIsTyped) {
    OpenWith();
    TypeIn("20");
    Press(Qt::Key_Up);
    EXPECT_EQ(Depth(), 21);
    TypeIn("deep");
    Press(Qt::Key_Up);
    EXPECT_EQ(Depth(), 21);
    EXPECT_EQ(Text(), "deep") << "which has to be mended first";
    EXPECT_NE(Reason(), "");
    Press(Qt::Key_Up);
    EXPECT_EQ(Text(), "22mm");
    EXPECT_EQ(Reason(), "");
}

TEST_F(NumberFieldTest, HasNoArrowsWhereNoneAreAskedFor) {
    OpenWith(CATCkeNoLabel);
    Field().setFocus();
    Press(Qt::Key_Up);
    Turn(1);
    EXPECT_EQ(Depth(), 12.5);
    EXPECT_EQ(Field().buttonSymbols(), QAbstractSpinBox::NoButtons);
    TypeIn("20");
    Press(Qt::Key_Return);
    EXPECT_EQ(Depth(), 20) << "it is typed in all the same";
}

TEST_F(NumberFieldTest, TheFirstFieldOfAWindowThatOpensCanBeTypedOver) {
    _other->SetVisibility(CATDlgHide);
    OpenWith();
    EXPECT_EQ(QApplication::focusWidget(), &Field());
    QTest::keyClicks(&Field(), QStringLiteral("20"));
    Press(Qt::Key_Return);
    EXPECT_EQ(Depth(), 20);
}

TEST_F(NumberFieldTest, AWindowThatComesBackKeepsThePlaceInANumberThatWasBeingEdited) {
    OpenWith();
    const auto comeBack = [this] {
        QFocusEvent in(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(&Field(), &in);
    };
    Line().setCursorPosition(2);
    comeBack();
    EXPECT_FALSE(Line().hasSelectedText());
    EXPECT_EQ(Line().cursorPosition(), 2);
    Line().setCursorPosition(0);
    comeBack();
    EXPECT_EQ(Line().selectedText(), Line().text()) << "one that was only looked at can be typed over";
}

TEST_F(NumberFieldTest, AGreyedNumberCanStillBeRead) {
    OpenWith();
    const QPalette usual = Line().palette();
    _frame->SetSensitivity(CATDlgDisable);
    Settle();
    const QPalette greyed = Line().palette();
    EXPECT_EQ(greyed.currentColorGroup(), QPalette::Disabled);
    const int contrast =
        greyed.color(QPalette::Window).lightness() - greyed.color(QPalette::Text).lightness();
    EXPECT_GT(contrast, 110);
    EXPECT_NE(greyed.color(QPalette::Text), usual.color(QPalette::Text)) << "and looks greyed";
    _frame->SetSensitivity(CATDlgEnable);
    Settle();
    EXPECT_EQ(Line().palette().color(QPalette::Text), usual.color(QPalette::Text));
}

TEST_F(NumberFieldTest, FocusingAndLeavingChangesNothingThatIsNotShown) {
    SetDepth(0.01 / 3);
    OpenWith();
    Field().setFocus();
    Press(Qt::Key_Return);
    Leave();
    EXPECT_EQ(Depth(), 10.0 / 3);
    EXPECT_EQ(_changes.Take(), Events());
    EXPECT_LT(Text().size(), 12U) << "it is shown rounded: " << Text();
}

TEST_F(NumberFieldTest, TypingTheTextThatIsShownKeepsTheDigitsThatAreNot) {
    SetDepth(0.01 / 3);
    OpenWith();
    const std::string shown = Text();
    TypeIn(shown.c_str());
    Press(Qt::Key_Return);
    EXPECT_EQ(Depth(), 10.0 / 3);
}

TEST_F(NumberFieldTest, AValueOfTheProgramIsShownAtOnce) {
    OpenWith();
    SetDepth(0.03);
    EXPECT_EQ(Text(), "30mm");
    TypeIn("deep");
    Press(Qt::Key_Return);
    SetDepth(0.04);
    EXPECT_EQ(Text(), "40mm");
    EXPECT_EQ(Reason(), "");
}

TEST_F(NumberFieldTest, AValueOfTheProgramLeavesWhatIsBeingTyped) {
    OpenWith();
    TypeIn("2");
    SetDepth(0.03);
    QTest::keyClicks(&Field(), QStringLiteral("5"));
    EXPECT_EQ(Text(), "25");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Text(), "30mm") << "the typing is dropped for the new value";
    TypeIn("2");
    SetDepth(0.04);
    Press(Qt::Key_Return);
    EXPECT_EQ(Depth(), 2) << "what the person passes on comes last";
}

TEST_F(NumberFieldTest, LooksReadOnlyAndTakesNothingWhereTheValueMayNotBeEdited) {
    _depth->SetUserAccessMode(1);
    OpenWith();
    TypeIn("20");
    Press(Qt::Key_Up);
    Leave();
    EXPECT_EQ(Depth(), 12.5);
    EXPECT_EQ(Text(), "12.5mm");
    EXPECT_TRUE(Line().isReadOnly());
    EXPECT_EQ(Field().buttonSymbols(), QAbstractSpinBox::NoButtons);
    EXPECT_TRUE(LooksReadOnly());
    _depth->SetUserAccessMode(3);
    Settle();
    EXPECT_FALSE(LooksReadOnly());
    TypeIn("20");
    Press(Qt::Key_Up);
    EXPECT_EQ(Depth(), 21);
    _depth->SetUserAccessMode(1);
    Settle();
    EXPECT_TRUE(LooksReadOnly());
}

TEST_F(NumberFieldTest, LooksReadOnlyFromTheStartOnAPageThatComesForwardLater) {
    auto* const tabs = new CATDlgTabContainer(&Dialog(), "Tabs");
    new CATDlgTabPage(tabs, "DrawingPge");
    auto* const page = new CATDlgTabPage(tabs, "ThreadPge");
    _depth->SetUserAccessMode(1);
    _frame = CATICkeParamFrame_var(_depth)->BuildFrame(NULL_var, page, CATCkeNoLabel, "DepthFrm");
    Settle(); // the field is there before any window is
    Open();
    tabs->SetSelectedPage(1);
    Settle();
    EXPECT_TRUE(LooksReadOnly());
}

TEST_F(NumberFieldTest, ItsReasonIsSeenWholeAtOnceAndGoesWithoutAGap) {
    OpenWith();
    const int before = Window().height();
    TypeIn("deep");
    Press(Qt::Key_Return);
    const QLabel* const reason = ReasonLine();
    ASSERT_NE(reason, nullptr);
    EXPECT_GE(reason->height(), reason->heightForWidth(reason->width()));
    EXPECT_GT(Window().height(), before) << "the window has made room";
    Press(Qt::Key_Escape);
    EXPECT_EQ(Window().height(), before);
}

TEST_F(NumberFieldTest, TypingEndsWhenTheValueMayNoLongerBeEdited) {
    OpenWith();
    TypeIn("20");
    _depth->SetUserAccessMode(1);
    Settle();
    EXPECT_EQ(Text(), "12.5mm");
    Leave();
    EXPECT_EQ(Depth(), 12.5);
}

TEST_F(NumberFieldTest, ReadOnlyItLeavesEnterToTheDefaultButton) {
    _depth->SetUserAccessMode(1);
    OpenWith();
    Field().setFocus();
    Press(Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaOKNotification"}));
}

TEST_F(NumberFieldTest, ShowsTheNameOfItsValueWhereItHasALabel) {
    OpenWith(CATCkeWithSpinner);
    const QLabel* const label = Shown(*_frame).findChild<QLabel*>();
    ASSERT_NE(label, nullptr);
    EXPECT_TRUE(label->isVisible());
    EXPECT_EQ(Utf8(QString(label->text()).remove(QLatin1Char('&'))), "Depth");
    EXPECT_EQ(label->buddy(), &Field());
    EXPECT_EQ(Utf8(Field().accessibleName()), "Depth");
    Shown(*_other).setFocus();
    const QChar letter = label->text().at(label->text().indexOf(QLatin1Char('&')) + 1);
    QTest::keyClick(&Window(), letter.toLatin1(), Qt::AltModifier);
    EXPECT_TRUE(Field().hasFocus());
}

TEST_F(NumberFieldTest, IsNamedAfterTheLabelBesideIt) {
    auto* const row = new CATDlgFrame(&Dialog(), "RowFrm", CATDlgFraNoFrame);
    auto* const label = new CATDlgLabel(row, "DepthLab");
    label->SetTitle("Depth of the hole");
    _frame = CATICkeParamFrame_var(_depth)->BuildFrame(NULL_var, row, CATCkeNoLabel, "DepthFrm");
    Open();
    EXPECT_EQ(Utf8(Field().accessibleName()), "Depth of the hole");
    const QRect line(Field().mapTo(&Window(), QPoint()), Field().size());
    EXPECT_NEAR(PlaceOf(*label).center().y(), line.center().y(), 1) << "both texts stand at one height";
}

TEST_F(NumberFieldTest, ShowsItsValueAgainWhenThePersonCannotUseIt) {
    OpenWith();
    TypeIn("20");
    _frame->SetSensitivity(CATDlgDisable); // Qt has not heard of it yet
    Press(Qt::Key_Return);
    EXPECT_EQ(Depth(), 12.5);
    EXPECT_EQ(Text(), "12.5mm");
    EXPECT_NE(ShownReason().find("is disabled"), std::string::npos) << ShownReason();
}

TEST_F(NumberFieldTest, MayBeReplacedInTheMiddleOfItsOwnChange) {
    OpenWith();
    const QPointer<QWidget> before(&Shown(*_frame));
    CATDlgFrame* replacing = nullptr;
    _changes.onEvent = [&] {
        _frame->RequestDelayedDestruction();
        replacing = CATICkeParamFrame_var(_depth)->BuildFrame(NULL_var, &Dialog(), CATCkeNoLabel, "DepthFrm");
    };
    TypeIn("20");
    Press(Qt::Key_Return);
    _changes.onEvent = nullptr;
    Settle();
    EXPECT_TRUE(before.isNull());
    ASSERT_NE(replacing, nullptr);
    _frame = replacing;
    EXPECT_EQ(Text(), "20mm");
}

} // namespace

} // namespace desktop_test
