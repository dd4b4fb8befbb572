#include "CATDlgCombo.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "DialogTest.h"
#include "host/DelayedDestruction.h"
#include "host/DialogDump.h"
#include "host/DialogPath.h"
#include "host/EventScope.h"
#include "host/Inspector.h"
#include "host/LayoutPlan.h"

namespace {

using host::DelayedDestruction;
using host::DialogPath;
using host::DialogUser;
using host::EventScope;
using host::Inspector;

// A frame that writes its end down.
class MortalFrame : public CATDlgFrame {
  public:
    MortalFrame(CATDialog* iParent, const char* iName, Texts& ioEnds)
        : CATDlgFrame(iParent, iName), _ends(ioEnds) {}
    MortalFrame(const MortalFrame&) = delete;
    MortalFrame& operator=(const MortalFrame&) = delete;
    ~MortalFrame() override { _ends.push_back(GetName().ConvertToChar()); }

  private:
    Texts& _ends;
};

class DialogTreeTest : public DialogTest {
  protected:
    MortalFrame& MakeMortal(CATDialog& ioParent, const char* iName) {
        return *new MortalFrame(&ioParent, iName, ends);
    }
    Texts TakeEnds() { return std::exchange(ends, Texts()); }

    Texts ends;
};

TEST_F(DialogTreeTest, DestroysTheRemainingChildrenWithTheirParent) {
    MortalFrame& outer = MakeMortal(*dialog, "Outer");
    MortalFrame& inner = MakeMortal(outer, "Inner");
    MakeMortal(inner, "Innermost");
    MortalFrame& gone = MakeMortal(outer, "Gone");
    delete &gone;
    EXPECT_EQ(TakeEnds(), Texts{"Gone"});
    delete &outer;
    EXPECT_EQ(TakeEnds(), (Texts{"Outer", "Inner", "Innermost"}));
    EXPECT_TRUE(Inspector::Children(*dialog).empty());
}

TEST_F(DialogTreeTest, KeepsItsChildrenInOrderOfCreationWhateverGoes) {
    std::vector<CATDialog*> made;
    for (const char* name : {"A", "B", "C", "D"})
        made.push_back(&Make<CATDlgFrame>(name));
    delete made[1];
    delete made[3];
    EXPECT_EQ(Inspector::Children(*dialog), (std::vector<CATDialog*>{made[0], made[2]}));
    delete made[0];
    CATDialog* const last = &Make<CATDlgFrame>("E");
    EXPECT_EQ(Inspector::Children(*dialog), (std::vector<CATDialog*>{made[2], last}));
    EXPECT_EQ(Inspector::FirstChild(*dialog), made[2]);
    EXPECT_EQ(Inspector::NextSibling(*made[2]), last);
    EXPECT_EQ(Inspector::NextSibling(*last), nullptr);
}

TEST_F(DialogTreeTest, DestroysAtTheEndOfTheOutermostEventExactlyOnce) {
    MortalFrame& frame = MakeMortal(*dialog, "Frm");
    {
        const EventScope outer;
        {
            const EventScope inner;
            frame.RequestDelayedDestruction();
            frame.RequestDelayedDestruction();
            EXPECT_EQ(DelayedDestruction::Pending(), 1);
        }
        EXPECT_EQ(TakeEnds(), Texts()) << "the inner event is not the outermost";
    }
    EXPECT_EQ(TakeEnds(), Texts{"Frm"});
    EXPECT_EQ(DelayedDestruction::Pending(), 0);
}

TEST_F(DialogTreeTest, DestroysInTheIdleStepOutsideAnyEvent) {
    MakeMortal(*dialog, "Frm").RequestDelayedDestruction();
    EXPECT_EQ(TakeEnds(), Texts());
    EXPECT_EQ(DelayedDestruction::Pending(), 1);
    EventScope::RunIdle();
    EXPECT_EQ(TakeEnds(), Texts{"Frm"});
}

TEST_F(DialogTreeTest, DestroysAQueuedWidgetOnceWhenItsParentGoesFirst) {
    MortalFrame& outer = MakeMortal(*dialog, "Outer");
    MakeMortal(outer, "Inner").RequestDelayedDestruction();
    delete &outer;
    EXPECT_EQ(TakeEnds(), (Texts{"Outer", "Inner"}));
    EventScope::RunIdle();
    EXPECT_EQ(TakeEnds(), Texts());
}

TEST_F(DialogTreeTest, DestroysParentAndChildOnceWhicheverWasQueuedFirst) {
    MortalFrame& first = MakeMortal(*dialog, "First");
    MakeMortal(first, "InFirst").RequestDelayedDestruction();
    first.RequestDelayedDestruction();
    MortalFrame& second = MakeMortal(*dialog, "Second");
    second.RequestDelayedDestruction();
    MakeMortal(second, "InSecond").RequestDelayedDestruction();
    EventScope::RunIdle();
    EXPECT_EQ(TakeEnds(), (Texts{"InFirst", "First", "Second", "InSecond"}));
}

TEST_F(DialogTreeTest, TakesADoomedWidgetOutOfTreePathsLayoutAndDumpAtOnce) {
    CATDlgFrame& frame = Make<CATDlgFrame>("OldFrm");
    CATDlgLabel& label = MakeIn<CATDlgLabel>(frame, "OldLab");
    dialog->SetHorizontalAttachment(0, CATDlgTopOrLeft, &frame, nullptr);
    ASSERT_EQ(DialogPath::Find("OldLab").widget, &label);
    ASSERT_NE(host::PlanLayout(*dialog).CellOf(frame), nullptr);
    ASSERT_NE(host::DialogDump::Of(*dialog).find("OldFrm"), std::string::npos);
    ASSERT_EQ(Inspector::Attachments(*dialog).size(), 1U);
    frame.RequestDelayedDestruction();
    EXPECT_TRUE(Inspector::Children(*dialog).empty());
    EXPECT_EQ(DialogPath::Find("OldFrm").widget, nullptr);
    EXPECT_EQ(DialogPath::Find("OldLab").widget, nullptr) << "its children go with it";
    EXPECT_EQ(host::PlanLayout(*dialog).CellOf(frame), nullptr);
    EXPECT_EQ(host::DialogDump::Of(*dialog).find("OldFrm"), std::string::npos);
    EXPECT_TRUE(Inspector::Attachments(*dialog).empty());
}

TEST_F(DialogTreeTest, LetsTheNameOfADoomedWidgetBeUsedAtOnce) {
    CATDlgFrame& before = Make<CATDlgFrame>("CurrentMul");
    before.RequestDelayedDestruction();
    CATDlgFrame& after = Make<CATDlgFrame>("CurrentMul");
    EXPECT_EQ(DialogPath::Find("Dlg/CurrentMul").widget, &after);
    EXPECT_EQ(DialogPath::Of(after), "Dlg/CurrentMul");
    EXPECT_EQ(DialogPath::Of(before), "Dlg/CurrentMul");
    EventScope::RunIdle();
    EXPECT_EQ(DialogPath::Find("Dlg/CurrentMul").widget, &after);
}

TEST_F(DialogTreeTest, HearsNothingMoreOfADoomedWidget) {
    CATDlgCombo& combo = Make<CATDlgCombo>("Cmb");
    combo.SetLine("A");
    dialog->Hear(combo, combo.GetComboSelectNotification());
    combo.SetSelect(0, CATDlgWithNotification);
    combo.GetVisibilityNotification();
    combo.RequestDelayedDestruction();
    combo.SetSelect(0, CATDlgWithNotification);
    combo.SetVisibility(CATDlgHide);
    EXPECT_EQ(Result(DialogUser::Choose(combo, 0)), "Dlg/Cmb is on its way out");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"ComboSelect Cmb"});
    EXPECT_EQ(command.TakeHeard(), Texts());
}

