// Lists with columns.

#include "CATDlgMultiList.h"

#include "Panels.h"

namespace {

class MultiLists : public DialogTest {
  protected:
    std::string Cell(int iColumn, int iLine) const {
        CATUnicodeString text("untouched");
        list->GetColumnItem(iColumn, text, iLine);
        return text.ConvertToChar();
    }
    // All cells, a text for each line.
    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        for (int line = 0; line < list->GetLineCount(); ++line) {
            std::string text;
            for (int column = 0; column < list->GetColumnCount(); ++column)
                text += (column == 0 ? "" : "|") + Cell(column, line);
            lines.push_back(text);
        }
        return lines;
    }
    std::vector<int> Selected() const {
        std::vector<int> lines(static_cast<std::size_t>(list->GetSelectCount()));
        list->GetSelect(lines.data(), list->GetSelectCount());
        return lines;
    }
    void Select(std::vector<int> iLines, int iNotify = 0) {
        list->SetSelect(iLines.data(), static_cast<int>(iLines.size()), iNotify);
    }
    void SetTitles(const std::vector<CATUnicodeString>& iTitles) {
        list->SetColumnTitles(static_cast<int>(iTitles.size()), iTitles.data());
    }
    void FillThree() {
        SetTitles({"Name", "Value"});
        for (const char* name : {"a", "b", "c"}) {
            list->SetColumnItem(0, name);
            list->SetColumnItem(1, "1");
        }
    }

    CATDlgMultiList* list = new CATDlgMultiList(panel, "List", CATDlgLstMultisel);
};

typedef std::vector<std::string> Texts;
typedef std::vector<int> Numbers;

} // namespace

ASSUMED(MultiLists, TheTitlesFixTheColumns, "recalled: number and titles in one call") {
    SetTitles({"Name", "Value", "Tolerance"});
    EXPECT_EQ(3, list->GetColumnCount());
    CATUnicodeString title;
    list->GetColumnTitle(1, title);
    EXPECT_STREQ("Value", title.ConvertToChar());
    list->GetColumnTitle(3, title);
    EXPECT_STREQ("", title.ConvertToChar());
}

CERTAIN(MultiLists, TheColumnsAreSetOnceInTheLifeOfAList) {
    SetTitles({"Name", "Value"});
    SetTitles({"Only"});
    EXPECT_EQ(2, list->GetColumnCount());
}

ASSUMED(MultiLists, ColumnZeroAppendsALineAndTheOthersFillTheLastOne,
        "open: the panels pass line numbers that only this rule brings into one line") {
    SetTitles({"Name", "Value", "Tolerance"});
    list->SetColumnItem(0, "a", 1, 64);
    list->SetColumnItem(1, "1", 1, 64);
    list->SetColumnItem(2, "x", 7, 64);
    list->SetColumnItem(0, "b");
    list->SetColumnItem(2, "y");
    EXPECT_EQ((Texts{"a|1|x", "b||y"}), Lines());
}

ASSUMED(MultiLists, AnotherColumnOfAnEmptyListMakesItsLine, "open: nothing that is written gets lost") {
    SetTitles({"Name", "Value"});
    list->SetColumnItem(1, "1");
    EXPECT_EQ(Texts{"|1"}, Lines());
}

ASSUMED(MultiLists, AColumnThatCannotBeThereTakesNothing, "open: refused rather than crashed on") {
    FillThree();
    list->SetColumnItem(2, "x");
    list->SetColumnItem(-1, "x");
    EXPECT_EQ((Texts{"a|1", "b|1", "c|1"}), Lines());
}

ASSUMED(MultiLists, TheModifyModeReplacesAnExistingLineOnly,
        "open: a line that is not there changes nothing") {
    FillThree();
    list->SetColumnItem(1, "2", 1, CATDlgDataModify);
    list->SetColumnItem(1, "3", 3, CATDlgDataModify);
    list->SetColumnItem(1, "4", -1, CATDlgDataModify);
    EXPECT_EQ((Texts{"a|1", "b|2", "c|1"}), Lines());
}

