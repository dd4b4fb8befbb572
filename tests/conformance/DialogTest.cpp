// What every widget has: name, title, visibility, sensitivity, place, lifetime.

#include "CATDialog.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"

#include "Panels.h"

namespace {

class Dialogs : public DialogTest {
  protected:
    CATDlgFrame* frame = new CATDlgFrame(panel, "Frame");
    CATDlgPushButton* button = new CATDlgPushButton(frame, "Button");
};

// A widget that writes its end down.
class MortalFrame : public CATDlgFrame {
  public:
    MortalFrame(CATDialog* iParent, const char* iName, Journal& ioJournal)
        : CATDlgFrame(iParent, iName), _journal(ioJournal) {}
    ~MortalFrame() override { _journal.push_back(std::string(GetName().ConvertToChar()) + " ends"); }

  private:
    Journal& _journal;
};

} // namespace

CERTAIN(Dialogs, TheValuesOfVisibilityAndSensitivityAreFixed) {
    EXPECT_EQ(2UL, CATDlgShow);
    EXPECT_EQ(4UL, CATDlgHide);
    EXPECT_EQ(8UL, CATDlgEnable);
    EXPECT_EQ(16UL, CATDlgDisable);
}

CERTAIN(Dialogs, AWidgetKeepsItsNameBlanksIncluded) {
    auto* const spacer = new CATDlgLabel(frame, "Applicative Rules   ");
    EXPECT_STREQ("Applicative Rules   ", spacer->GetName().ConvertToChar());
}

CERTAIN(Dialogs, TwoSiblingsMayHaveOneName) {
    auto* const second = new CATDlgPushButton(frame, "Button");
    EXPECT_TRUE(second->GetName() == button->GetName());
    EXPECT_NE(second, button);
    EXPECT_EQ(frame, second->GetFather());
}

ASSUMED(Dialogs, TheResourceNameIsTheName, "open: a panel asks a button for it; the same text serves") {
    EXPECT_STREQ("Button", button->GetResourceName().ConvertToChar());
}

ASSUMED(Dialogs, WithoutResourceTheTitleIsTheName,
        "recalled: it is what makes names such as fifteen blanks or 'No Name' useful") {
    EXPECT_STREQ("Button", button->GetTitle().ConvertToChar());
    EXPECT_STREQ("No Name", (new CATDlgLabel(frame, "No Name"))->GetTitle().ConvertToChar());
}

CERTAIN(Dialogs, ATitleThatIsSetReplacesTheFirstOne) {
    button->SetTitle("Insert");
    EXPECT_STREQ("Insert", button->GetTitle().ConvertToChar());
    button->SetTitle("");
    EXPECT_STREQ("", button->GetTitle().ConvertToChar());
}

CERTAIN(Dialogs, AParentIsTheFather) {
    EXPECT_EQ(frame, button->GetFather());
    EXPECT_EQ(panel, frame->GetFather());
}

ASSUMED(Dialogs, WidgetsStartShownAndWindowsHidden, "recalled: a dialog is shown when it is complete") {
    EXPECT_EQ(CATDlgShow, button->GetVisibility());
    EXPECT_EQ(CATDlgShow, frame->GetVisibility());
    EXPECT_EQ(CATDlgHide, panel->GetVisibility());
}

CERTAIN(Dialogs, AWidgetIsShownAndHidden) {
    button->SetVisibility(CATDlgHide);
    EXPECT_EQ(CATDlgHide, button->GetVisibility());
    button->SetVisibility(CATDlgShow);
    EXPECT_EQ(CATDlgShow, button->GetVisibility());
}

ASSUMED(Dialogs, VisibilityIsTheWidgetsOwnFlag,
        "open: a panel reads back what it set, whatever its parents show") {
    frame->SetVisibility(CATDlgHide);
    EXPECT_EQ(CATDlgShow, button->GetVisibility());
    button->SetVisibility(CATDlgHide);
    frame->SetVisibility(CATDlgShow);
    EXPECT_EQ(CATDlgHide, button->GetVisibility());
}

ASSUMED(
    Dialogs, AChangeOfVisibilityIsNotifiedOnceEach,
    "documented for a change; that a change by program counts is open, and setting it again is no change") {
    Hear(*frame, frame->GetVisibilityNotification(), "visibility");
    frame->SetVisibility(CATDlgHide);
    frame->SetVisibility(CATDlgHide);
    EXPECT_EQ(Journal{"visibility"}, journal);
    frame->SetVisibility(CATDlgShow);
    EXPECT_EQ((Journal{"visibility", "visibility"}), journal);
}

ASSUMED(Dialogs, WidgetsStartEnabled, "recalled") {
    EXPECT_EQ(CATDlgEnable, button->GetSensitivity());
    EXPECT_EQ(CATDlgEnable, panel->GetSensitivity());
}

CERTAIN(Dialogs, AWidgetIsEnabledAndDisabled) {
    button->SetSensitivity(CATDlgDisable);
    EXPECT_EQ(CATDlgDisable, button->GetSensitivity());
    button->SetSensitivity(CATDlgEnable);
    EXPECT_EQ(CATDlgEnable, button->GetSensitivity());
}