TEST_F(DialogTreeTest, RefusesAPersonWhatHangsInADoomedWidget) {
    CATDlgFrame& frame = Make<CATDlgFrame>("Frm");
    CATDlgPushButton& button = MakeIn<CATDlgPushButton>(frame, "Pbt");
    EXPECT_TRUE(DialogUser::CanSee(button));
    frame.RequestDelayedDestruction();
    EXPECT_EQ(Result(DialogUser::Press(button)), "Dlg/Frm/Pbt is on its way out");
    EXPECT_FALSE(DialogUser::CanSee(button));
}

TEST_F(DialogTreeTest, LetsAWidgetBeDestroyedByItsOwnCallback) {
    for (const bool delayed : {false, true}) {
        CATDlgPushButton& button = Make<CATDlgPushButton>("Pbt");
        dialog->Hear(button, button.GetPushBActivateNotification());
        dialog->onHeard = [&button, delayed] {
            if (delayed)
                button.RequestDelayedDestruction();
            else
                delete &button;
            return std::string();
        };
        EXPECT_EQ(Result(DialogUser::Press(button)), "done");
        EXPECT_EQ(dialog->TakeHeard(), Texts{"PushBActivate Pbt"});
        EXPECT_TRUE(Inspector::Children(*dialog).empty()) << "gone when the event ends";
    }
}

