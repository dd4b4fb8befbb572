#include "CATDlgEditor.h"
#include "CATDlgPushButton.h"
#include "DesktopFixture.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtTest/QTest>

namespace desktop_test {

namespace {

struct Rectangle {
    int x = 0;
    int y = 0;
    int height = 0;
    int width = 0;

    bool operator==(const Rectangle&) const = default;
};

void PrintTo(const Rectangle& iRectangle, std::ostream* ioStream) {
    *ioStream << iRectangle.x << ", " << iRectangle.y << ", height " << iRectangle.height << ", width "
              << iRectangle.width;
}

class WindowTest : public DesktopTest {
  protected:
    Rectangle HostPlace() {
        Rectangle place;
        Dialog().GetRectDimensions(&place.x, &place.y, &place.height, &place.width);
        return place;
    }
    Rectangle ShownPlace() const {
        return Rectangle{Window().x(), Window().y(), Window().height(), Window().width()};
    }
    // What the window system reports when a person drags the window, or its border.
    void DragTo(const QPoint& iPlace) {
        Window().windowHandle()->setFramePosition(iPlace);
        Settle();
    }
    void DragBorderTo(const QSize& iSize) {
        Window().windowHandle()->resize(iSize);
        Settle();
    }
    bool WaitForHostPlace(const Rectangle& iPlace) {
        return QTest::qWaitFor([this, &iPlace] { return HostPlace() == iPlace; });
    }
    bool WaitForShownPlace(const Rectangle& iPlace) {
        return QTest::qWaitFor([this, &iPlace] { return ShownPlace() == iPlace; });
    }
    // Anything that a person does tells the program first where the window was dragged.
    void DoSomethingElse() {
        Window().close();
        Settle();
    }
    // Where windows may be.
    static QRect Screen() { return QGuiApplication::primaryScreen()->availableGeometry(); }
    QRect ShownFrame() const { return Window().frameGeometry(); }
};

TEST_F(WindowTest, TakesThePlaceThatTheProgramGivesWithoutTelling) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    EXPECT_EQ(ShownPlace(), (Rectangle{60, 50, 240, 420}));
    Dialog().SetRectDimensions(80, 90, 300, 440);
    Settle();
    EXPECT_EQ(ShownPlace(), (Rectangle{80, 90, 300, 440}));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(WindowTest, APersonsMoveReachesTheProgram) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    DragTo(QPoint(110, 120));
    EXPECT_TRUE(WaitForHostPlace({110, 120, 240, 420}));
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgWindMoveNotification"}));
}

TEST_F(WindowTest, TheStepsOfOneDragAreOneMove) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    for (int step = 1; step <= 5; ++step)
        DragTo(QPoint(60 + 10 * step, 50));
    EXPECT_TRUE(WaitForHostPlace({110, 50, 240, 420}));
    DoSomethingElse();
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgWindMoveNotification", "CATDlgWindCloseNotification"}));
}

TEST_F(WindowTest, TheProgramHearsOfAMoveBeforeItHearsOfWhatIsDoneNext) {
    auto* const button = new CATDlgPushButton(&Dialog(), "MorePbt");
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    Rectangle atPress;
    const Reaction press("CATDlgPushBActivateNotification", [&] { atPress = HostPlace(); });
    DragTo(QPoint(110, 120));
    QTest::mouseClick(&Shown(*button), Qt::LeftButton);
    EXPECT_EQ(press.Count(), 1);
    EXPECT_EQ(atPress, (Rectangle{110, 120, 240, 420}));
}

TEST_F(WindowTest, APlaceThatAMoveHasGivenIsReachedAgainEachTimeItIsOpened) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    DragTo(QPoint(110, 120));
    ASSERT_TRUE(WaitForHostPlace({110, 120, 240, 420}));
    for (int opening = 0; opening < 3; ++opening) {
        CATDlgDialog again(MainWindow(), "AgainDlg", CATDlgWndOK);
        const Rectangle place = HostPlace();
        again.SetRectDimensions(place.x, place.y, place.height, place.width);
        again.SetVisibility(CATDlgShow);
        Settle();
        const QWidget& window = Shown(again);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(Windows().WindowOf(again)));
        EXPECT_EQ(window.pos(), QPoint(110, 120)) << "without a step to any side";
    }
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgWindMoveNotification"}));
}

TEST_F(WindowTest, APersonsNewSizeReachesTheProgram) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    DragBorderTo(QSize(500, 300));
    EXPECT_TRUE(WaitForHostPlace({60, 50, 300, 500}));
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgWindSizeNotification"}));
}

TEST_F(WindowTest, ANewSizeByHandLeavesAWindowWithoutGivenPlaceWhereItIs) {
    Open();
    const QPoint place = Window().pos();
    DragBorderTo(QSize(500, 300));
    EXPECT_TRUE(WaitForHostPlace({0, 0, 300, 500}));
    Dialog().SetTitle("Another title"); // the window is fitted to its content anew
    Settle();
    EXPECT_EQ(ShownPlace(), (Rectangle{place.x(), place.y(), 300, 500}));
}

