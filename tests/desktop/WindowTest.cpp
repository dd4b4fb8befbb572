#include "CATDlgEditor.h"
#include "CATDlgPushButton.h"
#include "DesktopFixture.h"

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
        Settle();
    }
    void DragBorderTo(const QSize& iSize) {
        Window().windowHandle()->resize(iSize);
        Settle();
        Settle();
    }
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
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgWindMoveNotification"}));
    EXPECT_EQ(HostPlace(), (Rectangle{110, 120, 240, 420}));
}

TEST_F(WindowTest, APersonsNewSizeReachesTheProgram) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    DragBorderTo(QSize(500, 300));
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgWindSizeNotification"}));
    EXPECT_EQ(HostPlace(), (Rectangle{60, 50, 300, 500}));
}

TEST_F(WindowTest, WhatThisProgramDoesToTheWindowIsNoPersonsDoing) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    Window().resize(700, 500);
    Window().move(150, 160);
    Settle();
    Settle();
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_EQ(HostPlace(), (Rectangle{60, 50, 240, 420}));
}

TEST_F(WindowTest, ARefusedMoveIsTakenBack) {
    Dialog().SetRectDimensions(60, 50, 240, 420);
    Open();
    Dialog().SetSensitivity(CATDlgDisable);
    DragTo(QPoint(110, 120));
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_EQ(ShownPlace(), (Rectangle{60, 50, 240, 420}));
}

TEST_F(WindowTest, APlaceThatIsOnNoScreenIsLeftToTheWindowSystem) {
    Dialog().SetRectDimensions(90000, 90000, 240, 420);
    Open();
    EXPECT_LT(Window().x(), 10000);
    EXPECT_EQ(Window().height(), 240);
    EXPECT_EQ(HostPlace(), (Rectangle{90000, 90000, 240, 420})) << "nobody has moved it";
}

TEST_F(WindowTest, WithoutASizeItIsAsLargeAsItsContentNeeds) {
    new CATDlgEditor(&Dialog(), "NameEdt", CATDlgEdtMultiline);
    Open();
    EXPECT_GE(Window().width(), Window().sizeHint().width());
    EXPECT_EQ(Window().height(), Window().sizeHint().height());
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
