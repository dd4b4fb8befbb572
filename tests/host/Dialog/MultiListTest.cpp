#include "CATDlgMultiList.h"

#include "CATError.h"
#include "CATErrorMacros.h"
#include "DialogTest.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"

#include <climits>

namespace {

using host::DialogUser;
using host::Inspector;

class CATDlgMultiListTest : public DialogTest {
  protected:
    CATDlgMultiListTest() {
        Listen(list);
        Listen(several);
    }

    void Listen(CATDlgMultiList& ioList) {
        dialog->Hear(ioList, ioList.GetListSelectNotification());
        dialog->Hear(ioList, ioList.GetListActivateNotification());
        dialog->Hear(ioList, ioList.GetListColumnActivateNotification());
        dialog->Hear(ioList, ioList.GetListCellModifyNotification());
    }
    static void SetTitles(CATDlgMultiList& ioList, const Texts& iTitles) {
        std::vector<CATUnicodeString> titles;
        for (const std::string& title : iTitles)
            titles.emplace_back(title.c_str());
        ioList.SetColumnTitles(static_cast<int>(titles.size()), titles.data());
    }
    static void Append(CATDlgMultiList& ioList, const Texts& iRow) {
        for (std::size_t column = 0; column < iRow.size(); ++column)
            ioList.SetColumnItem(static_cast<int>(column), iRow[column].c_str());
    }
    static std::string Item(const CATDlgMultiList& iList, int iLine, int iColumn) {
        CATUnicodeString text("left from before");
        iList.GetColumnItem(iColumn, text, iLine);
        return text.ConvertToChar();
    }
    static std::vector<Texts> Rows(const CATDlgMultiList& iList) {
        std::vector<Texts> rows;
        for (int line = 0; line < iList.GetLineCount(); ++line) {
            rows.emplace_back();
            for (int column = 0; column < iList.GetColumnCount(); ++column)
                rows.back().push_back(Item(iList, line, column));
        }
        return rows;
    }
    static std::vector<int> Selection(const CATDlgMultiList& iList) {
        std::vector<int> lines(static_cast<std::size_t>(iList.GetSelectCount()), -7);
        iList.GetSelect(lines.data(), iList.GetSelectCount());
        return lines;
    }
    static void Select(CATDlgMultiList& ioList, std::vector<int> iLines, int iNotify = CATDlgNoNotification) {
        ioList.SetSelect(iLines.data(), static_cast<int>(iLines.size()), iNotify);
    }

