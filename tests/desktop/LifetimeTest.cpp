#include "CATDlgCombo.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgPushButton.h"
#include "DesktopFixture.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace desktop_test {

namespace {

class LifetimeTest : public DesktopTest {};

TEST_F(LifetimeTest, DialogsThatAreThereBeforeTheDesktopAreShownToo) {
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    EXPECT_NE(Windows().WindowOf(Dialog()), nullptr) << "the fixture makes its dialog before the desktop";
    EXPECT_EQ(Windows().WidgetOf(*button), nullptr) << "made in the middle of an event";
    Settle();
    EXPECT_NE(Windows().WidgetOf(*button), nullptr);
}

TEST_F(LifetimeTest, AWindowIsHiddenUntilTheProgramShowsIt) {
    Settle();
    EXPECT_FALSE(Window().isVisible());
    Dialog().SetVisibility(CATDlgShow);
    EXPECT_FALSE(Window().isVisible()) << "windows follow at the end of the event";
    Settle();
    EXPECT_TRUE(Window().isVisible());
    Dialog().SetVisibility(CATDlgHide);
    Settle();
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(LifetimeTest, AWidgetGoesWithItsHostWidget) {
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    Open();
    const QPointer<QWidget> shown(&Shown(*button));
    delete button;
    Settle();
    EXPECT_TRUE(shown.isNull());
}

TEST_F(LifetimeTest, AButtonMayDestroyItselfWhenItIsPressed) {
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    Open();
    const QPointer<QWidget> shown(&Shown(*button));
    const Reaction destroy("CATDlgPushBActivateNotification", [button] { delete button; });
    QTest::mouseClick(shown, Qt::LeftButton);
    EXPECT_EQ(destroy.Count(), 1);
    ASSERT_FALSE(shown.isNull()) << "it is still handling the click";
    EXPECT_FALSE(shown->isVisible());
    Settle();
    EXPECT_TRUE(shown.isNull());
}

TEST_F(LifetimeTest, ADialogMayBeDestroyedWhileAClickInItIsOnItsWay) {
    auto* const second = new CATDlgDialog(MainWindow(), "SecondDlg", CATDlgWndOK);
    auto* const button = new CATDlgPushButton(second, "NewPbt");
    Open();
    second->SetVisibility(CATDlgShow);
    Settle();
    const QPointer<QWidget> window(&Shown(*second));
    const Reaction destroy("CATDlgPushBActivateNotification",
                           [second] { second->RequestDelayedDestruction(); });
    QTest::mouseClick(&Shown(*button), Qt::LeftButton);
    EXPECT_EQ(destroy.Count(), 1);
    ASSERT_FALSE(window.isNull());
    EXPECT_FALSE(window->isVisible());
    Settle();
    EXPECT_TRUE(window.isNull());
}

TEST_F(LifetimeTest, AComboMayBeReplacedByOneOfTheSameNameWhenALineIsChosen) {
    auto* combo = new CATDlgCombo(&Dialog(), "DiameterCmb", CATDlgCmbDropDown);
    combo->SetLine("M8");
    combo->SetLine("M10");
    Open();
    const QPointer<QWidget> shown(&Shown(*combo));
    const Reaction replace("CATDlgComboSelectNotification", [this, &combo] {
        combo->RequestDelayedDestruction();
        combo = new CATDlgCombo(&Dialog(), "DiameterCmb", CATDlgCmbDropDown);
        combo->SetLine("G1/2");
    });
    QTest::keyClick(shown, Qt::Key_Down);
    EXPECT_EQ(replace.Count(), 1);
    EXPECT_EQ(ShownAs<QComboBox>(*combo).count(), 1);
    Settle();
    EXPECT_TRUE(shown.isNull());
    EXPECT_EQ(Utf8(ShownAs<QComboBox>(*combo).itemText(0)), "G1/2");
}

TEST_F(LifetimeTest, AListMayDestroyItselfWhenALineIsChosen) {
    auto* const combo = new CATDlgCombo(&Dialog(), "TypeCmb");
    combo->SetLine("A");
    combo->SetLine("B");
    Open();
    const QPointer<QWidget> shown(&Shown(*combo));
    const Reaction destroy("CATDlgComboSelectNotification", [combo] { delete combo; });
    QTest::keyClick(shown, Qt::Key_Down);
    EXPECT_EQ(destroy.Count(), 1);
    Settle();
    EXPECT_TRUE(shown.isNull());
}

TEST_F(LifetimeTest, AnEditorMayDestroyItselfWhenItsTextChanges) {
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    const QPointer<QWidget> shown(&Shown(*editor));
    const Reaction destroy("CATDlgEditModifyNotification", [editor] { delete editor; });
    shown->setFocus();
    QTest::keyClicks(shown, QStringLiteral("M8"));
    QTest::keyClick(shown, Qt::Key_Return);
    EXPECT_EQ(destroy.Count(), 1);
    Settle();
    EXPECT_TRUE(shown.isNull());
}

TEST_F(LifetimeTest, ADialogIsDestroyedByItsOwnCancelButton) {
    Open();
    const QPointer<QWidget> window(&Window());
    const Reaction destroy("CATDlgDiaCANCELNotification", [this] { Dialog().RequestDelayedDestruction(); });
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_EQ(destroy.Count(), 1);
    Settle();
    EXPECT_TRUE(window.isNull());
}

TEST_F(LifetimeTest, WhatTheProgramDestroysBetweenTwoEventsIsGoneBeforeTheNextDrawing) {
    auto* const combo = new CATDlgCombo(&Dialog(), "TypeCmb");
    combo->SetLine("A");
    Open();
    Shown(*combo).update(); // a drawing waits
    QMetaObject::invokeMethod(
        qApp, [combo] { delete combo; }, Qt::QueuedConnection);
    Settle();
    Settle();
    EXPECT_EQ(Windows().WidgetOf(*combo), nullptr);
}

TEST_F(LifetimeTest, ATextThatIsBeingTypedIsLostWithItsWindowWithoutHarm) {
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    Shown(*editor).setFocus();
    QTest::keyClicks(&Shown(*editor), QStringLiteral("M8"));
    Dialog().SetVisibility(CATDlgHide);
    Settle();
    Settle();
    EXPECT_EQ(Utf8(ShownAs<QLineEdit>(*editor).text()), "") << "the host refuses what nobody can type";
    EXPECT_STREQ(editor->GetText().ConvertToChar(), "");
}

TEST_F(LifetimeTest, AFrameTakesItsContentAlong) {
    auto* const frame = new CATDlgFrame(&Dialog(), "ThreadFrm");
    auto* const editor = new CATDlgEditor(frame, "PitchEdt");
    Open();
    const QPointer<QWidget> shown(&Shown(*editor));
    frame->RequestDelayedDestruction();
    Settle();
    EXPECT_TRUE(shown.isNull());
    EXPECT_TRUE(Window().isVisible());
}

} // namespace

} // namespace desktop_test