TEST_F(WindowTest, WhatThisProgramDoesToTheWindowIsNoPersonsDoing) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    Window().resize(700, 500);
    Window().move(150, 160);
    Settle();
    DoSomethingElse();
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgWindCloseNotification"}));
    EXPECT_EQ(HostPlace(), (Rectangle{60, 50, 240, 420}));
}

TEST_F(WindowTest, ARefusedMoveIsTakenBack) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    Dialog().SetSensitivity(CATDlgDisable);
    DragTo(QPoint(110, 120));
    EXPECT_TRUE(WaitForShownPlace({60, 50, 240, 420}));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(WindowTest, APlaceThatIsOnNoScreenOrPartlyOffIsBroughtIntoSightWithoutTelling) {
    const int right = Screen().x() + Screen().width();
    const int bottom = Screen().y() + Screen().height();
    for (const QPoint& stored : {QPoint(90000, 90000), QPoint(-90000, -90000), QPoint(right - 50, 30),
                                 QPoint(-30, -20), QPoint(100, bottom - 50)}) {
        CATDlgDialog dialog(MainWindow(), "StoredDlg", CATDlgWndOK);
        dialog.SetRectDimensions(stored.x(), stored.y(), 240, 420);
        dialog.SetVisibility(CATDlgShow);
        Settle();
        const QWidget& window = Shown(dialog);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(Windows().WindowOf(dialog)));
        EXPECT_EQ(window.size(), QSize(420, 240));
        EXPECT_TRUE(Screen().contains(window.geometry())) << stored.x() << ", " << stored.y();
        int x = 0;
        int y = 0;
        dialog.GetRectDimensions(&x, &y, nullptr, nullptr);
        EXPECT_EQ(QPoint(x, y), stored) << "nobody has moved it";
    }
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(WindowTest, AWindowThatIsPartlyOffComesToTheNearestPlace) {
    const int right = Screen().x() + Screen().width();
    Dialog().SetRectDimensions(right - 50, 100, 240, 420);
    Open();
    EXPECT_EQ(ShownPlace().y, 100);
    EXPECT_NEAR(ShownFrame().right(), right - 1, 10);
    Dialog().SetRectDimensions(right - 20, 90, 240, 420);
    Settle();
    EXPECT_EQ(ShownPlace().y, 90);
    EXPECT_EQ(ShownFrame().right(), right - 1) << "an open window that is placed comes into sight too";
}

TEST_F(WindowTest, APersonMayDragItPartlyOffTheScreen) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    DragTo(QPoint(-100, 50));
    EXPECT_TRUE(WaitForHostPlace({-100, 50, 240, 420}));
    Dialog().SetTitle("Another title");
    Settle();
    EXPECT_EQ(ShownPlace(), (Rectangle{-100, 50, 240, 420}));
    Dialog().SetRectDimensions(-100, 50, 300, 420);
    Settle();
    EXPECT_EQ(ShownPlace(), (Rectangle{0, 50, 300, 420})) << "the program has placed it anew";
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgWindMoveNotification"}));
}

TEST_F(WindowTest, GrowsUpwardsWhereThereIsNoRoomBelow) {
    Dialog().SetRectDimensions(60, 400, 300, 420);
    Open();
    EXPECT_EQ(ShownPlace(), (Rectangle{60, 400, 300, 420}));
    Dialog().SetRectDimensions(60, 400, 640, 420);
    Settle();
    EXPECT_EQ(ShownFrame().bottom(), Screen().bottom());
    EXPECT_EQ(Window().height(), 640);
}

TEST_F(WindowTest, OpensInTheUpperLeftCornerWhereTheProgramPlacesItThere) {
    Dialog().SetRectDimensions(0, 0, 240, 420);
    Open();
    EXPECT_EQ(ShownPlace(), (Rectangle{0, 0, 240, 420}));
}