    CATDlgMultiList& list = Make<CATDlgMultiList>("ParameterMul");
    CATDlgMultiList& several = Make<CATDlgMultiList>("SwapMul", CATDlgLstMultisel);
};

TEST_F(CATDlgMultiListTest, StartsWithoutColumnsLinesAndSelection) {
    EXPECT_EQ(list.GetColumnCount(), 0);
    EXPECT_EQ(list.GetLineCount(), 0);
    EXPECT_EQ(list.GetSelectCount(), 0);
    EXPECT_EQ(list.GetActivatedColumn(), -1);
    EXPECT_EQ(Inspector::VisibleColumnCount(list), 0);
    EXPECT_FALSE(Inspector::IsMultiSelection(list));
    EXPECT_TRUE(Inspector::IsMultiSelection(several));
}

TEST_F(CATDlgMultiListTest, FixesItsColumnsWithTheFirstTitles) {
    SetTitles(list, {"Name", "Value"});
    SetTitles(list, {"A", "B", "C"});
    EXPECT_EQ(list.GetColumnCount(), 2);
    CATUnicodeString title;
    list.GetColumnTitle(1, title);
    EXPECT_STREQ(title.ConvertToChar(), "Value");
    for (const int column : {-1, 2, INT_MIN, INT_MAX}) {
        title = "left from before";
        list.GetColumnTitle(column, title);
        EXPECT_STREQ(title.ConvertToChar(), "") << column;
    }
}

TEST_F(CATDlgMultiListTest, TakesNoTitlesThatAreNone) {
    const CATUnicodeString title("Name");
    list.SetColumnTitles(0, &title);
    list.SetColumnTitles(-3, &title);
    list.SetColumnTitles(2, nullptr);
    EXPECT_EQ(list.GetColumnCount(), 0);
    list.SetColumnTitles(1, &title);
    EXPECT_EQ(list.GetColumnCount(), 1);
}

TEST_F(CATDlgMultiListTest, AppendsARowWithItsFirstColumnAndFillsTheLastRowWithTheOthers) {
    SetTitles(list, {"Name", "Value", "Unit"});
    Append(list, {"Diameter", "10", "mm"});
    Append(list, {"Depth"});
    list.SetColumnItem(2, "mm");
    EXPECT_EQ(Rows(list), (std::vector<Texts>{{"Diameter", "10", "mm"}, {"Depth", "", "mm"}}));
}

TEST_F(CATDlgMultiListTest, DoesNotLookAtTheLineWhenItAdds) {
    SetTitles(list, {"Name", "Value"});
    list.SetColumnItem(0, "A", 40, CATDlgDataAdd);
    list.SetColumnItem(1, "1", 1, CATDlgDataAdd);
    list.SetColumnItem(0, "B", 0, CATDlgDataAdd);
    list.SetColumnItem(1, "2", -5, CATDlgDataAdd);
    EXPECT_EQ(Rows(list), (std::vector<Texts>{{"A", "1"}, {"B", "2"}}));
}

TEST_F(CATDlgMultiListTest, MakesTheFirstRowForAnyColumn) {
    SetTitles(list, {"Name", "Value"});
    list.SetColumnItem(1, "1");
    EXPECT_EQ(Rows(list), (std::vector<Texts>{{"", "1"}}));
    list.SetColumnItem(1, "2");
    EXPECT_EQ(Rows(list), (std::vector<Texts>{{"", "2"}}));
}

TEST_F(CATDlgMultiListTest, ModifiesALineThatIsThere) {
    SetTitles(list, {"Name", "Value"});
    Append(list, {"A", "1"});
    Append(list, {"B", "2"});
    list.SetColumnItem(1, "one and a long text behind it", 0, CATDlgDataModify);
    list.SetColumnItem(0, "", 1, CATDlgDataModify);
    EXPECT_EQ(Rows(list), (std::vector<Texts>{{"A", "one and a long text behind it"}, {"", "2"}}));
}

TEST_F(CATDlgMultiListTest, ModifiesNothingThatIsNotThere) {
    SetTitles(list, {"Name", "Value"});
    list.SetColumnItem(0, "X", 0, CATDlgDataModify);
    EXPECT_EQ(list.GetLineCount(), 0);
    Append(list, {"A", "1"});
    for (const int line : {-1, 1, INT_MIN, INT_MAX})
        list.SetColumnItem(0, "X", line, CATDlgDataModify);
    for (const int column : {-1, 2, INT_MIN, INT_MAX}) {
        list.SetColumnItem(column, "X", 0, CATDlgDataModify);
        list.SetColumnItem(column, "X");
    }
    EXPECT_EQ(Rows(list), (std::vector<Texts>{{"A", "1"}}));
}

TEST_F(CATDlgMultiListTest, GivesAnEmptyTextForACellThatIsNotThere) {
    Append(list, {"A", "1"});
    EXPECT_EQ(Item(list, 0, 1), "1");
    for (const int number : {-1, 2, INT_MIN, INT_MAX}) {
        EXPECT_EQ(Item(list, number, 0), "") << number;
        EXPECT_EQ(Item(list, 0, number), "") << number;
    }
}

TEST_F(CATDlgMultiListTest, GrowsItsColumnsWithoutTitlesUpToALimit) {
    Append(list, {"A", "1"});
    EXPECT_EQ(list.GetColumnCount(), 2);
    list.SetColumnItem(255, "last");
    EXPECT_EQ(list.GetColumnCount(), 256);
    list.SetColumnItem(256, "too far");
    list.SetColumnItem(INT_MAX, "too far");
    EXPECT_EQ(list.GetColumnCount(), 256);
    EXPECT_EQ(list.GetLineCount(), 1);
    EXPECT_EQ(Item(list, 0, 255), "last");
}

TEST_F(CATDlgMultiListTest, MovesTheSelectionWithItsLinesWhenLinesGo) {
    for (const char* text : {"A", "B", "C", "D", "E"})
        Append(several, {text});
    Select(several, {1, 3, 4});
    several.ClearLine(0);
    EXPECT_EQ(Selection(several), (std::vector<int>{0, 2, 3}));
    several.ClearLine(2);
    EXPECT_EQ(Selection(several), (std::vector<int>{0, 2}));
    several.ClearLine(1);
    EXPECT_EQ(Selection(several), (std::vector<int>{0, 1}));
    EXPECT_EQ(Rows(several), (std::vector<Texts>{{"B"}, {"E"}}));
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgMultiListTest, ClearsAllLinesAndTheSelectionButNotTheColumnsForMinusOne) {
    SetTitles(list, {"Name"});
    Append(list, {"A"});
    Select(list, {0});
    list.ClearLine();
    EXPECT_EQ(list.GetLineCount(), 0);
    EXPECT_EQ(list.GetSelectCount(), 0);
    EXPECT_EQ(list.GetColumnCount(), 1);
    Append(list, {"B"});
    EXPECT_EQ(Rows(list), (std::vector<Texts>{{"B"}}));
}

TEST_F(CATDlgMultiListTest, CountsHowOftenAllItsLinesWereTakenAway) {
    for (const char* text : {"A", "B"})
        Append(list, {text});
    list.ClearLine(0);
    list.ClearLine(0);
    list.ClearLine(0);
    list.ClearSelect();
    EXPECT_EQ(Inspector::Clearings(list), 0);
    list.ClearLine(-1);
    list.ClearLine();
    EXPECT_EQ(Inspector::Clearings(list), 2) << "whether there were any or not";
    list = several;
    EXPECT_EQ(Inspector::Clearings(list), 3) << "those of the other list have come in their place";
    EXPECT_EQ(Inspector::Clearings(several), 0);
}

TEST_F(CATDlgMultiListTest, ClearsNoLineThatIsNotThere) {
    Append(list, {"A"});
    Select(list, {0});
    for (const int line : {-2, 1, INT_MIN, INT_MAX})
        list.ClearLine(line);
    EXPECT_EQ(Rows(list), (std::vector<Texts>{{"A"}}));
    EXPECT_EQ(Selection(list), std::vector<int>{0});
}

TEST_F(CATDlgMultiListTest, SortsTheSelectionAndTakesEachLineOnce) {
    for (const char* text : {"A", "B", "C"})
        Append(several, {text});
    Select(several, {2, 0, 2});
    EXPECT_EQ(Selection(several), (std::vector<int>{0, 2}));
}

TEST_F(CATDlgMultiListTest, TakesTheFirstLineAloneWithoutMultiSelection) {
    for (const char* text : {"A", "B", "C"})
        Append(list, {text});
    Select(list, {9, 2, 0});
    EXPECT_EQ(Selection(list), std::vector<int>{2});
}

TEST_F(CATDlgMultiListTest, SelectsSilentlyUnlessTheProgramAsks) {
    Append(list, {"A"});
    Select(list, {0});
    EXPECT_EQ(dialog->TakeHeard(), Texts());
    Select(list, {0}, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"ListSelect ParameterMul"});
}

