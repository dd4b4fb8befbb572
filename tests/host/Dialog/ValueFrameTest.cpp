#include "host/ValueFrame.h"

#include "DialogTest.h"
#include "host/DialogDump.h"
#include "host/DialogObserver.h"
#include "host/Inspector.h"

#include <utility>

namespace {

using host::DialogObserver;
using host::DialogUser;
using host::Outcome;

// Edits a whole number of one digit.
class DigitFrame : public host::ValueFrame {
  public:
    DigitFrame(CATDialog* iParent, const CATString& iName, CATDlgStyle = 0)
        : ValueFrame(iParent, iName, CATDlgFraNoFrame) {}

    std::string ShownValue() const override { return std::to_string(digit) + "mm"; }
    bool IsEditable() const override { return isEditable; }
    bool HasSpinner() const override { return hasSpinner; }
    std::string Label() const override { return label; }

    // By program.
    void Set(int iDigit) {
        digit = iDigit;
        NoteValue();
    }

    int digit = 5;
    bool isEditable = true;
    bool hasSpinner = true;
    std::string label;
    int takes = 0;               // how often a text was offered
    std::function<void()> onSet; // runs when a person has changed the value

  protected:
    Outcome Take(const std::string& iText) override {
        ++takes;
        if (iText.size() != 1 || iText[0] < '0' || iText[0] > '9')
            return Outcome::Refused("'" + iText + "' is no digit");
        return SetByPerson(iText[0] - '0');
    }
    Outcome Step(int iSteps) override {
        if (digit + iSteps < 0 || digit + iSteps > 9)
            return Outcome::Refused("there is no digit " + std::to_string(digit + iSteps));
        return SetByPerson(digit + iSteps);
    }

  private:
    Outcome SetByPerson(int iDigit) {
        Set(iDigit);
        const std::function<void()> heard = onSet; // the frame may go in it
        if (heard)
            heard();
        return Outcome::Done();
    }
};

// The changes of one frame, as sets of ChangeKind.
class ChangeWatcher : public DialogObserver {
  public:
    explicit ChangeWatcher(const CATDialog& iWidget) : _widget(iWidget) { Add(*this); }
    ~ChangeWatcher() override { Remove(*this); }

    void OnChanges(const host::DialogChanges& iChanges) override {
        for (const auto& [widget, kinds] : iChanges.changed)
            if (widget == &_widget)
                _changes.push_back(kinds);
    }
    std::vector<unsigned int> Take() { return std::exchange(_changes, {}); }

  private:
    const CATDialog& _widget;
    std::vector<unsigned int> _changes;
};

const std::vector<unsigned int> noChange;
const std::vector<unsigned int> oneChange = {host::ChangeContent};

class ValueFrameTest : public DialogTest {
  protected:
    void ExpectShown(const std::string& iText, const std::string& iProblem) const {
        EXPECT_EQ(frame.Text(), iText);
        EXPECT_EQ(frame.Problem(), iProblem);
        EXPECT_EQ(frame.IsRefused(), !iProblem.empty());
    }
    // Type, Spin and Restore, in turn.
    Texts TryAll() {
        return {Result(DialogUser::Type(frame, "7")), Result(DialogUser::Spin(frame, 1)),
                Result(DialogUser::Restore(frame))};
    }
    void ExpectAllRefused(const std::string& iReason) {
        EXPECT_EQ(TryAll(), Texts(3, iReason));
        EXPECT_EQ(frame.digit, 5);
    }