ASSUMED(MultiLists, ACellThatWasNeverWrittenIsEmpty, "open: so is one that is not there") {
    SetTitles({"Name", "Value"});
    list->SetColumnItem(0, "a");
    EXPECT_EQ("", Cell(1, 0));
    EXPECT_EQ("", Cell(0, 1));
    EXPECT_EQ("", Cell(0, -1));
    EXPECT_EQ("", Cell(5, 0));
}

ASSUMED(MultiLists, MinusOneClearsAllLinesAndANumberThatLine, "recalled: as for combos") {
    FillThree();
    list->ClearLine(1);
    EXPECT_EQ((Texts{"a|1", "c|1"}), Lines());
    list->ClearLine(5);
    EXPECT_EQ(2, list->GetLineCount());
    list->ClearLine(-1);
    EXPECT_EQ(0, list->GetLineCount());
    EXPECT_EQ(2, list->GetColumnCount());
}

CERTAIN(MultiLists, LinesOfAMultiSelectionListAreSelectedTogether) {
    FillThree();
    Select({0, 2});
    EXPECT_EQ((Numbers{0, 2}), Selected());
}

CERTAIN(MultiLists, AListOfDefaultStyleHasOneSelectedLine) {
    list = new CATDlgMultiList(panel, "Single");
    FillThree();
    Select({1, 2});
    EXPECT_EQ(1, list->GetSelectCount());
}

CERTAIN(MultiLists, ASelectionByProgramIsSilentUnlessAskedFor) {
    FillThree();
    Hear(*list, list->GetListSelectNotification(), "selected");
    Select({1}, 0);
    EXPECT_EQ(Journal(), journal);
    Select({0}, 1);
    EXPECT_EQ(Journal{"selected"}, journal);
}

ASSUMED(MultiLists, SelectingLinesThatAreNotThereChangesNothing, "open: as for combos") {
    FillThree();
    Hear(*list, list->GetListSelectNotification(), "selected");
    Select({1});
    Select({3}, 1);
    Select({-1}, 1);
    EXPECT_EQ(Numbers{1}, Selected());
    EXPECT_EQ(Journal(), journal);
}

ASSUMED(MultiLists, TheSelectionIsClearedAndFollowsItsLines, "recalled for clearing, open for following") {
    FillThree();
    Select({1, 2});
    list->ClearLine(1);
    EXPECT_EQ(Numbers{1}, Selected());
    list->ClearSelect();
    EXPECT_EQ(0, list->GetSelectCount());
    Select({0});
    list->ClearLine(-1);
    EXPECT_EQ(0, list->GetSelectCount());
}

CERTAIN(MultiLists, SelectingAndDoubleClickingHaveTheirNotifications) {
    Hear(*list, list->GetListSelectNotification(), "selected");
    Hear(*list, list->GetListActivateNotification(), "line");
    Hear(*list, list->GetListColumnActivateNotification(), "cell");
    Hear(*list, list->GetListCellModifyNotification(), "changed");
    Send(*list, list->GetListSelectNotification());
    Send(*list, list->GetListActivateNotification());
    Send(*list, list->GetListColumnActivateNotification());
    Send(*list, list->GetListCellModifyNotification());
    EXPECT_EQ((Journal{"selected", "line", "cell", "changed"}), journal);
}

ASSUMED(MultiLists, NoColumnIsActivatedBeforeADoubleClick, "open: -1, as for no selection") {
    FillThree();
    EXPECT_EQ(-1, list->GetActivatedColumn());
}

CERTAIN(MultiLists, VisibleSizesLeaveTheLinesAlone) {
    FillThree();
    list->SetVisibleTextHeight(7);
    list->SetVisibleTextWidth(40);
    list->SetVisibleColumnCount(1);
    list->SetColumnTextWidth(0, 20);
    EXPECT_EQ((Texts{"a|1", "b|1", "c|1"}), Lines());
}
