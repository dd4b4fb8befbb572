#include "CATDlgEditor.h"

#include "DialogTest.h"
#include "host/Inspector.h"

#include <climits>

namespace {

using host::DialogUser;
using host::Inspector;

class CATDlgEditorTest : public DialogTest {
  protected:
    CATDlgEditorTest() { Listen(editor); }

    void Listen(CATDlgEditor& ioEditor) {
        dialog->Hear(ioEditor, ioEditor.GetEditModifyNotification());
        dialog->Hear(ioEditor, ioEditor.GetEditFocusOutNotification());
    }
    static Texts Lines(const CATDlgEditor& iEditor) {
        Texts lines;
        for (int line = 0; line < iEditor.GetLineCount(); ++line)
            lines.push_back(Line(iEditor, line));
        return lines;
    }
    static std::string Line(const CATDlgEditor& iEditor, int iLine) {
        CATUnicodeString text("left from before");
        iEditor.GetLine(text, iLine);
        return text.ConvertToChar();
    }
    static std::string TextOf(const CATDlgEditor& iEditor) { return iEditor.GetText().ConvertToChar(); }

    CATDlgEditor& editor = Make<CATDlgEditor>("NameEdt");
};

TEST_F(CATDlgEditorTest, StartsEmptyWithoutLinesAndSizes) {
    EXPECT_EQ(editor.GetLineCount(), 0);
    EXPECT_EQ(TextOf(editor), "");
    EXPECT_EQ(Inspector::VisibleTextHeight(editor), 0);
    EXPECT_EQ(Inspector::VisibleTextWidth(editor), 0);
    EXPECT_EQ(Inspector::MaxTextWidth(editor), 0);
}

TEST_F(CATDlgEditorTest, FillsAnEmptyEditorLineByLine) {
    editor.SetLine("one", 0);
    editor.SetLine("two", 1);
    editor.SetLine("three", 2);
    EXPECT_EQ(Lines(editor), (Texts{"one", "two", "three"}));
    EXPECT_EQ(TextOf(editor), "one\ntwo\nthree");
    EXPECT_EQ(Line(editor, -1), "one\ntwo\nthree");
}

TEST_F(CATDlgEditorTest, ReplacesALineAndAppendsInAddMode) {
    editor.SetLine("one");
    editor.SetLine("two", 1);
    editor.SetLine("first");
    editor.SetLine("added", 0, CATDlgDataAdd);
    EXPECT_EQ(Lines(editor), (Texts{"first", "two", "added"}));
}

TEST_F(CATDlgEditorTest, WritesAndClearsNoLineThatIsNotThere) {
    editor.SetText("one\ntwo");
    for (const int line : {-1, 3, INT_MIN, INT_MAX})
        editor.SetLine("X", line);
    for (const int line : {-2, 2, INT_MIN, INT_MAX})
        editor.ClearLine(line);
    EXPECT_EQ(TextOf(editor), "one\ntwo");
    for (const int line : {-2, 2, INT_MIN, INT_MAX})
        EXPECT_EQ(Line(editor, line), "") << line;
}

TEST_F(CATDlgEditorTest, ClearsTheLastLineForMinusOneUntilNoneIsLeft) {
    editor.SetText("one\ntwo\nthree");
    editor.ClearLine(-1);
    EXPECT_EQ(Lines(editor), (Texts{"one", "two"}));
    editor.ClearLine(0);
    EXPECT_EQ(Lines(editor), Texts{"two"});
    editor.ClearLine(-1);
    editor.ClearLine(-1);
    EXPECT_EQ(editor.GetLineCount(), 0);
}

TEST_F(CATDlgEditorTest, KeepsEveryLineBreakOfATextThatIsSetAsAWhole) {
    const std::vector<std::pair<std::string, Texts>> texts = {{"", {}},
                                                              {"one", {"one"}},
                                                              {"one\n", {"one", ""}},
                                                              {"\n", {"", ""}},
                                                              {"\none", {"", "one"}},
                                                              {"a\n\nb", {"a", "", "b"}},
                                                              {"a\n\n", {"a", "", ""}}};
    for (const auto& [text, lines] : texts) {
        editor.SetText(text.c_str());
        EXPECT_EQ(Lines(editor), lines);
        EXPECT_EQ(TextOf(editor), text);
    }
}

TEST_F(CATDlgEditorTest, IsWrittenByTheProgramWithoutNotification) {
    editor.SetText("one");
    editor.SetLine("two", 0);
    editor.ClearLine(0);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgEditorTest, IsTypedInAndLeftByAPerson) {
    dialog->onHeard = [this] { return TextOf(editor); };
    EXPECT_EQ(Result(DialogUser::Type(editor, "M10")), "done");
    EXPECT_EQ(Result(DialogUser::LeaveField(editor)), "done");
    EXPECT_EQ(Result(DialogUser::Type(editor, "")), "done");
    EXPECT_EQ(dialog->TakeHeard(),
              (Texts{"EditModify NameEdt M10", "EditFocusOut NameEdt M10", "EditModify NameEdt"}));
}

TEST_F(CATDlgEditorTest, StaysSilentWhenTheSameTextIsTyped) {
    editor.SetText("M10");
    EXPECT_EQ(Result(DialogUser::Type(editor, "M10")), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts());
    CATDlgEditor& rules = Make<CATDlgEditor>("RulesEdt", CATDlgEdtMultiline);
    Listen(rules);
    EXPECT_EQ(Result(DialogUser::Type(rules, "one\n")), "done");
    EXPECT_EQ(Result(DialogUser::Type(rules, "one\n")), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"EditModify RulesEdt"});
}