TEST_F(CATDlgMultiListTest, LeavesLinesThatAreNotThereOut) {
    for (const char* text : {"A", "B", "C"})
        Append(several, {text});
    Select(several, {-1, 1, 3, INT_MAX, INT_MIN});
    EXPECT_EQ(Selection(several), std::vector<int>{1});
}

TEST_F(CATDlgMultiListTest, ChangesAndSendsNothingWhenNoneOfTheLinesIsThere) {
    for (const char* text : {"A", "B"})
        Append(several, {text});
    Select(several, {1});
    Select(several, {2}, CATDlgWithNotification);
    Select(several, {-1, 17}, CATDlgWithNotification);
    several.SetSelect(nullptr, 3, CATDlgWithNotification);
    EXPECT_EQ(Selection(several), std::vector<int>{1});
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgMultiListTest, ClearsItsSelectionForACountOfZero) {
    Append(list, {"A"});
    Select(list, {0});
    list.SetSelect(nullptr, 0, CATDlgWithNotification);
    EXPECT_EQ(list.GetSelectCount(), 0);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"ListSelect ParameterMul"});
    Select(list, {0});
    list.ClearSelect();
    EXPECT_EQ(list.GetSelectCount(), 0);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgMultiListTest, GivesAsManySelectedLinesAsThereIsRoomFor) {
    for (const char* text : {"A", "B", "C"})
        Append(several, {text});
    Select(several, {0, 1, 2});
    std::vector<int> lines(2, -7);
    several.GetSelect(lines.data(), 2);
    EXPECT_EQ(lines, (std::vector<int>{0, 1}));
    lines.assign(5, -7);
    several.GetSelect(lines.data(), 5);
    EXPECT_EQ(lines, (std::vector<int>{0, 1, 2, -1, -1}));
    several.GetSelect(nullptr, 5);
    several.GetSelect(lines.data(), -1);
    EXPECT_EQ(lines, (std::vector<int>{0, 1, 2, -1, -1}));
}