ASSUMED(Dialogs, DisablingAContainerLeavesTheFlagsOfItsChildren,
        "recalled: enabling it again brings each child back as it was") {
    auto* const other = new CATDlgPushButton(frame, "Other");
    other->SetSensitivity(CATDlgDisable);
    frame->SetSensitivity(CATDlgDisable);
    EXPECT_EQ(CATDlgEnable, button->GetSensitivity());
    frame->SetSensitivity(CATDlgEnable);
    EXPECT_EQ(CATDlgEnable, button->GetSensitivity());
    EXPECT_EQ(CATDlgDisable, other->GetSensitivity());
}

ASSUMED(Dialogs, AnyOtherValueChangesNothing, "open: refused rather than guessed at") {
    button->SetVisibility(0);
    button->SetVisibility(CATDlgShow | CATDlgHide);
    button->SetSensitivity(CATDlgHide);
    EXPECT_EQ(CATDlgShow, button->GetVisibility());
    EXPECT_EQ(CATDlgEnable, button->GetSensitivity());
}

CERTAIN(Dialogs, HelpTextsAreSet) {
    EXPECT_STREQ("", button->GetShortHelp().ConvertToChar());
    button->SetShortHelp("balloon");
    button->SetLongHelp("explanation");
    button->SetHelp("status");
    EXPECT_STREQ("balloon", button->GetShortHelp().ConvertToChar());
    EXPECT_STREQ("explanation", button->GetLongHelp().ConvertToChar());
    EXPECT_STREQ("status", button->GetHelp().ConvertToChar());
}

CERTAIN(Dialogs, ARectangleIsGivenBackInTheOrderInWhichItWasSet) {
    panel->SetRectDimensions(10, 20, 640, 670);
    int x = 0;
    int y = 0;
    int height = 0;
    int width = 0;
    panel->GetRectDimensions(&x, &y, &height, &width);
    EXPECT_EQ((std::vector<int>{10, 20, 640, 670}), (std::vector<int>{x, y, height, width}));
}

CERTAIN(Dialogs, AnIconOfOneOrFourStatesLeavesTheTitleAlone) {
    button->SetIconName("I_Invert", "", "", "");
    button->SetIconName("I_Invert");
    EXPECT_STREQ("Button", button->GetTitle().ConvertToChar());
}

ASSUMED(Dialogs, AWidgetOwnsOneNotificationForEachEvent,
        "recalled: that is how a subscription finds its publisher") {
    EXPECT_EQ(button->GetPushBActivateNotification(), button->GetPushBActivateNotification());
    EXPECT_NE(button->GetPushBActivateNotification(),
              static_cast<CATNotification*>(button->GetVisibilityNotification()));
    auto* const other = new CATDlgPushButton(frame, "Other");
    EXPECT_NE(button->GetPushBActivateNotification(), other->GetPushBActivateNotification());
}

CERTAIN(Dialogs, AParentDeletesItsChildren) {
    auto* const outer = new MortalFrame(panel, "Outer", journal);
    new MortalFrame(outer, "Inner", journal);
    delete outer;
    EXPECT_EQ((std::vector<std::string>{"Outer ends", "Inner ends"}), journal);
}

CERTAIN(Dialogs, AChildThatIsDeletedLeavesItsParent) {
    auto* const outer = new MortalFrame(panel, "Outer", journal);
    auto* const inner = new MortalFrame(outer, "Inner", journal);
    delete inner;
    delete outer;
    EXPECT_EQ((std::vector<std::string>{"Inner ends", "Outer ends"}), journal);
}

ASSUMED(Dialogs, DelayedDestructionIsNotAtOnceAndNotTwice,
        "recalled for the delay; that a deleted parent takes a waiting child along, once, is open") {
    auto* const outer = new MortalFrame(panel, "Outer", journal);
    auto* const inner = new MortalFrame(outer, "Inner", journal);
    inner->RequestDelayedDestruction();
    inner->RequestDelayedDestruction();
    EXPECT_EQ(Journal(), journal);
    delete outer;
    EXPECT_EQ((std::vector<std::string>{"Outer ends", "Inner ends"}), journal);
}

ASSUMED(Dialogs, ANameIsFreeAgainAfterARequestForDestruction,
        "open: the parameter set list makes a new table of the same name right away") {
    button->RequestDelayedDestruction();
    auto* const successor = new CATDlgPushButton(frame, "Button");
    EXPECT_STREQ("Button", successor->GetName().ConvertToChar());
    EXPECT_EQ(frame, successor->GetFather());
}

ASSUMED(Dialogs, AWidgetOnItsWayOutSendsNothing, "open: what is about to go takes no more part") {
    auto* const radio = new CATDlgRadioButton(frame, "Radio");
    Hear(*radio, radio->GetRadBModifyNotification(), "changed");
    radio->SetState(CATDlgCheck, 1);
    EXPECT_EQ(Journal{"changed"}, journal);
    radio->RequestDelayedDestruction();
    radio->SetState(CATDlgUncheck, 1);
    Send(*radio, radio->GetRadBModifyNotification());
    EXPECT_EQ(Journal{"changed"}, journal);
}
