#include "CATDlgEditor.h"
#include "CATDlgPushButton.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "DesktopFixture.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

namespace desktop_test {

namespace {

const Classes selected = {"CATDlgTabSelectNotification"};

// Three pages with an editor on each.
class TabTest : public DesktopTest {
  protected:
    TabTest() {
        Dialog().SetDefaultButton(0);
        _tabs = new CATDlgTabContainer(&Dialog(), "TabContainer");
        Dialog().Attach4Sides(_tabs);
        int number = 0;
        for (const char* title : {"Drawing", "Parameter sets", "Thread"}) {
            const std::string name = "Page" + std::to_string(number);
            _pages[number] = new CATDlgTabPage(_tabs, name.c_str());
            _pages[number]->SetTitle(title);
            _editors[number] = new CATDlgEditor(_pages[number], "NameEdt");
            ++number;
        }
    }

    QTabWidget& Box() { return ShownAs<QTabWidget>(*_tabs); }
    QTabBar& Bar() { return *Box().tabBar(); }
    std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (int tab = 0; tab < Box().count(); ++tab)
            titles.push_back(Utf8(Box().tabText(tab).remove(QLatin1Char('&'))));
        return titles;
    }
    void Click(int iTab) {
        QTest::mouseClick(&Bar(), Qt::LeftButton, Qt::NoModifier, Bar().tabRect(iTab).center());
    }
    bool IsSeen(int iPage) { return Shown(*_editors[iPage]).isVisible(); }

