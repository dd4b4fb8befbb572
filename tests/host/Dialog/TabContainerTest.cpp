#include "CATDlgTabContainer.h"

#include "CATDlgPushButton.h"
#include "CATDlgTabPage.h"
#include "DialogTest.h"
#include "host/EventScope.h"

#include <climits>

namespace {

using host::DialogUser;

class CATDlgTabContainerTest : public DialogTest {
  protected:
    CATDlgTabContainerTest() {
        dialog->Hear(pages, pages.GetTabSelectNotification());
        dialog->onHeard = [this] { return std::to_string(pages.GetSelectedPage()); };
    }

    CATDlgTabContainer& pages = Make<CATDlgTabContainer>("Tab");
    CATDlgTabPage& sketch = MakeIn<CATDlgTabPage>(pages, "SketchPge");
    CATDlgTabPage& sets = MakeIn<CATDlgTabPage>(pages, "SetsPge");
    CATDlgTabPage& thread = MakeIn<CATDlgTabPage>(pages, "ThreadPge");
    CATDlgPushButton& onSketch = MakeIn<CATDlgPushButton>(sketch, "FitPbt");
    CATDlgPushButton& onThread = MakeIn<CATDlgPushButton>(thread, "TakePbt");
};

TEST_F(CATDlgTabContainerTest, HasNoPageInFrontWithoutPages) {
    CATDlgTabContainer& empty = Make<CATDlgTabContainer>("Empty");
    EXPECT_EQ(empty.GetSelectedPage(), -1);
    empty.SetSelectedPage(0, CATDlgWithNotification);
    EXPECT_EQ(empty.GetSelectedPage(), -1);
    EXPECT_EQ(command.TakeHeard(), Texts());
}

TEST_F(CATDlgTabContainerTest, HasItsFirstPageInFrontAtStart) {
    EXPECT_EQ(pages.GetSelectedPage(), 0);
}

TEST_F(CATDlgTabContainerTest, BringsAPageToTheFrontForAPerson) {
    EXPECT_EQ(Result(DialogUser::Press(onThread)),
              "Dlg/Tab/ThreadPge/TakePbt is on the page Dlg/Tab/ThreadPge, which is not in front");
    EXPECT_EQ(Result(DialogUser::ShowPage(thread)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"TabSelect Tab 2"});
    EXPECT_EQ(Result(DialogUser::Press(onThread)), "done");
    EXPECT_EQ(Result(DialogUser::Press(onSketch)),
              "Dlg/Tab/SketchPge/FitPbt is on the page Dlg/Tab/SketchPge, which is not in front");
}

TEST_F(CATDlgTabContainerTest, StaysSilentWhenThePageIsInFrontAlready) {
    EXPECT_EQ(Result(DialogUser::ShowPage(sketch)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgTabContainerTest, IsSwitchedSilentlyByTheProgramUnlessItAsks) {
    pages.SetSelectedPage(1);
    EXPECT_EQ(pages.GetSelectedPage(), 1);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
    pages.SetSelectedPage(2, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"TabSelect Tab 2"});
}

TEST_F(CATDlgTabContainerTest, TakesNoPageThatIsNotThere) {
    for (const int page : {-1, 3, INT_MIN, INT_MAX})
        pages.SetSelectedPage(page, CATDlgWithNotification);
    EXPECT_EQ(pages.GetSelectedPage(), 0);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgTabContainerTest, KeepsThePageInFrontWhenAnEarlierOneGoes) {
    pages.SetSelectedPage(2);
    delete &sets;
    EXPECT_EQ(pages.GetSelectedPage(), 1);
    EXPECT_TRUE(DialogUser::CanSee(onThread));
}

TEST_F(CATDlgTabContainerTest, ShowsItsFirstPageAfterThePageInFrontGoes) {
    pages.SetSelectedPage(2);
    {
        const host::EventScope event;
        thread.RequestDelayedDestruction();
        EXPECT_EQ(pages.GetSelectedPage(), 0);
        EXPECT_EQ(Result(DialogUser::ShowPage(thread)), "Dlg/Tab/ThreadPge is on its way out");
    }
    EXPECT_EQ(pages.GetSelectedPage(), 0);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgTabContainerTest, ShowsTheFirstShownPageWhileThePageInFrontIsHidden) {
    sketch.SetVisibility(CATDlgHide);
    EXPECT_EQ(pages.GetSelectedPage(), 1);
    EXPECT_EQ(Result(DialogUser::ShowPage(sketch)), "Dlg/Tab/SketchPge is hidden");
    EXPECT_EQ(Result(DialogUser::ShowPage(thread)), "done");
    sketch.SetVisibility(CATDlgShow);
    EXPECT_EQ(pages.GetSelectedPage(), 2) << "the page chosen by hand stays";
    thread.SetVisibility(CATDlgHide);
    EXPECT_EQ(pages.GetSelectedPage(), 0);
    sketch.SetVisibility(CATDlgHide);
    sets.SetVisibility(CATDlgHide);
    EXPECT_EQ(pages.GetSelectedPage(), -1);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"TabSelect Tab 2"});
}

TEST_F(CATDlgTabContainerTest, LetsAPersonLookAtADisabledPageButUseNothingOnIt) {
    thread.SetSensitivity(CATDlgDisable);
    EXPECT_EQ(Result(DialogUser::ShowPage(thread)), "done");
    EXPECT_EQ(Result(DialogUser::Press(onThread)),
              "Dlg/Tab/ThreadPge/TakePbt is disabled with Dlg/Tab/ThreadPge");
    thread.SetSensitivity(CATDlgEnable);
    EXPECT_EQ(Result(DialogUser::Press(onThread)), "done");
}

TEST_F(CATDlgTabContainerTest, RefusesAPersonTheTabsOfAContainerThatCannotBeUsed) {
    pages.SetSensitivity(CATDlgDisable);
    EXPECT_EQ(Result(DialogUser::ShowPage(thread)), "Dlg/Tab is disabled");
    pages.SetVisibility(CATDlgHide);
    EXPECT_EQ(Result(DialogUser::ShowPage(thread)), "Dlg/Tab is hidden");
    EXPECT_EQ(pages.GetSelectedPage(), 0);
}

TEST_F(CATDlgTabContainerTest, HasNoTabForAPageElsewhere) {
    CATDlgTabPage& stray = Make<CATDlgTabPage>("StrayPge");
    EXPECT_EQ(Result(DialogUser::ShowPage(stray)), "Dlg/StrayPge is in no tab container");
}

TEST_F(CATDlgTabContainerTest, IsCopiedWithoutItsPages) {
    pages.SetSelectedPage(2);
    const CATDlgTabContainer copy(pages);
    EXPECT_EQ(copy.GetSelectedPage(), -1);
    EXPECT_EQ(pages.GetSelectedPage(), 2);
}

} // namespace
