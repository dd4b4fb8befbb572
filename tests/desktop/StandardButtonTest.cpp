#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgEditor.h"
#include "CATDlgRadioButton.h"
#include "DesktopFixture.h"
#include "host/MessageCatalogs.h"

#include <QtTest/QTest>
#include <QtWidgets/QPushButton>

namespace desktop_test {

namespace {

const Classes okPressed = {"CATDlgDiaOKNotification"};
const Classes cancelPressed = {"CATDlgDiaCANCELNotification"};
const Classes closed = {"CATDlgWindCloseNotification"};

class StandardButtonTest : public DesktopTest {
  protected:
    StandardButtonTest()
        : DesktopTest(CATDlgWndOK | CATDlgWndCANCEL | CATDlgWndAPPLY | CATDlgWndHELP | CATDlgWndCLOSE) {}
};

TEST_F(StandardButtonTest, StandInTheOrderOfThePlatformAndTellThatTheyArePressed) {
    Open();
    std::vector<std::string> texts;
    int right = 0;
    for (const char* text : {"OK", "Apply", "Cancel", "Close", "Help"}) {
        QPushButton& button = StandardButton(text);
        EXPECT_GT(button.x(), right - 1) << text;
        right = button.geometry().right();
        QTest::mouseClick(&button, Qt::LeftButton);
    }
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgDiaOKNotification", "CATDlgDiaAPPLYNotification", "CATDlgDiaCANCELNotification",
                       "CATDlgDiaCLOSENotification", "CATDlgDiaHELPNotification"}));
    EXPECT_TRUE(Window().isVisible()) << "no button closes the dialog by itself";
}

TEST_F(StandardButtonTest, EnterPressesTheDefaultButton) {
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    Shown(*editor).setFocus();
    EXPECT_TRUE(StandardButton("OK").isDefault());
    QTest::keyClick(&Shown(*editor), Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(), okPressed);
    Dialog().SetDefaultButton(CATDlgWndAPPLY);
    Settle();
    EXPECT_TRUE(StandardButton("Apply").isDefault());
    EXPECT_FALSE(StandardButton("OK").isDefault());
    QTest::keyClick(&Shown(*editor), Qt::Key_Enter);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaAPPLYNotification"}));
}

TEST_F(StandardButtonTest, EnterPressesTheDefaultButtonFromWhatIsChosenInToo) {
    auto* const combo = new CATDlgCombo(&Dialog(), "TypeCmb", CATDlgCmbDropDown);
    combo->SetLine("A");
    auto* const check = new CATDlgCheckButton(&Dialog(), "ToleranceCkb");
    auto* const radio = new CATDlgRadioButton(&Dialog(), "FitRdb");
    Open();
    for (const CATDialog* widget :
         {static_cast<CATDialog*>(combo), static_cast<CATDialog*>(check), static_cast<CATDialog*>(radio)}) {
        Shown(*widget).setFocus();
        QTest::keyClick(&Shown(*widget), Qt::Key_Return);
        EXPECT_EQ(Command().TakeClasses(), okPressed) << widget->GetName().ConvertToChar();
    }
    EXPECT_EQ(check->GetState(), CATDlgUncheck);
    EXPECT_EQ(radio->GetState(), CATDlgUncheck);
}

TEST_F(StandardButtonTest, EnterPressesNothingWithoutDefaultButton) {
    Dialog().SetDefaultButton(0);
    auto* const editor = new CATDlgEditor(&Dialog(), "ValueEdt");
    auto* const combo = new CATDlgCombo(&Dialog(), "TypeCmb", CATDlgCmbDropDown);
    combo->SetLine("A");
    Open();
    EXPECT_FALSE(StandardButton("OK").isDefault());
    Shown(*editor).setFocus();
    QTest::keyClicks(&Shown(*editor), QStringLiteral("12"));
    QTest::keyClick(&Shown(*editor), Qt::Key_Return);
    Shown(*combo).setFocus();
    QTest::keyClick(&Shown(*combo), Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgEditModifyNotification", "CATDlgEditFocusOutNotification"}));
    EXPECT_EQ(ShownReason(), "") << "a key that does nothing is no mistake";
}

TEST_F(StandardButtonTest, EnterInAnEditorPassesTheTextOnFirstAndThenPressesTheDefaultButton) {
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    Shown(*editor).setFocus();
    QTest::keyClicks(&Shown(*editor), QStringLiteral("M8"));
    QTest::keyClick(&Shown(*editor), Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgEditModifyNotification", "CATDlgDiaOKNotification"}));
}

TEST_F(StandardButtonTest, EscapePressesCancel) {
    Open();
    QTest::keyClick(&Window(), Qt::Key_Escape);
    EXPECT_EQ(Command().TakeClasses(), cancelPressed);
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(StandardButtonTest, SpeakTheLanguageOfTheHost) {
    Open();
    host::MessageCatalogs::SetLanguage("German");
    Windows().RefreshTexts();
    EXPECT_EQ(Utf8(StandardButton("Abbrechen").text()), "Abbrechen");
    EXPECT_EQ(Utf8(StandardButton("Hilfe").text()), "&Hilfe");
    host::MessageCatalogs::SetLanguage("");
    Windows().RefreshTexts();
    EXPECT_EQ(Utf8(StandardButton("Cancel").text()), "Cancel");
}

class OkOnlyTest : public DesktopTest {
  protected:
    OkOnlyTest() : DesktopTest(CATDlgWndOK) {}
};

TEST_F(OkOnlyTest, EscapeClosesTheWindowWhereThereIsNoCancel) {
    Open();
    QTest::keyClick(&Window(), Qt::Key_Escape);
    EXPECT_EQ(Command().TakeClasses(), closed);
}

class NoButtonTest : public DesktopTest {
  protected:
    NoButtonTest() : DesktopTest(CATDlgWndNoButton) {}
};

TEST_F(NoButtonTest, HasNoButtonAndNothingForEnter) {
    Open();
    EXPECT_TRUE(Window().findChildren<QPushButton*>().isEmpty());
    QTest::keyClick(&Window(), Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    QTest::keyClick(&Window(), Qt::Key_Escape);
    EXPECT_EQ(Command().TakeClasses(), closed);
}

} // namespace

} // namespace desktop_test