TEST_F(DialogTreeTest, LetsAWholeDialogBeDestroyedByTheCallbackOfItsButton) {
    ListeningDialog& doomed = MakeDialog("Doomed", CATDlgWndOK);
    doomed.Hear(doomed, doomed.GetDiaOKNotification());
    doomed.onHeard = [&doomed] {
        delete &doomed;
        return std::string();
    };
    EXPECT_EQ(Result(DialogUser::PressEnter(doomed)), "done");
    EXPECT_EQ(Inspector::Windows(), std::vector<CATDlgWindow*>{dialog});
}

TEST_F(DialogTreeTest, DestroysWhatACallbackQueuesWhenThePersonsEventEnds) {
    CATDlgPushButton& button = Make<CATDlgPushButton>("Pbt");
    MortalFrame& frame = MakeMortal(*dialog, "Frm");
    dialog->Hear(button, button.GetPushBActivateNotification());
    dialog->onHeard = [this, &frame] {
        frame.RequestDelayedDestruction();
        return std::to_string(ends.size());
    };
    EXPECT_EQ(Result(DialogUser::Press(button)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"PushBActivate Pbt 0"});
    EXPECT_EQ(TakeEnds(), Texts{"Frm"});
}

TEST_F(DialogTreeTest, DestroysNothingWhenAPersonIsRefused) {
    CATDlgPushButton& button = Make<CATDlgPushButton>("Pbt");
    MakeMortal(*dialog, "Frm").RequestDelayedDestruction();
    button.SetSensitivity(CATDlgDisable);
    EXPECT_EQ(Result(DialogUser::Press(button)), "Dlg/Pbt is disabled");
    EXPECT_EQ(Result(DialogUser::Check(*dialog)), "Dlg is no radio or check button");
    EXPECT_EQ(TakeEnds(), Texts());
    EventScope::RunIdle();
    EXPECT_EQ(TakeEnds(), Texts{"Frm"});
}

TEST_F(DialogTreeTest, EndsTheSubscriptionsOnAWidgetWithIt) {
    CATDlgPushButton& button = Make<CATDlgPushButton>("Pbt");
    CATNotification* const event = button.GetPushBActivateNotification();
    dialog->Hear(button, event);
    event->AddRef();
    delete &button;
    dialog->Ignore(MainWindow(), event);
    EXPECT_EQ(event->Release(), 0U) << "the widget held the only other reference";
}

} // namespace