TEST_F(CATDlgMultiListTest, SelectsAndActivatesItsLineAndThenItsCellOnADoubleClick) {
    Append(list, {"A", "1"});
    Append(list, {"B", "2"});
    dialog->onHeard = [this] {
        return std::to_string(Selection(list).at(0)) + "/" + std::to_string(list.GetActivatedColumn());
    };
    EXPECT_EQ(Result(DialogUser::Activate(list, 1, 1)), "done");
    EXPECT_EQ(dialog->TakeHeard(), (Texts{"ListSelect ParameterMul 1/-1", "ListActivate ParameterMul 1/-1",
                                          "ListColumnActivate ParameterMul 1/1"}));
    EXPECT_EQ(list.GetActivatedColumn(), 1);
}

TEST_F(CATDlgMultiListTest, RefusesAPersonWhatIsNotThere) {
    Append(list, {"A", "1"});
    Append(list, {"B", "2"});
    EXPECT_EQ(Result(DialogUser::Select(list, {2})), "Dlg/ParameterMul has no line 2, it has 2");
    EXPECT_EQ(Result(DialogUser::Select(list, {-1})), "Dlg/ParameterMul has no line -1, it has 2");
    EXPECT_EQ(Result(DialogUser::Select(list, {0, 1})), "Dlg/ParameterMul takes one selected line");
    EXPECT_EQ(Result(DialogUser::Activate(list, 2, 0)), "Dlg/ParameterMul has no line 2, it has 2");
    EXPECT_EQ(Result(DialogUser::Activate(list, -1, 0)), "Dlg/ParameterMul has no line -1, it has 2");
    EXPECT_EQ(Result(DialogUser::Activate(list, 0, 2)), "Dlg/ParameterMul has no column 2");
    EXPECT_EQ(Result(DialogUser::Activate(list, 0, -1)), "Dlg/ParameterMul has no column -1");
    EXPECT_EQ(list.GetSelectCount(), 0);
    EXPECT_EQ(list.GetActivatedColumn(), -1);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgMultiListTest, LetsAPersonSelectSeveralLinesAndNone) {
    for (const char* text : {"A", "B", "C"})
        Append(several, {text});
    EXPECT_EQ(Result(DialogUser::Select(several, {2, 0})), "done");
    EXPECT_EQ(Selection(several), (std::vector<int>{0, 2}));
    EXPECT_EQ(Result(DialogUser::Select(several, {})), "done");
    EXPECT_EQ(several.GetSelectCount(), 0);
    EXPECT_EQ(dialog->TakeHeard(), (Texts{"ListSelect SwapMul", "ListSelect SwapMul"}));
}

