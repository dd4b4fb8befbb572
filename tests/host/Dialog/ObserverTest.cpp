#include "host/DialogObserver.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgContainer.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgMultiList.h"
#include "CATDlgNotify.h"
#include "CATDlgProgress.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "DialogTest.h"
#include "host/EventScope.h"
#include "host/Messages.h"

#include <algorithm>
#include <set>

namespace {

using host::ChangeKind;
using host::DialogChanges;
using host::DialogObserver;
using host::DialogUser;
using host::EventScope;

// Writes deliveries down, one text each: "+A +B ~C:8 -2" for two created widgets, the changed content of a
// third and two destroyed ones.
class Watcher : public DialogObserver {
  public:
    Watcher() { Add(*this); }
    ~Watcher() override { Remove(*this); }

    void OnChanges(const DialogChanges& iChanges) override {
        std::string text;
        const auto add = [&text](const std::string& iPart) { text += (text.empty() ? "" : " ") + iPart; };
        for (const CATDialog* widget : iChanges.created)
            add(std::string("+") + widget->GetName().ConvertToChar());
        for (const auto& [widget, kinds] : iChanges.changed)
            add(std::string("~") + widget->GetName().ConvertToChar() + ":" + std::to_string(kinds));
        if (!iChanges.destroyed.empty())
            add("-" + std::to_string(iChanges.destroyed.size()));
        destroyed.insert(destroyed.end(), iChanges.destroyed.begin(), iChanges.destroyed.end());
        deliveries.push_back(text);
        if (onDelivery)
            onDelivery();
    }
    void OnDestroyed(const CATDialog& iWidget) override {
        leaving.push_back(&iWidget);
        if (onDestruction)
            onDestruction();
    }
    void OnIdleNeeded() override { ++idleRequests; }

    Texts Take() { return std::exchange(deliveries, Texts()); }

    Texts deliveries;
    std::vector<const CATDialog*> destroyed; // as deliveries name them
    std::vector<const CATDialog*> leaving;   // as they go
    int idleRequests = 0;
    std::function<void()> onDelivery;
    std::function<void()> onDestruction;
};

class DialogObserverTest : public DialogTest {
  protected:
    // What one event delivers.
    Texts During(const std::function<void()>& iAction) {
        watcher.Take();
        {
            const EventScope event;
            iAction();
            EXPECT_EQ(watcher.deliveries, Texts()) << "nothing is delivered before the event ends";
        }
        return watcher.Take();
    }

    void TearDown() override {
        watcher.onDelivery = nullptr;
        watcher.onDestruction = nullptr;
        DialogTest::TearDown();
    }

