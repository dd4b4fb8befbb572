// Combos: lines and selection.

#include "CATDlgCombo.h"

#include "Panels.h"

namespace {

class Combos : public DialogTest {
  protected:
    void Fill(const std::vector<const char*>& iLines) {
        for (const char* line : iLines)
            combo->SetLine(line, -1, 64);
    }
    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        for (int line = 0; line < combo->GetLineCount(); ++line) {
            CATUnicodeString text;
            combo->GetLine(text, line);
            lines.push_back(text.ConvertToChar());
        }
        return lines;
    }
    std::string SelectedText() const {
        CATUnicodeString text("untouched");
        combo->GetLine(text, combo->GetSelect());
        return text.ConvertToChar();
    }
    void HearSelection() { Hear(*combo, combo->GetComboSelectNotification(), "selected"); }

    CATDlgCombo* combo = new CATDlgCombo(panel, "Combo");
};

} // namespace

CERTAIN(Combos, MinusOneWithTheAddModeAppends) {
    Fill({"one", "two", "two"});
    EXPECT_EQ((std::vector<std::string>{"one", "two", "two"}), Lines());
    EXPECT_EQ(3, combo->GetLineCount());
}

ASSUMED(Combos, AppendingIsTheDefaultAndSelectsNothing, "open: a filled combo waits for its choice") {
    combo->SetLine("one");
    EXPECT_EQ(1, combo->GetLineCount());
    EXPECT_EQ(-1, combo->GetSelect());
}

CERTAIN(Combos, WithoutSelectionTheNumberIsNegativeAndTheTextEmpty) {
    EXPECT_LT(combo->GetSelect(), 0);
    EXPECT_EQ("", SelectedText());
    Fill({"one"});
    EXPECT_EQ("", SelectedText());
}

CERTAIN(Combos, ALineIsSelectedByItsNumberFromZero) {
    Fill({"one", "two"});
    combo->SetSelect(1);
    EXPECT_EQ(1, combo->GetSelect());
    EXPECT_EQ("two", SelectedText());
}

CERTAIN(Combos, ALineIsSelectedByItsText) {
    Fill({"one", "two"});
    HearSelection();
    combo->SetSelect(CATUnicodeString("two"), 1);
    EXPECT_EQ(1, combo->GetSelect());
    EXPECT_EQ(Journal{"selected"}, journal);
}

CERTAIN(Combos, ASelectionIsNotifiedOnlyWhenAskedForAndAtOnce) {
    Fill({"one", "two"});
    HearSelection();
    combo->SetSelect(0);
    combo->SetSelect(1, 0);
    EXPECT_EQ(Journal(), journal);
    combo->SetSelect(0, 1);
    journal.push_back("returned");
    EXPECT_EQ((Journal{"selected", "returned"}), journal);
}

ASSUMED(Combos, ALineThatIsNotThereChangesNothingAndSendsNothing,
        "open: selecting the first line of an empty combo stays silent") {
    HearSelection();
    combo->SetSelect(0, 1);
    Fill({"one", "two"});
    combo->SetSelect(1);
    for (const int line : {-1, 2, 99})
        combo->SetSelect(line, 1);
    combo->SetSelect(CATUnicodeString("three"), 1);
    EXPECT_EQ(1, combo->GetSelect());
    EXPECT_EQ(Journal(), journal);
}

ASSUMED(Combos, TheSelectedLineIsNotifiedAgain, "open: a person may choose the same line once more") {
    Fill({"one"});
    combo->SetSelect(0);
    HearSelection();
    combo->SetSelect(0, 1);
    EXPECT_EQ(Journal{"selected"}, journal);
}

ASSUMED(Combos, MinusOneClearsAllLinesAndTheSelection, "recalled: on a combo it means all") {
    Fill({"one", "two"});
    combo->SetSelect(1);
    combo->ClearLine(-1);
    EXPECT_EQ(0, combo->GetLineCount());
    EXPECT_EQ(-1, combo->GetSelect());
}

ASSUMED(Combos, OneLineIsClearedAndTheSelectionFollowsItsLine,
        "recalled for the line, open for the selection") {
    Fill({"one", "two", "three"});
    combo->SetSelect(2);
    combo->ClearLine(0);
    EXPECT_EQ((std::vector<std::string>{"two", "three"}), Lines());
    EXPECT_EQ("three", SelectedText());
    combo->ClearLine(1);
    EXPECT_EQ(-1, combo->GetSelect());
    combo->ClearLine(7);
    EXPECT_EQ((std::vector<std::string>{"two"}), Lines());
}

ASSUMED(Combos, ALineIsReplacedInTheModifyMode, "open: as for the other widgets with lines") {
    Fill({"one", "two"});
    combo->SetLine("zwei", 1, CATDlgDataModify);
    combo->SetLine("drei", 2, CATDlgDataModify);
    EXPECT_EQ((std::vector<std::string>{"one", "zwei"}), Lines());
}

ASSUMED(Combos, ALineThatIsNotThereIsEmpty, "recalled for the operation, open for the line") {
    Fill({"one"});
    for (const int line : {-1, 1}) {
        CATUnicodeString text("untouched");
        combo->GetLine(text, line);
        EXPECT_STREQ("", text.ConvertToChar()) << line;
    }
}

CERTAIN(Combos, TheListTellsThatItOpens) {
    Hear(*combo, combo->GetComboDropNotification(), "opened");
    Send(*combo, combo->GetComboDropNotification());
    EXPECT_EQ(Journal{"opened"}, journal);
}

CERTAIN(Combos, VisibleSizesOfAnyValueLeaveTheLinesAlone) {
    Fill({"one", "two"});
    combo->SetVisibleTextHeight(0);
    combo->SetVisibleTextWidth(30);
    EXPECT_EQ(2, combo->GetLineCount());
}