TEST_F(CATDlgMultiListTest, SurvivesItsDestructionByEachCallbackOfADoubleClick) {
    const Texts sequence = {"ListSelect TempMul", "ListActivate TempMul", "ListColumnActivate TempMul"};
    for (std::size_t fatal = 0; fatal < sequence.size(); ++fatal) {
        CATDlgMultiList& temporary = Make<CATDlgMultiList>("TempMul");
        Listen(temporary);
        Append(temporary, {"A"});
        std::size_t heard = 0;
        dialog->onHeard = [&temporary, &heard, fatal] {
            if (heard++ == fatal)
                delete &temporary;
            return std::string();
        };
        EXPECT_EQ(Result(DialogUser::Activate(temporary, 0, 0)), "done");
        EXPECT_EQ(dialog->TakeHeard(),
                  Texts(sequence.begin(), sequence.begin() + static_cast<int>(fatal) + 1));
    }
}

TEST_F(CATDlgMultiListTest, RecordsVisibleSizesAndColumnWidths) {
    list.SetVisibleTextHeight(18);
    list.SetVisibleTextWidth(20);
    list.SetVisibleColumnCount(3);
    list.SetColumnTextWidth(2, 12);
    list.SetColumnTextWidth(-1, 99);
    EXPECT_EQ(Inspector::VisibleTextHeight(list), 18);
    EXPECT_EQ(Inspector::VisibleTextWidth(list), 20);
    EXPECT_EQ(Inspector::VisibleColumnCount(list), 3);
    EXPECT_EQ(Inspector::ColumnTextWidth(list, 2), 12);
    for (const int column : {-1, 0, 3, INT_MAX})
        EXPECT_EQ(Inspector::ColumnTextWidth(list, column), 0) << column;
}

TEST_F(CATDlgMultiListTest, TellsTheColumnOfTheLastDoubleClick) {
    SetTitles(list, {"Name", "Value"});
    Append(list, {"A", "1"});
    Append(list, {"B", "2"});
    for (const int column : {1, 0, 1}) {
        EXPECT_EQ(Result(DialogUser::Activate(list, column, column)), "done");
        EXPECT_EQ(list.GetActivatedColumn(), column);
        EXPECT_EQ(Selection(list), std::vector<int>{column});
    }
    list.ClearLine();
    EXPECT_EQ(list.GetActivatedColumn(), 1);
}

TEST_F(CATDlgMultiListTest, SelectsTheDoubleClickedLineAloneAmongSeveral) {
    for (const char* text : {"A", "B", "C"})
        Append(several, {text});
    Select(several, {0, 2});
    EXPECT_EQ(Result(DialogUser::Activate(several, 1, 0)), "done");
    EXPECT_EQ(Selection(several), std::vector<int>{1});
}

TEST_F(CATDlgMultiListTest, KeepsItsSelectionWhileCellsAreWritten) {
    for (const char* text : {"A", "B", "C"})
        Append(several, {text, "1"});
    Select(several, {0, 2});
    several.SetColumnItem(0, "a", 0, CATDlgDataModify);
    several.SetColumnItem(1, "2", 2, CATDlgDataModify);
    Append(several, {"D"});
    EXPECT_EQ(Selection(several), (std::vector<int>{0, 2}));
    EXPECT_EQ(dialog->TakeHeard(), Texts()) << "writing by program is silent";
}