    DigitFrame& frame = Make<DigitFrame>("D");
};

TEST_F(ValueFrameTest, ShowsItsValueAndDrawsNoTitle) {
    ExpectShown("5mm", "");
    EXPECT_FALSE(host::Inspector::ShowsTitle(frame));
}

TEST_F(ValueFrameTest, TakesNoWidgets) {
    EXPECT_EQ(TakeMisuses(), Texts());
    MakeIn<CATDlgFrame>(frame, "Inner");
    EXPECT_EQ(TakeMisuses().size(), 1U);
}

TEST_F(ValueFrameTest, ATypedValueIsTakenAndTold) {
    ChangeWatcher watcher(frame);
    EXPECT_EQ(Result(DialogUser::Type(frame, "7")), "done");
    ExpectShown("7mm", "");
    EXPECT_EQ(watcher.Take(), oneChange);
}

TEST_F(ValueFrameTest, ATextThatIsNoValueStaysWithItsReasonAndTheValueStaysInForce) {
    ChangeWatcher watcher(frame);
    EXPECT_EQ(Result(DialogUser::Type(frame, "wide")), "done");
    ExpectShown("wide", "'wide' is no digit");
    EXPECT_EQ(frame.ShownValue(), "5mm");
    EXPECT_EQ(watcher.Take(), oneChange);
    EXPECT_EQ(Result(DialogUser::Type(frame, "")), "done");
    ExpectShown("", "'' is no digit");
    EXPECT_EQ(watcher.Take(), oneChange);
}

TEST_F(ValueFrameTest, TheSameWrongTextAgainIsTriedAgainAndIsNoChange) {
    ASSERT_TRUE(DialogUser::Type(frame, "wide"));
    ChangeWatcher watcher(frame);
    EXPECT_EQ(Result(DialogUser::Type(frame, "wide")), "done");
    EXPECT_EQ(frame.takes, 2);
    ExpectShown("wide", "'wide' is no digit");
    EXPECT_EQ(watcher.Take(), noChange);
}

TEST_F(ValueFrameTest, TheNextTextThatIsTakenClearsTheWrongOne) {
    ASSERT_TRUE(DialogUser::Type(frame, "wide"));
    EXPECT_EQ(Result(DialogUser::Type(frame, "5")), "done");
    ExpectShown("5mm", "");
}

TEST_F(ValueFrameTest, AChangedValueClearsTheWrongText) {
    ASSERT_TRUE(DialogUser::Type(frame, "wide"));
    frame.Set(6);
    ExpectShown("6mm", "");
    ASSERT_TRUE(DialogUser::Type(frame, "wide"));
    EXPECT_EQ(Result(DialogUser::Spin(frame, 2)), "done");
    ExpectShown("8mm", "");
}

TEST_F(ValueFrameTest, EscapeRestoresTheValue) {
    ASSERT_TRUE(DialogUser::Type(frame, "wide"));
    ChangeWatcher watcher(frame);
    EXPECT_EQ(Result(DialogUser::Restore(frame)), "done");
    ExpectShown("5mm", "");
    EXPECT_EQ(watcher.Take(), oneChange);
    EXPECT_EQ(Result(DialogUser::Restore(frame)), "done");
    EXPECT_EQ(watcher.Take(), noChange);
    EXPECT_EQ(frame.takes, 1);
}

TEST_F(ValueFrameTest, TypingWhatIsShownAlreadyChangesNothing) {
    ChangeWatcher watcher(frame);
    EXPECT_EQ(Result(DialogUser::Type(frame, "5mm")), "done");
    EXPECT_EQ(frame.takes, 0);
    EXPECT_EQ(watcher.Take(), noChange);
}

TEST_F(ValueFrameTest, TypingTheValueOverAWrongTextRestoresIt) {
    ASSERT_TRUE(DialogUser::Type(frame, "wide"));
    EXPECT_EQ(Result(DialogUser::Type(frame, "5mm")), "done");
    ExpectShown("5mm", "");
    EXPECT_EQ(frame.takes, 1);
}

TEST_F(ValueFrameTest, IsSteppedUpAndDownUntilThereIsNoStep) {
    EXPECT_EQ(Result(DialogUser::Spin(frame, 3)), "done");
    EXPECT_EQ(frame.digit, 8);
    EXPECT_EQ(Result(DialogUser::Spin(frame, -1)), "done");
    EXPECT_EQ(frame.digit, 7);
    EXPECT_EQ(Result(DialogUser::Spin(frame, 3)), "there is no digit 10");
    EXPECT_EQ(frame.digit, 7);
}

TEST_F(ValueFrameTest, ARefusedStepLeavesTheWrongText) {
    ASSERT_TRUE(DialogUser::Type(frame, "wide"));
    EXPECT_EQ(Result(DialogUser::Spin(frame, 9)), "there is no digit 14");
    ExpectShown("wide", "'wide' is no digit");
}

TEST_F(ValueFrameTest, HasArrowsOnlyWhereTheyAreWanted) {
    frame.hasSpinner = false;
    EXPECT_EQ(Result(DialogUser::Spin(frame, 1)), "Dlg/D has no arrows");
    EXPECT_EQ(frame.digit, 5);
}

TEST_F(ValueFrameTest, ATextOfTwoLinesCannotBeTyped) {
    EXPECT_EQ(Result(DialogUser::Type(frame, "7\n")), "Dlg/D takes one line");
    ExpectShown("5mm", "");
}

TEST_F(ValueFrameTest, AReadOnlyValueIsNeitherTypedNorStepped) {
    frame.isEditable = false;
    EXPECT_EQ(TryAll(), (Texts{"Dlg/D is read-only", "Dlg/D is read-only", "done"}));
    EXPECT_EQ(frame.digit, 5);
}

TEST_F(ValueFrameTest, NobodyUsesWhatCannotBeReached) {
    frame.SetSensitivity(CATDlgDisable);
    ExpectAllRefused("Dlg/D is disabled");
    frame.SetSensitivity(CATDlgEnable);
    dialog->SetSensitivity(CATDlgDisable);
    ExpectAllRefused("Dlg/D is disabled with Dlg");
    dialog->SetSensitivity(CATDlgEnable);
    frame.SetVisibility(CATDlgHide);
    ExpectAllRefused("Dlg/D is hidden");
    frame.SetVisibility(CATDlgShow);
    MakeDialog("Modal", CATDlgWndModal | CATDlgWndOK);
    ExpectAllRefused("Dlg/D is blocked by the modal window Modal");
}

TEST_F(ValueFrameTest, MayGoWhileItsValueIsTyped) {
    frame.onSet = [this] { delete &frame; };
    EXPECT_EQ(Result(DialogUser::Type(frame, "7")), "done");
    EXPECT_TRUE(host::Inspector::Children(*dialog).empty());
}

TEST_F(ValueFrameTest, MayGoWhileItIsStepped) {
    frame.onSet = [this] { delete &frame; };
    EXPECT_EQ(Result(DialogUser::Spin(frame, 1)), "done");
    EXPECT_TRUE(host::Inspector::Children(*dialog).empty());
}

TEST_F(ValueFrameTest, AnotherValueSetByWhoeverHearsOfTheTypedOneStays) {
    frame.onSet = [this] { frame.Set(2); };
    EXPECT_EQ(Result(DialogUser::Type(frame, "7")), "done");
    ExpectShown("2mm", "");
}

TEST_F(ValueFrameTest, IsDumpedWithWhatAPersonSees) {
    EXPECT_EQ(host::DialogDump::Of(frame), "ValueFrame D spinner text=\"5mm\"\n");
    frame.hasSpinner = false;
    frame.label = "Depth";
    ASSERT_TRUE(DialogUser::Type(frame, "\"wide\""));
    EXPECT_EQ(host::DialogDump::Of(frame),
              "ValueFrame D label=\"Depth\" text=\"\\\"wide\\\"\" problem=\"'\\\"wide\\\"' is no digit\"\n");
    frame.isEditable = false;
    frame.Set(6);
    EXPECT_EQ(host::DialogDump::Of(frame), "ValueFrame D read-only label=\"Depth\" text=\"6mm\"\n");
}

} // namespace