    CATDlgTabContainer* _tabs;
    CATDlgTabPage* _pages[3];
    CATDlgEditor* _editors[3];
};

TEST_F(TabTest, ShowsTheTabsInOrderOfCreationAndTheFirstPage) {
    Open();
    EXPECT_EQ(Titles(), std::vector<std::string>({"Drawing", "Parameter sets", "Thread"}));
    EXPECT_TRUE(IsSeen(0));
    EXPECT_FALSE(IsSeen(1));
    EXPECT_EQ(_tabs->GetSelectedPage(), 0);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TabTest, AClickBringsAPageForwardAndTellsTheProgram) {
    Open();
    Click(2);
    EXPECT_EQ(_tabs->GetSelectedPage(), 2);
    EXPECT_TRUE(IsSeen(2));
    EXPECT_FALSE(IsSeen(0));
    EXPECT_EQ(Command().TakeClasses(), selected);
    Click(2);
    EXPECT_EQ(Command().TakeClasses(), Classes()) << "it is in front already";
}

TEST_F(TabTest, KeysBringPagesForward) {
    Open();
    Bar().setFocus();
    QTest::keyClick(&Bar(), Qt::Key_Right);
    EXPECT_EQ(_tabs->GetSelectedPage(), 1);
    QTest::keyClick(&Bar(), Qt::Key_Left);
    EXPECT_EQ(_tabs->GetSelectedPage(), 0);
    EXPECT_EQ(Command().TakeClasses(), Classes({selected[0], selected[0]}));
    Shown(*_editors[0]).setFocus();
    QTest::keyClick(&Shown(*_editors[0]), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(_tabs->GetSelectedPage(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(_tabs->GetSelectedPage(), 0);
    const std::string left = "CATDlgEditFocusOutNotification";
    EXPECT_EQ(Command().TakeClasses(), Classes({left, selected[0], left, selected[0]}));
}

TEST_F(TabTest, AltAndALetterOfItsTitleBringAPageForward) {
    Open();
    EXPECT_EQ(Utf8(Box().tabText(2)), "&Thread");
    QTest::keyClick(&Window(), Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(_tabs->GetSelectedPage(), 2);
    EXPECT_EQ(Command().TakeClasses(), selected);
}

TEST_F(TabTest, PagesShareTheLettersThatAreLeftAroundThem) {
    auto* const outside = new CATDlgPushButton(&Dialog(), "LessPbt");
    outside->SetTitle("Less");
    auto* const first = new CATDlgPushButton(_pages[0], "FirstPbt");
    auto* const second = new CATDlgPushButton(_pages[1], "SecondPbt");
    first->SetTitle("Length");
    second->SetTitle("Length");
    Open();
    EXPECT_EQ(Utf8(ShownAs<QPushButton>(*outside).text()), "&Less");
    EXPECT_EQ(Utf8(ShownAs<QPushButton>(*first).text()), "L&ength");
    EXPECT_EQ(Utf8(ShownAs<QPushButton>(*second).text()), "L&ength");
    Click(1);
    Command().Forget();
    QTest::keyClick(&Window(), Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Command().Heard().empty(); }));
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgPushBActivateNotification"}));
}

TEST_F(TabTest, TheTabsAreVisitedAmongTheFieldsAndOnlyThePageInFrontIs) {
    auto* const behind = new CATDlgPushButton(&Dialog(), "LastPbt");
    Open();
    Bar().setFocus();
    QTest::keyClick(&Bar(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*_editors[0]));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*behind));
}

TEST_F(TabTest, FollowsThePageThatTheProgramBringsForwardWithoutTelling) {
    Open();
    _tabs->SetSelectedPage(1);
    Settle();
    EXPECT_EQ(Box().currentIndex(), 1);
    EXPECT_TRUE(IsSeen(1));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TabTest, FollowsATitleThatTheProgramChanges) {
    Open();
    _pages[0]->SetTitle("Fits & drawing");
    Settle();
    EXPECT_EQ(Utf8(Box().tabText(0)), "&Fits && drawing");
}

TEST_F(TabTest, AHiddenPageHasNoTab) {
    Open();
    _pages[0]->SetVisibility(CATDlgHide);
    Settle();
    EXPECT_EQ(Titles(), std::vector<std::string>({"Parameter sets", "Thread"}));
    EXPECT_TRUE(IsSeen(1)) << "the first that is shown is in front";
    EXPECT_EQ(Command().TakeClasses(), Classes());
    Click(1);
    EXPECT_EQ(_tabs->GetSelectedPage(), 2);
    Command().Forget();
    _pages[0]->SetVisibility(CATDlgShow);
    Settle();
    EXPECT_EQ(Titles(), std::vector<std::string>({"Drawing", "Parameter sets", "Thread"}));
    EXPECT_EQ(Box().currentIndex(), 2) << "the page in front stays there";
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(TabTest, WithEveryPageHiddenThereIsNoTab) {
    Open();
    for (CATDlgTabPage* page : _pages)
        page->SetVisibility(CATDlgHide);
    Settle();
    EXPECT_EQ(Box().count(), 0);
    _pages[1]->SetVisibility(CATDlgShow);
    Settle();
    EXPECT_TRUE(IsSeen(1));
}

TEST_F(TabTest, ADisabledPageIsGreyedAndCanStillBeBroughtForward) {
    Open();
    const QImage before = Bar().grab(Bar().tabRect(2)).toImage();
    _pages[2]->SetSensitivity(CATDlgDisable);
    Settle();
    EXPECT_NE(Bar().grab(Bar().tabRect(2)).toImage(), before) << "the tab looks disabled";
    Click(2);
    EXPECT_EQ(_tabs->GetSelectedPage(), 2);
    EXPECT_TRUE(IsSeen(2));
    EXPECT_FALSE(Shown(*_editors[2]).isEnabled());
    EXPECT_EQ(Command().TakeClasses(), selected);
    _pages[2]->SetSensitivity(CATDlgEnable);
    Settle();
    EXPECT_TRUE(Shown(*_editors[2]).isEnabled());
    Click(0);
    EXPECT_EQ(Bar().grab(Bar().tabRect(2)).toImage(), before);
}

TEST_F(TabTest, APageOutOfReachStaysBehind) {
    Open();
    Bar().setFocus();
    _tabs->SetSensitivity(CATDlgDisable); // Qt has not heard of it yet
    QTest::keyClick(&Bar(), Qt::Key_Right);
    EXPECT_EQ(_tabs->GetSelectedPage(), 0);
    EXPECT_EQ(Box().currentIndex(), 0);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_NE(ShownReason().find("is disabled"), std::string::npos) << ShownReason();
}

TEST_F(TabTest, ATextThatIsBeingTypedIsPassedOnBeforeThePageGoes) {
    Open();
    Shown(*_editors[0]).setFocus();
    QTest::keyClicks(&Shown(*_editors[0]), QStringLiteral("M8"));
    Click(1);
    EXPECT_STREQ(_editors[0]->GetText().ConvertToChar(), "M8");
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgEditModifyNotification", "CATDlgEditFocusOutNotification", selected[0]}));
}

TEST_F(TabTest, TheTabsExplainTheirPages) {
    _pages[1]->SetShortHelp("Sets of <parameters>");
    _pages[1]->SetLongHelp("New, rename, delete");
    Open();
    EXPECT_EQ(Utf8(Box().tabToolTip(1)), "Sets of <parameters>");
    EXPECT_EQ(Utf8(Box().tabWhatsThis(1)), "New, rename, delete");
    _pages[1]->SetShortHelp("Sets");
    Settle();
    EXPECT_EQ(Utf8(Box().tabToolTip(1)), "Sets");
}

TEST_F(TabTest, PagesComeAndGoWhileTheWindowIsOpen) {
    Open();
    auto* const late = new CATDlgTabPage(_tabs, "LatePge");
    late->SetTitle("Late");
    auto* const editor = new CATDlgEditor(late, "LateEdt");
    Settle();
    EXPECT_EQ(Titles(), std::vector<std::string>({"Drawing", "Parameter sets", "Thread", "Late"}));
    Click(3);
    EXPECT_TRUE(Shown(*editor).isVisible());
    Command().Forget();
    delete late;
    EXPECT_EQ(Box().count(), 3) << "at once";
    Settle();
    EXPECT_TRUE(IsSeen(0));
    _pages[0]->RequestDelayedDestruction();
    Settle();
    EXPECT_EQ(Titles(), std::vector<std::string>({"Parameter sets", "Thread"}));
    EXPECT_TRUE(IsSeen(1));
    EXPECT_EQ(Command().TakeClasses(), Classes()) << "nobody has brought a page forward";
}

TEST_F(TabTest, AllMayBeDestroyedInTheMiddleOfAClickOnATab) {
    Open();
    const QPointer<QWidget> box(&Box());
    const Reaction destroy(selected[0], [this] { delete _tabs; });
    Click(1);
    EXPECT_EQ(destroy.Count(), 1);
    Settle();
    EXPECT_TRUE(box.isNull());
}

TEST_F(TabTest, TheWindowHasRoomForEveryTab) {
    Dialog().SetRectDimensions(0, 0, 10, 10);
    Open();
    EXPECT_LE(Bar().tabRect(2).right(), Bar().width());
    for (const char* more : {"Further page of many", "Page that makes the row very wide", "Last page"})
        (new CATDlgTabPage(_tabs, more))->SetTitle(CATUnicodeString(more) + " " + more);
    Settle();
    EXPECT_LT(Window().width(), 1000) << "a very long row scrolls";
}

TEST_F(TabTest, TheWindowIsLargeEnoughForTheLargestPage) {
    _editors[2]->SetVisibleTextWidth(80);
    Open();
    Click(2);
    EXPECT_GE(Shown(*_editors[2]).width(), Shown(*_editors[2]).sizeHint().width());
}

} // namespace

} // namespace desktop_test