TEST_F(CATDlgMultiListTest, TakesAHundredTitlesAndAWidthForEach) {
    Texts titles;
    for (int column = 0; column < 100; ++column)
        titles.push_back("T" + std::to_string(column));
    SetTitles(list, titles);
    for (int column = 0; column < 100; ++column)
        list.SetColumnTextWidth(column, column + 1);
    ASSERT_EQ(list.GetColumnCount(), 100);
    Append(list, titles);
    CATUnicodeString title;
    for (int column = 0; column < 100; ++column) {
        list.GetColumnTitle(column, title);
        EXPECT_EQ(title.ConvertToChar(), titles[static_cast<std::size_t>(column)]);
        EXPECT_EQ(Inspector::ColumnTextWidth(list, column), column + 1);
        EXPECT_EQ(Item(list, 0, column), titles[static_cast<std::size_t>(column)]);
    }
}

TEST_F(CATDlgMultiListTest, KeepsItsSizesWhenItsLinesGoAndTakesNewOnes) {
    list.SetVisibleTextHeight(18);
    list.SetVisibleColumnCount(3);
    list.SetColumnTextWidth(1, 12);
    Append(list, {"A", "1"});
    list.ClearLine();
    EXPECT_EQ(Inspector::VisibleTextHeight(list), 18);
    EXPECT_EQ(Inspector::VisibleColumnCount(list), 3);
    EXPECT_EQ(Inspector::ColumnTextWidth(list, 1), 12);
    list.SetVisibleTextHeight(2);
    list.SetVisibleColumnCount(10);
    list.SetColumnTextWidth(1, 3);
    EXPECT_EQ(Inspector::VisibleTextHeight(list), 2);
    EXPECT_EQ(Inspector::VisibleColumnCount(list), 10);
    EXPECT_EQ(Inspector::ColumnTextWidth(list, 1), 3);
}

TEST_F(CATDlgMultiListTest, IsNotKeptFromSelectingItsLineAgain) {
    Append(list, {"A"});
    EXPECT_EQ(Result(DialogUser::Select(list, {0})), "done");
    EXPECT_EQ(Result(DialogUser::Select(list, {0})), "done");
    EXPECT_EQ(dialog->TakeHeard(), (Texts{"ListSelect ParameterMul", "ListSelect ParameterMul"}));
}

TEST_F(CATDlgMultiListTest, RaisesAnErrorWhenACellIsMadeToFail) {
    SetTitles(list, {"Name", "Value"});
    Append(list, {"D", "10mm"});
    const auto raisedBy = [](const std::function<void()>& iWrite) {
        std::string raised;
        host::FaultPoints::FailCall(1, "list cell");
        CATTry {
            iWrite();
        }
        CATCatch(CATError, error) {
            raised = error->GetMsgId();
            error->Release();
        }
        CATEndTry;
        host::FaultPoints::Stop();
        return raised;
    };
    EXPECT_EQ(raisedBy([this] { list.SetColumnItem(1, "12mm", 0, CATDlgDataModify); }), "ListCell");
    EXPECT_EQ(raisedBy([this] { list.SetColumnItem(0, "T"); }), "ListCell");
    EXPECT_EQ(Rows(list), std::vector<Texts>({{"D", "10mm"}})) << "neither written nor appended";
    list.SetColumnItem(1, "12mm", 0, CATDlgDataModify);
    list.SetColumnItem(0, "T");
    EXPECT_EQ(Rows(list), std::vector<Texts>({{"D", "12mm"}, {"T", ""}})) << "the next calls work";
}

TEST_F(CATDlgMultiListTest, TakesLittleMoreMemoryThanItsTexts) {
    const std::string text(15, 'x'); // 75 characters a row
    const int rows = 100000;
    for (int row = 0; row < rows; ++row)
        Append(list, Texts(5, text));
    EXPECT_EQ(list.GetLineCount(), rows);
    EXPECT_LT(Inspector::BytesOfLines(list) / static_cast<std::size_t>(rows), 130U);
    EXPECT_EQ(Item(list, rows - 1, 4), text);
}

} // namespace