    CATDlgFrame& frame = Make<CATDlgFrame>("Frm");
    CATDlgPushButton& button = Make<CATDlgPushButton>("Pbt");
    Watcher watcher;
};

TEST_F(DialogObserverTest, HearsNothingOfWhatWasThereBefore) {
    EventScope::RunIdle();
    EXPECT_EQ(watcher.Take(), Texts());
    EXPECT_EQ(watcher.idleRequests, 0);
}

TEST_F(DialogObserverTest, HearsOfAllChangesTogetherWhenTheOutermostEventEnds) {
    EXPECT_EQ(During([this] {
                  frame.SetTitle("1");
                  {
                      const EventScope inner;
                      button.SetTitle("2");
                      frame.SetVisibility(CATDlgHide);
                  }
                  frame.SetTitle("3");
              }),
              Texts{"~Frm:3 ~Pbt:1"});
}

TEST_F(DialogObserverTest, HearsOfCreatedWidgetsParentsFirstAndOnlyOnce) {
    EXPECT_EQ(During([this] {
                  CATDlgFrame& outer = Make<CATDlgFrame>("Outer");
                  CATDlgCombo& inner = MakeIn<CATDlgCombo>(outer, "Inner");
                  inner.SetLine("A");
                  inner.SetSelect(0);
                  outer.SetTitle("Title");
              }),
              Texts{"+Outer +Inner"});
}

TEST_F(DialogObserverTest, HearsOfDestroyedWidgetsAndNotOfTheirChanges) {
    const CATDialog* const address = &frame;
    EXPECT_EQ(During([this] {
                  MakeIn<CATDlgLabel>(frame, "Lab");
                  frame.SetTitle("last words");
                  delete &frame;
              }),
              Texts{"-1"});
    EXPECT_EQ(watcher.destroyed, std::vector<const CATDialog*>{address});
}

TEST_F(DialogObserverTest, HearsOfADestructionAtOnceInsideAndOutsideAnEvent) {
    typedef std::vector<const CATDialog*> Widgets;
    const CATDialog* const child = &MakeIn<CATDlgLabel>(frame, "Lab");
    EventScope::RunIdle();
    watcher.Take();
    EXPECT_EQ(During([this, child] {
                  delete &frame;
                  EXPECT_EQ(watcher.leaving, (Widgets{child, &frame}));
              }),
              Texts{"-2"});
    watcher.onDestruction = [this] { EXPECT_EQ(watcher.idleRequests, 1) << "that of the label"; };
    delete &button;
    EXPECT_EQ(watcher.leaving, (Widgets{child, &frame, &button}));
    EXPECT_EQ(watcher.idleRequests, 2) << "and then asks to be delivered";
    EventScope::RunIdle();
    EXPECT_EQ(watcher.destroyed, watcher.leaving);
}

TEST_F(DialogObserverTest, MayBeRemovedByAnotherObserverDuringADestruction) {
    auto second = std::make_unique<Watcher>();
    watcher.onDestruction = [&second] { second.reset(); };
    delete &frame;
    EXPECT_EQ(watcher.leaving.size(), 1U);
    EXPECT_EQ(second, nullptr);
}

TEST_F(DialogObserverTest, DoesNotHearOfWhatCameAndWentInOneEvent) {
    EXPECT_EQ(During([this] {
                  CATDlgFrame& brief = Make<CATDlgFrame>("Brief");
                  brief.SetTitle("Title");
                  delete &brief;
              }),
              Texts());
    EXPECT_TRUE(watcher.leaving.empty());
}

TEST_F(DialogObserverTest, HearsOfADoomedWidgetFirstAsChangedThenAsDestroyed) {
    EXPECT_EQ(During([this] { frame.RequestDelayedDestruction(); }), (Texts{"~Dlg:256 ~Frm:2", "-1"}));
}

TEST_F(DialogObserverTest, HearsOfWhatAPersonDoes) {
    CATDlgCheckButton& check = Make<CATDlgCheckButton>("Ckb");
    EventScope::RunIdle();
    watcher.Take();
    EXPECT_EQ(Result(DialogUser::Check(check)), "done");
    EXPECT_EQ(watcher.Take(), Texts{"~Ckb:32"});
    EXPECT_EQ(Result(DialogUser::Check(check)), "done");
    EXPECT_EQ(watcher.Take(), Texts());
}

TEST_F(DialogObserverTest, HearsTheKindOfEachChange) {
    CATDlgTabContainer& pages = Make<CATDlgTabContainer>("Tab");
    MakeIn<CATDlgTabPage>(pages, "P1");
    MakeIn<CATDlgTabPage>(pages, "P2");
    CATDlgCombo& combo = Make<CATDlgCombo>("Cmb");
    CATDlgMultiList& list = Make<CATDlgMultiList>("Mul");
    CATDlgEditor& editor = Make<CATDlgEditor>("Edt");
    CATDlgSpinner& spinner = Make<CATDlgSpinner>("Spn");
    CATDlgProgress& bar = Make<CATDlgProgress>("Bar");
    CATDlgRadioButton& radio = Make<CATDlgRadioButton>("Rdb");
    EventScope::RunIdle();
    const CATUnicodeString title("Title");
    int line = 0;
    const std::vector<std::pair<std::function<void()>, std::string>> changes = {
        {[this] { frame.SetTitle("t"); }, "~Frm:1"},
        {[this] { frame.SetVisibility(CATDlgHide); }, "~Frm:2"},
        {[this] { frame.SetSensitivity(CATDlgDisable); }, "~Frm:4"},
        {[this] { frame.SetShortHelp("h"); }, "~Frm:64"},
        {[this] { frame.SetLongHelp("h"); }, "~Frm:64"},
        {[this] { frame.SetHelp("h"); }, "~Frm:64"},
        {[this] { frame.SetIconName("I"); }, "~Frm:128"},
        {[this] { frame.SetDefaultOrientation(Vertical); }, "~Frm:256"},
        {[this] { frame.SetGridRowResizable(1); }, "~Frm:256"},
        {[this] { frame.SetGridColumnResizable(1); }, "~Frm:256"},
        {[this] { frame.SetGridConstraints(1, 1, 1, 1, CATGRID_LEFT); }, "~Dlg:256"},
        {[this] { dialog->SetVerticalAttachment(0, CATDlgTopOrLeft, &frame, nullptr); }, "~Dlg:256"},
        {[this] { dialog->Attach4Sides(&frame); }, "~Dlg:256"},
        {[this] { dialog->ResetAttachment(&frame, nullptr); }, "~Dlg:256"},
        {[this] { frame.SetRectDimensions(1, 2, 3, 4); }, "~Frm:512"},
        {[this] { dialog->SetDefaultButton(CATDlgWndAPPLY); }, "~Dlg:32"},
        {[&pages] { pages.SetSelectedPage(1); }, "~Tab:16"},
        {[&combo] { combo.SetLine("A"); }, "~Cmb:8"},
        {[&combo] { combo.SetSelect(0); }, "~Cmb:16"},
        {[&combo] { combo.SetVisibleTextHeight(7); }, "~Cmb:256"},
        {[&combo] { combo.ClearLine(); }, "~Cmb:24"},
        {[&list, &title] { list.SetColumnTitles(1, &title); }, "~Mul:8"},
        {[&list] { list.SetColumnItem(0, "A"); }, "~Mul:8"},
        {[&list, &line] { list.SetSelect(&line, 1); }, "~Mul:16"},
        {[&list] { list.ClearSelect(); }, "~Mul:16"},
        {[&list] { list.SetColumnTextWidth(0, 9); }, "~Mul:256"},
        {[&list] { list.ClearLine(0); }, "~Mul:24"},
        {[&editor] { editor.SetText("t"); }, "~Edt:8"},
        {[&editor] { editor.SetLine("u"); }, "~Edt:8"},
        {[&editor] { editor.ClearLine(-1); }, "~Edt:8"},
        {[&editor] { editor.SetMaxTextWidth(5); }, "~Edt:256"},
        {[&spinner] { spinner.SetValue(3.0); }, "~Spn:8"},
        {[&spinner] { spinner.SetMinMaxStep(0.0, 5.0, 1.0, 0); }, "~Spn:8"},
        {[&spinner] { spinner.SetPrecision(2, 2); }, "~Spn:8"},
        {[&bar] { bar.SetRange(0, 5); }, "~Bar:8"},
        {[&bar] { bar.StepIt(); }, "~Bar:8"},
        {[&radio] { radio.SetState(CATDlgCheck); }, "~Rdb:32"}};
    for (const auto& [change, expected] : changes)
        EXPECT_EQ(During(change), Texts{expected});
}

TEST_F(DialogObserverTest, HearsNothingWhenASetterChangesNothing) {
    CATDlgCombo& combo = Make<CATDlgCombo>("Cmb");
    CATDlgEditor& editor = Make<CATDlgEditor>("Edt");
    CATDlgMultiList& list = Make<CATDlgMultiList>("Mul");
    combo.SetLine("A");
    const auto setAll = [&, this] {
        int line = 0;
        frame.SetTitle("t");
        frame.SetShortHelp("s");
        frame.SetLongHelp("l");
        frame.SetHelp("h");
        frame.SetIconName("I", "S", "F", "D");
        frame.SetVisibility(CATDlgHide);
        frame.SetSensitivity(CATDlgDisable);
        frame.SetRectDimensions(1, 2, 3, 4);
        frame.SetDefaultOrientation(Vertical);
        dialog->SetDefaultButton(CATDlgWndAPPLY);
        combo.SetSelect(0);
        combo.SetVisibleTextHeight(7);
        combo.SetVisibleTextWidth(7);
        editor.SetVisibleTextHeight(7);
        editor.SetVisibleTextWidth(7);
        editor.SetMaxTextWidth(7);
        list.SetVisibleTextHeight(7);
        list.SetVisibleTextWidth(7);
        list.SetVisibleColumnCount(7);
        list.SetColumnTextWidth(1, 7);
        list.SetSelect(&line, 1);
        list.ClearSelect();
        combo.ClearLine(9);
        list.ClearLine(9);
        editor.ClearLine(9);
    };
    EXPECT_EQ(During(setAll).size(), 1U);
    EXPECT_EQ(During(setAll), Texts());
}

TEST_F(DialogObserverTest, IsAskedForAnIdleStepOnceWhenChangesComeOutsideAnyEvent) {
    frame.SetTitle("1");
    button.SetTitle("2");
    EXPECT_EQ(watcher.idleRequests, 1);
    EXPECT_EQ(watcher.Take(), Texts());
    EventScope::RunIdle();
    EXPECT_EQ(watcher.Take(), Texts{"~Frm:1 ~Pbt:1"});
    frame.SetTitle("3");
    EXPECT_EQ(watcher.idleRequests, 2);
    EXPECT_EQ(During([this] { button.SetTitle("4"); }), Texts{"~Frm:1 ~Pbt:1"});
    EXPECT_EQ(watcher.idleRequests, 2) << "the end of an event delivers by itself";
}

TEST_F(DialogObserverTest, HearsWhatHappenedBeforeAMessageWaits) {
    class FrontEnd : public host::MessageFrontEnd {
      public:
        explicit FrontEnd(Watcher& ioWatcher) : _watcher(ioWatcher) { host::Messages::SetFrontEnd(this); }
        ~FrontEnd() override { host::Messages::SetFrontEnd(nullptr); }
        int Show(const host::Message&) override {
            shown = _watcher.Take();
            return 0;
        }
        Texts shown;

      private:
        Watcher& _watcher;
    };
    CATDlgNotify& notify = MakeIn<CATDlgNotify>(MainWindow(), "Error", CATDlgNfyError);
    EventScope::RunIdle();
    FrontEnd frontEnd(watcher);
    {
        const EventScope event;
        frame.SetTitle("before");
        notify.DisplayBlocked("text", "");
        button.SetTitle("after");
    }
    EXPECT_EQ(frontEnd.shown.back(), "~Frm:1");
    EXPECT_EQ(watcher.Take(), Texts{"~Pbt:1"});
}

TEST_F(DialogObserverTest, HearsWhatAnObserverItselfChanges) {
    int turns = 0;
    watcher.onDelivery = [this, &turns] {
        if (++turns < 3)
            button.SetTitle(std::to_string(turns).c_str());
    };
    frame.SetTitle("1");
    EventScope::RunIdle();
    EXPECT_EQ(watcher.Take(), (Texts{"~Frm:1", "~Pbt:1", "~Pbt:1"}));
}

TEST_F(DialogObserverTest, HearsOnlyOfLaterChangesWhenItIsAddedLate) {
    const EventScope event;
    frame.SetTitle("before");
    Make<CATDlgLabel>("Before");
    Watcher late;
    button.SetTitle("after");
    EventScope::Flush();
    EXPECT_EQ(late.Take(), Texts{"~Pbt:1"});
    EXPECT_EQ(watcher.Take(), (Texts{"+Before ~Frm:1", "~Pbt:1"}));
}

TEST_F(DialogObserverTest, HearsNothingOnceItIsRemoved) {
    auto second = std::make_unique<Watcher>();
    frame.SetTitle("1");
    second.reset();
    EventScope::RunIdle();
    EXPECT_EQ(watcher.Take(), Texts{"~Frm:1"});
    DialogObserver::Remove(watcher);
    frame.SetTitle("2");
    EventScope::RunIdle();
    DialogObserver::Add(watcher);
    EventScope::RunIdle();
    EXPECT_EQ(watcher.Take(), Texts()) << "without an observer nothing is noted";
}

TEST_F(DialogObserverTest, MayBeRemovedByAnotherObserverDuringTheDelivery) {
    auto second = std::make_unique<Watcher>();
    watcher.onDelivery = [&second] { second.reset(); };
    frame.SetTitle("1");
    EventScope::RunIdle();
    EXPECT_EQ(watcher.Take(), Texts{"~Frm:1"});
    EXPECT_EQ(second, nullptr);
}

TEST_F(DialogObserverTest, HearsOfACopyWhatItHearsOfAnyWidget) {
    EXPECT_EQ(During([this] { delete new CATDlgFrame(frame); }), Texts());
    std::unique_ptr<CATDlgFrame> copy;
    EXPECT_EQ(During([this, &copy] { copy = std::make_unique<CATDlgFrame>(frame); }), Texts{"+Frm"});
    EXPECT_EQ(During([&copy] { copy.reset(); }), Texts{"-1"});
    EXPECT_EQ(During([this] { frame = CATDlgFrame(frame); }), Texts{"~Frm:1023"});
}

TEST_F(DialogObserverTest, HearsOfTheEndOfTheApplication) {
    EventScope::RunIdle();
    watcher.Take();
    application.reset();
    EXPECT_EQ(watcher.Take(), Texts{"-4"}) << "main window, dialog, frame and button";
}

} // namespace
