#include "CATDlgCombo.h"

#include "CATError.h"
#include "CATErrorMacros.h"
#include "DialogTest.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"

#include <climits>

namespace {

using host::DialogUser;
using host::Inspector;

class CATDlgComboTest : public DialogTest {
  protected:
    CATDlgComboTest() {
        dialog->Hear(combo, combo.GetComboSelectNotification());
        dialog->Hear(combo, combo.GetComboDropNotification());
        dialog->onHeard = [this] { return std::to_string(combo.GetSelect()); };
    }

    void Fill(const Texts& iLines) {
        for (const std::string& line : iLines)
            combo.SetLine(line.c_str());
    }
    Texts Lines() const {
        Texts lines;
        for (int line = 0; line < combo.GetLineCount(); ++line)
            lines.push_back(Line(line));
        return lines;
    }
    std::string Line(int iLine) const {
        CATUnicodeString text("left from before");
        combo.GetLine(text, iLine);
        return text.ConvertToChar();
    }

    CATDlgCombo& combo = Make<CATDlgCombo>("TypeCmb");
};

TEST_F(CATDlgComboTest, StartsWithoutLinesAndSelection) {
    EXPECT_EQ(combo.GetLineCount(), 0);
    EXPECT_EQ(combo.GetSelect(), -1);
    EXPECT_EQ(Inspector::VisibleTextHeight(combo), 0);
    EXPECT_EQ(Inspector::VisibleTextWidth(combo), 0);
}

TEST_F(CATDlgComboTest, AppendsLinesAndSelectsNone) {
    Fill({"Hole", "Slot"});
    EXPECT_EQ(Lines(), (Texts{"Hole", "Slot"}));
    EXPECT_EQ(combo.GetSelect(), -1);
}

TEST_F(CATDlgComboTest, InsertsBeforeALineAndKeepsTheSelectionOnItsText) {
    Fill({"A", "B", "C"});
    combo.SetSelect(1);
    combo.SetLine("before B", 1, CATDlgDataAdd);
    EXPECT_EQ(Lines(), (Texts{"A", "before B", "B", "C"}));
    EXPECT_EQ(combo.GetSelect(), 2);
    combo.SetLine("behind", 3, CATDlgDataAdd);
    EXPECT_EQ(combo.GetSelect(), 2) << "a line inserted behind the selected one moves nothing";
    combo.SetLine("last", combo.GetLineCount(), CATDlgDataAdd);
    EXPECT_EQ(Lines(), (Texts{"A", "before B", "B", "behind", "C", "last"}));
}

TEST_F(CATDlgComboTest, ReplacesALineInModifyMode) {
    Fill({"A", "B"});
    combo.SetSelect(1);
    combo.SetLine("new B", 1, CATDlgDataModify);
    EXPECT_EQ(Lines(), (Texts{"A", "new B"}));
    EXPECT_EQ(combo.GetSelect(), 1);
}

TEST_F(CATDlgComboTest, WritesNoLineThatIsNotThere) {
    Fill({"A", "B"});
    for (const int line : {-2, 3, INT_MIN, INT_MAX})
        combo.SetLine("X", line, CATDlgDataAdd);
    for (const int line : {-1, 2, INT_MIN, INT_MAX})
        combo.SetLine("X", line, CATDlgDataModify);
    EXPECT_EQ(Lines(), (Texts{"A", "B"}));
}

TEST_F(CATDlgComboTest, GivesAnEmptyTextForALineThatIsNotThere) {
    Fill({"A"});
    EXPECT_EQ(Line(0), "A");
    for (const int line : {-1, 1, INT_MIN, INT_MAX})
        EXPECT_EQ(Line(line), "") << line;
}

TEST_F(CATDlgComboTest, MovesTheSelectionWithItsLineWhenLinesGo) {
    Fill({"A", "B", "C", "D"});
    combo.SetSelect(2);
    combo.ClearLine(3);
    EXPECT_EQ(combo.GetSelect(), 2);
    combo.ClearLine(0);
    EXPECT_EQ(combo.GetSelect(), 1);
    combo.ClearLine(1);
    EXPECT_EQ(combo.GetSelect(), -1) << "the selection goes with its line";
    EXPECT_EQ(Lines(), Texts{"B"});
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgComboTest, ClearsAllLinesForMinusOne) {
    Fill({"A", "B"});
    combo.SetSelect(1);
    combo.ClearLine();
    EXPECT_EQ(combo.GetLineCount(), 0);
    EXPECT_EQ(combo.GetSelect(), -1);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgComboTest, ClearsNoLineThatIsNotThere) {
    Fill({"A", "B"});
    combo.SetSelect(0);
    for (const int line : {-2, 2, INT_MIN, INT_MAX})
        combo.ClearLine(line);
    EXPECT_EQ(Lines(), (Texts{"A", "B"}));
    EXPECT_EQ(combo.GetSelect(), 0);
}

TEST_F(CATDlgComboTest, SelectsSilentlyUnlessTheProgramAsks) {
    Fill({"A", "B"});
    combo.SetSelect(1);
    EXPECT_EQ(combo.GetSelect(), 1);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
    combo.SetSelect(0, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"ComboSelect TypeCmb 0"});
}

