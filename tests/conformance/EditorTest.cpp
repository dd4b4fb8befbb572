// Editors: lines of text.

#include "CATDlgEditor.h"

#include "Panels.h"

namespace {

class Editors : public DialogTest {
  protected:
    std::string Line(int iLine) const {
        CATUnicodeString text("untouched");
        editor->GetLine(text, iLine);
        return text.ConvertToChar();
    }

    CATDlgEditor* editor = new CATDlgEditor(panel, "Editor");
};

} // namespace

CERTAIN(Editors, AnEmptyEditorHasNoLines) {
    EXPECT_EQ(0, editor->GetLineCount());
    EXPECT_EQ("", Line(-1));
}

ASSUMED(Editors, SettingTheLineBehindTheLastAppends,
        "open: the rule editor fills the lines 0, 1, 2 of an empty editor") {
    editor->SetLine("one", 0);
    editor->SetLine("two", 1);
    editor->SetLine("three", 2);
    EXPECT_EQ(3, editor->GetLineCount());
    EXPECT_EQ("two", Line(1));
}

ASSUMED(Editors, SettingALineReplacesIt, "recalled: modifying is the default mode") {
    editor->SetLine("one");
    editor->SetLine("eins");
    EXPECT_EQ(1, editor->GetLineCount());
    EXPECT_EQ("eins", Line(0));
}

ASSUMED(Editors, ALineFurtherBehindChangesNothing, "open: no empty lines are made up") {
    editor->SetLine("one", 0);
    editor->SetLine("far", 5);
    editor->SetLine("before", -2);
    EXPECT_EQ(1, editor->GetLineCount());
    EXPECT_EQ("one", Line(-1));
}

CERTAIN(Editors, MinusOneGivesTheWholeText) {
    editor->SetLine("one", 0);
    editor->SetLine("two", 1);
    EXPECT_EQ("one\ntwo", Line(-1));
}

CERTAIN(Editors, MinusOneClearsTheLastLine) {
    editor->SetLine("one", 0);
    editor->SetLine("two", 1);
    editor->ClearLine(-1);
    EXPECT_EQ(1, editor->GetLineCount());
    EXPECT_EQ("one", Line(-1));
    editor->ClearLine(-1);
    EXPECT_EQ(0, editor->GetLineCount());
    editor->ClearLine(-1);
    EXPECT_EQ(0, editor->GetLineCount());
}

CERTAIN(Editors, TheCountIsRightAfterEachClearedLine) {
    for (int line = 0; line < 4; ++line)
        editor->SetLine("line", line);
    for (int left = 3; left >= 0; --left) {
        editor->ClearLine(0);
        EXPECT_EQ(left, editor->GetLineCount());
    }
}

ASSUMED(Editors, TheWholeTextIsSetAndRead, "recalled: each line break begins a line") {
    editor->SetText("one\ntwo");
    EXPECT_EQ(2, editor->GetLineCount());
    EXPECT_EQ("two", Line(1));
    EXPECT_STREQ("one\ntwo", editor->GetText().ConvertToChar());
    editor->SetText("");
    EXPECT_EQ(0, editor->GetLineCount());
    editor->SetText("one\n");
    EXPECT_STREQ("one\n", editor->GetText().ConvertToChar());
}

ASSUMED(Editors, AReadOnlyEditorTakesTextFromTheProgram, "deduced: only typing is refused") {
    auto* const shown = new CATDlgEditor(panel, "Shown", CATDlgEdtReadOnly);
    shown->SetLine("old name");
    EXPECT_STREQ("old name", shown->GetText().ConvertToChar());
}

ASSUMED(Editors, AChangeByProgramIsNotNotified, "open: the notification tells of a person's change") {
    Hear(*editor, editor->GetEditModifyNotification(), "changed");
    editor->SetLine("one");
    editor->SetText("two");
    editor->ClearLine(-1);
    EXPECT_EQ(Journal(), journal);
    Send(*editor, editor->GetEditModifyNotification());
    EXPECT_EQ(Journal{"changed"}, journal);
}

ASSUMED(Editors, LeavingTheFieldHasItsNotification, "recalled") {
    Hear(*editor, editor->GetEditFocusOutNotification(), "left");
    Send(*editor, editor->GetEditFocusOutNotification());
    EXPECT_EQ(Journal{"left"}, journal);
}

CERTAIN(Editors, VisibleSizesLeaveTheTextAlone) {
    editor->SetLine("a rather long text");
    editor->SetVisibleTextHeight(4);
    editor->SetVisibleTextWidth(10);
    editor->SetMaxTextWidth(5);
    EXPECT_EQ("a rather long text", Line(0));
}