TEST_F(CATDlgEditorTest, RefusesTypingWhenItIsReadOnlyButNotTheProgram) {
    CATDlgEditor& fixed = Make<CATDlgEditor>("OldNameEdt", CATDlgEdtReadOnly);
    Listen(fixed);
    fixed.SetLine("old");
    EXPECT_EQ(Result(DialogUser::Type(fixed, "new")), "Dlg/OldNameEdt is read-only");
    EXPECT_EQ(TextOf(fixed), "old");
    CATDlgEditor& rules = Make<CATDlgEditor>("RulesEdt", CATDlgEdtReadOnly | CATDlgEdtMultiline);
    EXPECT_EQ(Result(DialogUser::Type(rules, "new")), "Dlg/RulesEdt is read-only");
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgEditorTest, TakesSeveralLinesOnlyWithItsStyle) {
    EXPECT_EQ(Result(DialogUser::Type(editor, "a\nb")), "Dlg/NameEdt takes one line");
    EXPECT_EQ(editor.GetLineCount(), 0);
    CATDlgEditor& rules = Make<CATDlgEditor>("RulesEdt", CATDlgEdtMultiline);
    EXPECT_EQ(Result(DialogUser::Type(rules, "a\nb")), "done");
    EXPECT_EQ(Lines(rules), (Texts{"a", "b"}));
}

TEST_F(CATDlgEditorTest, CountsCharactersAgainstItsLongestText) {
    editor.SetMaxTextWidth(3);
    EXPECT_EQ(Inspector::MaxTextWidth(editor), 3);
    EXPECT_EQ(Result(DialogUser::Type(editor, "abcd")), "Dlg/NameEdt takes at most 3 characters");
    EXPECT_EQ(TextOf(editor), "");
    EXPECT_EQ(Result(DialogUser::Type(editor, "\xC3\xA4\xC3\xB6\xC3\xBC")), "done")
        << "three characters, six bytes";
    editor.SetText("longer by program");
    EXPECT_EQ(TextOf(editor), "longer by program");
    editor.SetMaxTextWidth(0);
    EXPECT_EQ(Result(DialogUser::Type(editor, "any length at all")), "done");
}

TEST_F(CATDlgEditorTest, RecordsAnyVisibleSize) {
    editor.SetVisibleTextHeight(3);
    editor.SetVisibleTextWidth(20);
    EXPECT_EQ(Inspector::VisibleTextHeight(editor), 3);
    EXPECT_EQ(Inspector::VisibleTextWidth(editor), 20);
}

} // namespace