// Folding hides the lower part and asks for less height, unfolding is the way back.
TEST_F(WindowTest, ShrinksAndGrowsWithTheHeightThatTheProgramGivesAndCutsNothingOff) {
    Dialog().SetDefaultOrientation(Vertical);
    auto* const upper = new CATDlgEditor(&Dialog(), "UpperEdt", CATDlgEdtMultiline);
    auto* const lower = new CATDlgEditor(&Dialog(), "LowerEdt", CATDlgEdtMultiline);
    upper->SetVisibleTextHeight(8);
    lower->SetVisibleTextHeight(20);
    Dialog().SetRectDimensions(60, 50, 640, 670);
    Open();
    EXPECT_EQ(ShownPlace(), (Rectangle{60, 50, 640, 670}));
    lower->SetVisibility(CATDlgHide);
    Dialog().SetRectDimensions(60, 50, 340, 670);
    Settle();
    EXPECT_EQ(ShownPlace(), (Rectangle{60, 50, 340, 670}));
    lower->SetVisibility(CATDlgShow);
    Settle();
    EXPECT_GT(Window().height(), 340) << "340 is too little for both";
    EXPECT_EQ(Window().height(), Window().minimumSizeHint().height());
    EXPECT_EQ(Shown(*lower).height(), Shown(*lower).sizeHint().height());
    Dialog().SetRectDimensions(60, 50, 640, 670);
    Settle();
    EXPECT_EQ(ShownPlace(), (Rectangle{60, 50, 640, 670}));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(WindowTest, WithoutASizeItIsAsLargeAsItsContentNeeds) {
    new CATDlgEditor(&Dialog(), "NameEdt", CATDlgEdtMultiline);
    Open();
    EXPECT_GE(Window().width(), Window().sizeHint().width());
    EXPECT_EQ(Window().height(), Window().sizeHint().height());
}

TEST_F(WindowTest, WithoutASizeItGrowsAndShrinksWithItsContent) {
    Dialog().SetDefaultOrientation(Vertical);
    auto* const lower = new CATDlgEditor(&Dialog(), "LowerEdt", CATDlgEdtMultiline);
    lower->SetVisibleTextHeight(12);
    lower->SetVisibility(CATDlgHide);
    new CATDlgEditor(&Dialog(), "UpperEdt");
    Open();
    const QSize small = Window().size();
    lower->SetVisibility(CATDlgShow);
    Settle();
    EXPECT_GE(Shown(*lower).height(), Shown(*lower).sizeHint().height());
    EXPECT_GT(Window().height(), small.height());
    lower->SetVisibility(CATDlgHide);
    Settle();
    EXPECT_EQ(Window().size(), small);
    DragBorderTo(small + QSize(50, 40));
    ASSERT_TRUE(QTest::qWaitFor([&] { return HostPlace().height == small.height() + 40; }));
    lower->SetVisibility(CATDlgShow);
    Settle();
    EXPECT_GE(Shown(*lower).height(), Shown(*lower).sizeHint().height()) << "that size is too little";
    lower->SetVisibility(CATDlgHide);
    Settle();
    EXPECT_EQ(Window().size(), small + QSize(50, 40)) << "it is back at the person's size";
}

TEST_F(WindowTest, TheKeyboardBeginsAtTheFirstFieldThatCanBeUsedEachTimeItOpens) {
    auto* const last = new CATDlgEditor(&Dialog(), "LastEdt");
    auto* const first = new CATDlgEditor(&Dialog(), "FirstEdt");
    auto* const disabled = new CATDlgEditor(&Dialog(), "DisabledEdt");
    auto* const hidden = new CATDlgEditor(&Dialog(), "HiddenEdt");
    disabled->SetSensitivity(CATDlgDisable);
    hidden->SetVisibility(CATDlgHide);
    int row = 0;
    for (CATDlgEditor* editor : {hidden, disabled, first, last}) {
        Dialog().SetHorizontalAttachment(row++, CATDlgTopOrLeft, editor, nullptr);
        Dialog().SetVerticalAttachment(0, CATDlgTopOrLeft, editor, nullptr);
    }
    Open();
    EXPECT_TRUE(Shown(*first).hasFocus());
    Shown(*last).setFocus();
    Dialog().SetVisibility(CATDlgHide);
    Settle();
    Open();
    EXPECT_EQ(Window().focusWidget(), &Shown(*first));
}

TEST_F(WindowTest, ItsCloseBoxTellsTheProgramAndTheWindowStays) {
    Open();
    EXPECT_FALSE(Window().close());
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgWindCloseNotification"}));
    const Reaction hide("CATDlgWindCloseNotification", [this] { Dialog().SetVisibility(CATDlgHide); });
    Window().close();
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(WindowTest, AModalWindowBlocksTheOthersUntilItIsGone) {
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    auto* const modal = new CATDlgDialog(MainWindow(), "ModalDlg", CATDlgWndModal | CATDlgWndOK);
    Open();
    modal->SetVisibility(CATDlgShow);
    Settle();
    EXPECT_TRUE(Shown(*modal).isModal());
    QTest::mouseClick(&Shown(*button), Qt::LeftButton);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_NE(ShownReason().find("blocked by the modal window"), std::string::npos) << ShownReason();
    modal->SetVisibility(CATDlgHide);
    Settle();
    QTest::mouseClick(&Shown(*button), Qt::LeftButton);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgPushBActivateNotification"}));
}

TEST_F(WindowTest, ADialogOfADialogIsHiddenWithIt) {
    auto* const child = new CATDlgDialog(&Dialog(), "ProgressDlg", CATDlgWndNoButton);
    child->SetVisibility(CATDlgShow);
    Open();
    EXPECT_TRUE(Shown(*child).isVisible());
    EXPECT_EQ(Shown(*child).parentWidget(), &Window());
    Dialog().SetVisibility(CATDlgHide);
    Settle();
    EXPECT_FALSE(Shown(*child).isVisible());
    Dialog().SetVisibility(CATDlgShow);
    Settle();
    EXPECT_TRUE(Shown(*child).isVisible());
}

} // namespace

} // namespace desktop_test
