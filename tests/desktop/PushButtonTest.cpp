#include "CATDlgEditor.h"
#include "CATDlgPushButton.h"
#include "DesktopFixture.h"

#include <QtTest/QTest>
#include <QtWidgets/QPushButton>

namespace desktop_test {

namespace {

class PushButtonTest : public DesktopTest {
  protected:
    PushButtonTest() : _button(new CATDlgPushButton(&Dialog(), "NewPbt")) { _button->SetTitle("New & old"); }

    CATDlgPushButton& HostButton() { return *_button; }
    QPushButton& Button() { return ShownAs<QPushButton>(*_button); }

  private:
    CATDlgPushButton* _button;
};

const Classes pressed = {"CATDlgPushBActivateNotification"};

TEST_F(PushButtonTest, IsPressedByTheMouse) {
    Open();
    QTest::mouseClick(&Button(), Qt::LeftButton);
    EXPECT_EQ(Command().TakeClasses(), pressed);
}

TEST_F(PushButtonTest, IsPressedBySpaceAndByEnterWhenItHasTheFocus) {
    Open();
    Button().setFocus();
    QTest::keyClick(&Button(), Qt::Key_Space);
    EXPECT_EQ(Command().TakeClasses(), pressed);
    QTest::keyClick(&Button(), Qt::Key_Return);
    EXPECT_EQ(Command().TakeClasses(), pressed) << "and the default button is not";
    EXPECT_TRUE(StandardButton("OK").isDefault()) << "which stays the same wherever the focus is";
    EXPECT_FALSE(Button().isDefault());
}

TEST_F(PushButtonTest, IsNotPressedWhenItIsDisabledOrItsParentIs) {
    Open();
    HostButton().SetSensitivity(CATDlgDisable);
    Settle();
    EXPECT_FALSE(Button().isEnabled());
    QTest::mouseClick(&Button(), Qt::LeftButton);
    HostButton().SetSensitivity(CATDlgEnable);
    Dialog().SetSensitivity(CATDlgDisable);
    Settle();
    EXPECT_FALSE(Button().isEnabled());
    EXPECT_EQ(Command().TakeClasses(), Classes());
    Dialog().SetSensitivity(CATDlgEnable);
    Settle();
    QTest::mouseClick(&Button(), Qt::LeftButton);
    EXPECT_EQ(Command().TakeClasses(), pressed);
}

TEST_F(PushButtonTest, TellsWhyAPressIsRefused) {
    Open();
    HostButton().SetVisibility(CATDlgHide); // Qt has not heard of it yet
    QTest::mouseClick(&Button(), Qt::LeftButton);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_NE(ShownReason().find("is hidden"), std::string::npos) << ShownReason();
}

TEST_F(PushButtonTest, ShowsItsTitleAsItIsWithAMnemonic) {
    Open();
    EXPECT_EQ(Utf8(Button().text()), "&New && old");
    EXPECT_EQ(Utf8(Button().shortcut().toString()), "Alt+N");
    HostButton().SetTitle("Old");
    Settle();
    EXPECT_EQ(Utf8(Button().text()), "&Old");
}

TEST_F(PushButtonTest, IsFlatWithoutShadow) {
    auto* const flat = new CATDlgPushButton(&Dialog(), "FlatPbt", CATDlgPusNoShadow);
    Open();
    EXPECT_TRUE(ShownAs<QPushButton>(*flat).isFlat());
    EXPECT_FALSE(Button().isFlat());
}

TEST_F(PushButtonTest, PassesOnTheTextInAnEditorBeforeItIsPressed) {
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    std::string textWhenPressed;
    const Reaction press("CATDlgPushBActivateNotification",
                         [&] { textWhenPressed = editor->GetText().ConvertToChar(); });
    Shown(*editor).setFocus();
    QTest::keyClicks(&Shown(*editor), QStringLiteral("M8"));
    EXPECT_STREQ(editor->GetText().ConvertToChar(), "");
    QTest::keyClick(&Button(), Qt::Key_Space); // as a mnemonic would, without leaving the editor
    EXPECT_EQ(textWhenPressed, "M8");
}

} // namespace

} // namespace desktop_test
