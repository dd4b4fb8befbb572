// Tab containers and their pages.

#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"

#include "Panels.h"

namespace {

class TabContainers : public DialogTest {
  protected:
    void HearSelection() { Hear(*tabs, tabs->GetTabSelectNotification(), "selected"); }

    CATDlgTabContainer* tabs = new CATDlgTabContainer(panel, "Tabs");
    CATDlgTabPage* first = new CATDlgTabPage(tabs, "First");
    CATDlgTabPage* second = new CATDlgTabPage(tabs, "Second");
    CATDlgTabPage* third = new CATDlgTabPage(tabs, "Third");
};

} // namespace

ASSUMED(TabContainers, TheFirstPageIsInFrontAtStart, "recalled") {
    EXPECT_EQ(0, tabs->GetSelectedPage());
}

ASSUMED(TabContainers, AnEmptyContainerHasNoPageInFront, "open: -1, as for no selection") {
    EXPECT_EQ(-1, (new CATDlgTabContainer(panel, "Empty"))->GetSelectedPage());
}

ASSUMED(TabContainers, PagesAreNumberedInTheOrderOfTheirCreation,
        "given for the order; numbers from 0 are open") {
    tabs->SetSelectedPage(2);
    EXPECT_EQ(2, tabs->GetSelectedPage());
    third->SetVisibility(CATDlgHide);
    EXPECT_EQ(0, tabs->GetSelectedPage());
}

ASSUMED(TabContainers, AHiddenPageIsNotInFront, "open: a page without tab cannot be looked at") {
    first->SetVisibility(CATDlgHide);
    EXPECT_EQ(1, tabs->GetSelectedPage());
    second->SetVisibility(CATDlgHide);
    third->SetVisibility(CATDlgHide);
    EXPECT_EQ(-1, tabs->GetSelectedPage());
    second->SetVisibility(CATDlgShow);
    EXPECT_EQ(1, tabs->GetSelectedPage());
}

ASSUMED(TabContainers, ADisabledPageKeepsItsPlace, "open: greyed, not gone") {
    first->SetSensitivity(CATDlgDisable);
    EXPECT_EQ(0, tabs->GetSelectedPage());
}

ASSUMED(TabContainers, APageThatIsNotThereChangesNothing, "open: as for combos") {
    tabs->SetSelectedPage(1);
    HearSelection();
    tabs->SetSelectedPage(3, 1);
    tabs->SetSelectedPage(-1, 1);
    EXPECT_EQ(1, tabs->GetSelectedPage());
    EXPECT_EQ(Journal(), journal);
}

CERTAIN(TabContainers, BringingAPageForwardIsNotified) {
    HearSelection();
    Send(*tabs, tabs->GetTabSelectNotification());
    EXPECT_EQ(Journal{"selected"}, journal);
}

ASSUMED(TabContainers, APageBroughtForwardByProgramIsNotifiedOnlyWhenAskedFor,
        "open: as for the other widgets") {
    HearSelection();
    tabs->SetSelectedPage(1);
    EXPECT_EQ(Journal(), journal);
    tabs->SetSelectedPage(2, 1);
    EXPECT_EQ(Journal{"selected"}, journal);
}

CERTAIN(TabContainers, TheTextOfATabIsTheTitleOfItsPage) {
    second->SetTitle("Thread");
    EXPECT_STREQ("Thread", second->GetTitle().ConvertToChar());
}