TEST_F(CATDlgComboTest, IsNotifiedAgainOfTheLineThatIsSelectedAlready) {
    Fill({"A"});
    combo.SetSelect(0, CATDlgWithNotification);
    combo.SetSelect(0, CATDlgWithNotification);
    EXPECT_EQ(Result(DialogUser::Choose(combo, 0)), "done");
    EXPECT_EQ(dialog->TakeHeard(),
              (Texts{"ComboSelect TypeCmb 0", "ComboSelect TypeCmb 0", "ComboSelect TypeCmb 0"}));
}

TEST_F(CATDlgComboTest, SelectsNoLineThatIsNotThereAndStaysSilent) {
    combo.SetSelect(0, CATDlgWithNotification);
    EXPECT_EQ(combo.GetSelect(), -1) << "an empty combo has no line 0";
    Fill({"A", "B"});
    combo.SetSelect(1);
    for (const int line : {-1, 2, INT_MIN, INT_MAX})
        combo.SetSelect(line, CATDlgWithNotification);
    combo.SetSelect("Z", CATDlgWithNotification);
    combo.SetSelect(CATUnicodeString(), CATDlgWithNotification);
    EXPECT_EQ(combo.GetSelect(), 1);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgComboTest, SelectsTheFirstLineOfAText) {
    Fill({"A", "B", "B", "b"});
    combo.SetSelect("B", CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"ComboSelect TypeCmb 1"});
    combo.SetSelect("b");
    EXPECT_EQ(combo.GetSelect(), 3) << "texts are compared exactly";
}

TEST_F(CATDlgComboTest, IsOpenedAndChosenFromByAPerson) {
    Fill({"A", "B"});
    EXPECT_EQ(Result(DialogUser::OpenList(combo)), "done");
    EXPECT_EQ(Result(DialogUser::Choose(combo, 1)), "done");
    EXPECT_EQ(Result(DialogUser::ChooseText(combo, "A")), "done");
    EXPECT_EQ(dialog->TakeHeard(),
              (Texts{"ComboDrop TypeCmb -1", "ComboSelect TypeCmb 1", "ComboSelect TypeCmb 0"}));
}

TEST_F(CATDlgComboTest, RefusesAPersonALineThatIsNotThere) {
    Fill({"A", "B"});
    EXPECT_EQ(Result(DialogUser::Choose(combo, 2)), "Dlg/TypeCmb has no line 2, it has 2");
    EXPECT_EQ(Result(DialogUser::Choose(combo, -1)), "Dlg/TypeCmb has no line -1, it has 2");
    EXPECT_EQ(Result(DialogUser::ChooseText(combo, "Z")), "Dlg/TypeCmb has no line 'Z'");
    EXPECT_EQ(combo.GetSelect(), -1);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgComboTest, RecordsAnyVisibleSize) {
    for (const int size : {7, 0, -1}) {
        combo.SetVisibleTextHeight(size);
        combo.SetVisibleTextWidth(size * 2);
        EXPECT_EQ(Inspector::VisibleTextHeight(combo), size);
        EXPECT_EQ(Inspector::VisibleTextWidth(combo), size * 2);
    }
}

TEST_F(CATDlgComboTest, CanBeClearedByItsOwnCallback) {
    Fill({"A", "B"});
    dialog->onHeard = [this] {
        combo.ClearLine();
        return "cleared";
    };
    EXPECT_EQ(Result(DialogUser::Choose(combo, 1)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"ComboSelect TypeCmb cleared"});
    EXPECT_EQ(combo.GetSelect(), -1);
}

TEST_F(CATDlgComboTest, RaisesAnErrorWhenItsSelectionIsMadeToFail) {
    Fill({"A", "B"});
    combo.SetSelect(0);
    host::FaultPoints::FailCall(1, "combo selection");
    std::string raised;
    CATTry {
        combo.SetSelect(1, CATDlgWithNotification);
    }
    CATCatch(CATError, error) {
        raised = error->GetMsgId();
        error->Release();
    }
    CATEndTry;
    EXPECT_EQ(raised, "ComboSelection");
    EXPECT_EQ(combo.GetSelect(), 0);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
    combo.SetSelect(1, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"ComboSelect TypeCmb 1"}) << "the next call works";
}

} // namespace
