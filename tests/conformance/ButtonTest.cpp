// Push, radio and check buttons.

#include "CATDlgCheckButton.h"
#include "CATDlgFrame.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"

#include "Panels.h"

namespace {

class Buttons : public DialogTest {
  protected:
    std::vector<CATULong> States() const {
        return {first->GetState(), second->GetState(), third->GetState()};
    }
    void HearAll() {
        Hear(*first, first->GetRadBModifyNotification(), "first");
        Hear(*second, second->GetRadBModifyNotification(), "second");
        Hear(*third, third->GetRadBModifyNotification(), "third");
    }

    CATDlgFrame* frame = new CATDlgFrame(panel, "Frame");
    CATDlgRadioButton* first = new CATDlgRadioButton(frame, "First");
    CATDlgRadioButton* second = new CATDlgRadioButton(frame, "Second");
    CATDlgRadioButton* third = new CATDlgRadioButton(frame, "Third");
};

typedef std::vector<CATULong> StateList;

// Writes down the states of two radio buttons at each change.
class StateWatcher : public CATDlgFrame {
  public:
    StateWatcher(CATDialog* iParent, Journal& ioJournal)
        : CATDlgFrame(iParent, "Watcher"), _journal(ioJournal) {
        for (CATDlgRadioButton* button : {left, right})
            AddAnalyseNotificationCB(button, button->GetRadBModifyNotification(),
                                     static_cast<CATCommandMethod>(&StateWatcher::OnChange), button);
    }
    CATDlgRadioButton* left = new CATDlgRadioButton(this, "Left");
    CATDlgRadioButton* right = new CATDlgRadioButton(this, "Right");

  private:
    void OnChange(CATCommand*, CATNotification*, CATCommandClientData iButton) {
        _journal.push_back(std::string(iButton == left ? "left" : "right") + " hears: left is " +
                           (left->GetState() == CATDlgCheck ? "checked" : "free") + ", right is " +
                           (right->GetState() == CATDlgCheck ? "checked" : "free"));
    }

    Journal& _journal;
};

} // namespace

CERTAIN(Buttons, APressIsHeardByThePanel) {
    auto* const button = new CATDlgPushButton(frame, "Button");
    Hear(*button, button->GetPushBActivateNotification(), "pressed");
    EXPECT_STREQ("CATDlgPushBActivateNotification", button->GetPushBActivateNotification()->IsA());
    Send(*button, button->GetPushBActivateNotification());
    Send(*button, button->GetPushBActivateNotification());
    EXPECT_EQ((Journal{"pressed", "pressed"}), journal);
}

CERTAIN(Buttons, TheCheckedStateHasItsNumber) {
    EXPECT_EQ(0x40000UL, CATDlgCheck);
}

ASSUMED(Buttons, TheUncheckedStateIsTheNextBit, "open: the name is documented, the number is not") {
    EXPECT_EQ(0x80000UL, CATDlgUncheck);
}

ASSUMED(Buttons, AGroupStartsWithNoneChecked, "open: the tolerance panel starts without a mode") {
    EXPECT_EQ((StateList{CATDlgUncheck, CATDlgUncheck, CATDlgUncheck}), States());
}

CERTAIN(Buttons, CheckingOneRadioButtonUnchecksTheOneBefore) {
    first->SetState(CATDlgCheck);
    EXPECT_EQ((StateList{CATDlgCheck, CATDlgUncheck, CATDlgUncheck}), States());
    third->SetState(CATDlgCheck);
    EXPECT_EQ((StateList{CATDlgUncheck, CATDlgUncheck, CATDlgCheck}), States());
}

CERTAIN(Buttons, TheButtonsOfAnotherContainerAreAnotherGroup) {
    auto* const other = new CATDlgFrame(panel, "Other");
    auto* const apart = new CATDlgRadioButton(other, "Apart");
    first->SetState(CATDlgCheck);
    apart->SetState(CATDlgCheck);
    EXPECT_EQ(CATDlgCheck, first->GetState());
    EXPECT_EQ(CATDlgCheck, apart->GetState());
}

CERTAIN(Buttons, AStateSetWithoutNotificationIsSilent) {
    HearAll();
    first->SetState(CATDlgCheck);
    second->SetState(CATDlgCheck, 0);
    EXPECT_EQ(Journal(), journal);
    first->SetState(CATDlgCheck, 1);
    EXPECT_FALSE(journal.empty());
}

CERTAIN(Buttons, AStateSetWithNotificationIsHeardBeforeTheCallReturns) {
    HearAll();
    first->SetState(CATDlgCheck, 1);
    journal.push_back("returned");
    EXPECT_EQ((Journal{"first", "returned"}), journal);
}

CERTAIN(Buttons, UncheckingIsNotifiedToo) {
    first->SetState(CATDlgCheck);
    HearAll();
    first->SetState(CATDlgUncheck, 1);
    EXPECT_EQ(Journal{"first"}, journal);
    EXPECT_EQ((StateList{CATDlgUncheck, CATDlgUncheck, CATDlgUncheck}), States());
}

ASSUMED(Buttons, TheUncheckedButtonIsNotifiedBeforeTheCheckedOne,
        "open: both states hold before the first is notified, so the order harms nobody") {
    auto* const watcher = new StateWatcher(panel, journal);
    watcher->left->SetState(CATDlgCheck);
    watcher->right->SetState(CATDlgCheck, 1);
    EXPECT_EQ((Journal{"left hears: left is free, right is checked",
                       "right hears: left is free, right is checked"}),
              journal);
}

ASSUMED(Buttons, AStateThatHoldsAlreadyIsNotNotified,
        "open: the documented notification reports a change; a rule that sets a radio again inside its own "
        "callback would never end otherwise") {
    auto* const box = new CATDlgCheckButton(frame, "Box");
    first->SetState(CATDlgCheck);
    box->SetState(CATDlgCheck);
    HearAll();
    Hear(*box, box->GetChkBModifyNotification(), "box");
    first->SetState(CATDlgCheck, 1);
    second->SetState(CATDlgUncheck, 1);
    box->SetState(CATDlgCheck, 1);
    EXPECT_EQ(Journal(), journal);
    box->SetState(CATDlgUncheck, 1);
    EXPECT_EQ(Journal{"box"}, journal);
}

ASSUMED(Buttons, AnyOtherStateChangesNothing, "open: refused rather than guessed at") {
    auto* const box = new CATDlgCheckButton(frame, "Box");
    box->SetState(1, 1);
    first->SetState(1, 1);
    EXPECT_EQ(CATDlgUncheck, box->GetState());
    EXPECT_EQ(CATDlgUncheck, first->GetState());
}

CERTAIN(Buttons, CheckButtonsDoNotExcludeOneAnother) {
    auto* const one = new CATDlgCheckButton(frame, "One", 0);
    auto* const two = new CATDlgCheckButton(frame, "Two", 0);
    Hear(*one, one->GetChkBModifyNotification(), "one");
    Hear(*two, two->GetChkBModifyNotification(), "two");
    one->SetState(CATDlgCheck, 1);
    two->SetState(CATDlgCheck, 1);
    EXPECT_EQ(CATDlgCheck, one->GetState());
    EXPECT_EQ(CATDlgCheck, two->GetState());
    one->SetState(CATDlgUncheck, 1);
    EXPECT_EQ((Journal{"one", "two", "one"}), journal);
}
