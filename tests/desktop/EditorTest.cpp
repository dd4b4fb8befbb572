#include "CATDlgEditor.h"
#include "CATDlgPushButton.h"
#include "DesktopFixture.h"

#include <QtGui/QPalette>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

namespace desktop_test {

namespace {

const Classes modified = {"CATDlgEditModifyNotification"};
const Classes modifiedAndLeft = {"CATDlgEditModifyNotification", "CATDlgEditFocusOutNotification"};

class EditorTest : public DesktopTest {
  protected:
    EditorTest() {
        Dialog().SetDefaultButton(0);
        _other = new CATDlgPushButton(&Dialog(), "OtherPbt");
    }

    CATDlgEditor& Make(CATDlgStyle iStyle = 0) {
        auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt", iStyle);
        return *editor;
    }
    void TypeInto(CATDlgEditor& ioEditor, const char* iText) {
        Shown(ioEditor).setFocus();
        QTest::keyClicks(&Shown(ioEditor), QString::fromUtf8(iText));
    }
    void Leave() { Shown(*_other).setFocus(); }
    static std::string TextOf(const CATDlgEditor& iEditor) { return iEditor.GetText().ConvertToChar(); }

  private:
    CATDlgPushButton* _other;
};

TEST_F(EditorTest, PassesTheTextOnWhenTheFieldIsLeft) {
    CATDlgEditor& editor = Make();
    Open();
    TypeInto(editor, "M8");
    EXPECT_EQ(TextOf(editor), "");
    Leave();
    EXPECT_EQ(TextOf(editor), "M8");
    EXPECT_EQ(Command().TakeClasses(), modifiedAndLeft);
}

TEST_F(EditorTest, PassesTheTextOnByEnterAndStays) {
    CATDlgEditor& editor = Make();
    Open();
    TypeInto(editor, "M8");
    QTest::keyClick(&Shown(editor), Qt::Key_Return);
    EXPECT_EQ(TextOf(editor), "M8");
    EXPECT_TRUE(Shown(editor).hasFocus());
    EXPECT_EQ(Command().TakeClasses(), modified);
}

TEST_F(EditorTest, EscapeDropsWhatWasTypedAndOnlyThenIsForTheDialog) {
    CATDlgEditor& editor = Make();
    editor.SetText("M8");
    Open();
    TypeInto(editor, "x");
    QTest::keyClick(&Shown(editor), Qt::Key_Escape);
    EXPECT_EQ(Utf8(ShownAs<QLineEdit>(editor).text()), "M8");
    EXPECT_EQ(Command().TakeClasses(), Classes());
    QTest::keyClick(&Shown(editor), Qt::Key_Escape);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaCANCELNotification"}));
}

TEST_F(EditorTest, EscapeInAnotherDialogDropsNothing) {
    CATDlgEditor& editor = Make();
    auto* const other = new CATDlgDialog(MainWindow(), "OtherDlg", CATDlgWndCANCEL);
    Open();
    other->SetVisibility(CATDlgShow);
    Settle();
    QTest::keyClicks(&Shown(editor), QStringLiteral("M8"));
    QTest::keyClick(&Shown(*other), Qt::Key_Escape);
    EXPECT_STREQ(editor.GetText().ConvertToChar(), "M8");
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgEditModifyNotification", "CATDlgDiaCANCELNotification"}));
}

TEST_F(EditorTest, ShowsTheTextOfTheProgramWithoutTelling) {
    CATDlgEditor& editor = Make();
    Open();
    editor.SetText("Größe");
    Settle();
    EXPECT_EQ(Utf8(ShownAs<QLineEdit>(editor).text()), "Größe");
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(EditorTest, TakesNoTypingWhenReadOnlyButShowsWhatTheProgramSets) {
    CATDlgEditor& editor = Make(CATDlgEdtReadOnly);
    editor.SetText("Point.1");
    Open();
    TypeInto(editor, "x");
    Leave();
    EXPECT_EQ(TextOf(editor), "Point.1");
    EXPECT_TRUE(ShownAs<QLineEdit>(editor).isReadOnly());
    const QPalette palette = Shown(editor).palette();
    EXPECT_EQ(palette.color(QPalette::Base), palette.color(QPalette::Window));
}

TEST_F(EditorTest, TakesNoMoreCharactersThanAllowedButShowsALongerTextOfTheProgram) {
    CATDlgEditor& editor = Make();
    editor.SetMaxTextWidth(3);
    Open();
    TypeInto(editor, "12345");
    Leave();
    EXPECT_EQ(TextOf(editor), "123");
    editor.SetText("123456");
    Settle();
    EXPECT_EQ(Utf8(ShownAs<QLineEdit>(editor).text()), "123456");
}

TEST_F(EditorTest, IsAsWideAsTheCharactersAskedFor) {
    CATDlgEditor& editor = Make();
    editor.SetVisibleTextWidth(5);
    Open();
    const QFontMetrics metrics = Shown(editor).fontMetrics();
    EXPECT_GE(Shown(editor).sizeHint().width(), metrics.horizontalAdvance(QStringLiteral("00000")));
    EXPECT_LE(Shown(editor).sizeHint().width(), metrics.horizontalAdvance(QStringLiteral("0000000000")));
}

TEST_F(EditorTest, TakesSeveralLinesWhereItHasThem) {
    CATDlgEditor& editor = Make(CATDlgEdtMultiline);
    Open();
    TypeInto(editor, "one");
    QTest::keyClick(&Shown(editor), Qt::Key_Return);
    QTest::keyClicks(&Shown(editor), QStringLiteral("two"));
    EXPECT_EQ(editor.GetLineCount(), 0);
    Leave();
    EXPECT_EQ(editor.GetLineCount(), 2);
    EXPECT_EQ(TextOf(editor), "one\ntwo");
    EXPECT_EQ(Command().TakeClasses(), modifiedAndLeft);
}

TEST_F(EditorTest, TakesNoMoreCharactersInSeveralLinesThanAllowed) {
    CATDlgEditor& editor = Make(CATDlgEdtMultiline);
    editor.SetMaxTextWidth(4);
    Open();
    TypeInto(editor, "abcdef");
    Leave();
    EXPECT_EQ(TextOf(editor), "abcd");
}

TEST_F(EditorTest, ShowsTheLinesOfTheProgramInAReadOnlyText) {
    CATDlgEditor& editor = Make(CATDlgEdtMultiline | CATDlgEdtReadOnly);
    editor.SetVisibleTextHeight(5);
    Open();
    editor.SetLine("Depth is too small.");
    editor.SetLine("Chamfer is missing.", 1);
    Settle();
    auto& field = ShownAs<QPlainTextEdit>(editor);
    EXPECT_EQ(Utf8(field.toPlainText()), "Depth is too small.\nChamfer is missing.");
    EXPECT_TRUE(field.isReadOnly());
    EXPECT_GE(field.height(), 5 * field.fontMetrics().height());
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Tab);
    EXPECT_FALSE(field.hasFocus()) << "Tab leaves the text";
}

TEST_F(EditorTest, ShowsTheHostsTextAgainWhenTheTypingIsRefused) {
    CATDlgEditor& editor = Make();
    editor.SetText("M8");
    Open();
    TypeInto(editor, "9");
    editor.SetSensitivity(CATDlgDisable); // Qt has not heard of it yet
    QTest::keyClick(&Shown(editor), Qt::Key_Return);
    EXPECT_EQ(TextOf(editor), "M8");
    EXPECT_EQ(Utf8(ShownAs<QLineEdit>(editor).text()), "M8");
    EXPECT_NE(ShownReason().find("is disabled"), std::string::npos) << ShownReason();
}

TEST_F(EditorTest, KeepsWhatIsBeingTypedWhileTheProgramChangesSomethingElse) {
    CATDlgEditor& editor = Make();
    Open();
    TypeInto(editor, "M");
    Dialog().SetTitle("Another title");
    editor.SetShortHelp("Name of the thread");
    Settle();
    QTest::keyClicks(&Shown(editor), QStringLiteral("8"));
    Leave();
    EXPECT_EQ(TextOf(editor), "M8");
}

TEST_F(EditorTest, FollowsADarkPaletteWhenReadOnly) {
    CATDlgEditor& editor = Make(CATDlgEdtReadOnly);
    Open();
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Window, Qt::black);
    QApplication::setPalette(dark);
    Settle();
    EXPECT_EQ(Shown(editor).palette().color(QPalette::Base), QColor(Qt::black));
    QApplication::setPalette(before);
}

} // namespace

} // namespace desktop_test
