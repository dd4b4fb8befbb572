#include "CATDlgEditor.h"
#include "CATDlgNotify.h"
#include "CATDlgPushButton.h"
#include "DesktopFixture.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <optional>

namespace desktop_test {

namespace {

// What a person saw of a message.
struct Seen {
    std::string title;
    std::string text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool isModal = false;
};

class MessageTest : public DesktopTest {
  protected:
    // As soon as a message is up: looks at it, does iMeanwhile, and presses a key.
    void AnswerWith(
        Qt::Key iKey, std::function<void()> iMeanwhile = [] {}) {
        DoSoon([this, iKey, iMeanwhile = std::move(iMeanwhile)] {
            auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            _seen = Seen{Utf8(box->windowTitle()), Utf8(box->text()), box->icon(), box->isModal()};
            iMeanwhile();
            QTest::keyClick(box, iKey);
        });
    }

    std::optional<Seen> _seen;
};

TEST_F(MessageTest, ShowsAnErrorAndWaitsForTheKey) {
    CATDlgNotify* const notify = new CATDlgNotify(MainWindow(), "Error", CATDlgNfyError);
    AnswerWith(Qt::Key_Return);
    const int answer = notify->DisplayBlocked("No feature <type> was found.", "Feature error");
    ASSERT_TRUE(_seen.has_value());
    EXPECT_EQ(_seen->text, "No feature <type> was found.");
    EXPECT_EQ(_seen->title, "Feature error");
    EXPECT_EQ(_seen->icon, QMessageBox::Critical);
    EXPECT_TRUE(_seen->isModal);
    EXPECT_EQ(answer, static_cast<int>(CATDlgWndOK));
    EXPECT_EQ(TakeMessages().size(), 1U);
}

TEST_F(MessageTest, ShowsAWarningAndIsAnsweredByEscapeToo) {
    CATDlgNotify* const notify = new CATDlgNotify(MainWindow(), "Warning", CATDlgNfyWarning);
    AnswerWith(Qt::Key_Escape);
    EXPECT_EQ(notify->DisplayBlocked("The depth is large.", "Warning"), static_cast<int>(CATDlgWndOK));
    ASSERT_TRUE(_seen.has_value());
    EXPECT_EQ(_seen->icon, QMessageBox::Warning);
    TakeMessages();
}

TEST_F(MessageTest, BlocksEverythingElseAndSaysWhy) {
    CATDlgNotify* const notify = new CATDlgNotify(MainWindow(), "Error", CATDlgNfyError);
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    Open();
    std::string reason;
    AnswerWith(Qt::Key_Return, [&] {
        QTest::mouseClick(&Shown(*button), Qt::LeftButton);
        reason = ShownReason();
    });
    notify->DisplayBlocked("Stop.", "Error");
    ASSERT_TRUE(_seen.has_value());
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_NE(reason.find("blocked by a message"), std::string::npos) << reason;
    QTest::mouseClick(&Shown(*button), Qt::LeftButton);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgPushBActivateNotification"}))
        << "now it is free again";
    TakeMessages();
}

TEST_F(MessageTest, ShowsWhatHasChangedBeforeItWaits) {
    CATDlgNotify* const notify = new CATDlgNotify(MainWindow(), "Error", CATDlgNfyError);
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    Open();
    std::string titleBehind;
    const Reaction fail("CATDlgPushBActivateNotification", [&] {
        Dialog().SetTitle("Changed in the same event");
        notify->DisplayBlocked("Stop.", "Error");
    });
    AnswerWith(Qt::Key_Return, [&] { titleBehind = Utf8(Window().windowTitle()); });
    QTest::mouseClick(&Shown(*button), Qt::LeftButton);
    EXPECT_EQ(titleBehind, "Changed in the same event");
    TakeMessages();
}

TEST_F(MessageTest, KeepsTheTextThatIsBeingTypedWhileItWaits) {
    CATDlgNotify* const notify = new CATDlgNotify(MainWindow(), "Error", CATDlgNfyError);
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    Shown(*editor).setFocus();
    QTest::keyClicks(&Shown(*editor), QStringLiteral("M"));
    AnswerWith(Qt::Key_Return);
    notify->DisplayBlocked("Something else.", "Note");
    ASSERT_TRUE(_seen.has_value());
    QTest::keyClicks(&Shown(*editor), QStringLiteral("8"));
    QTest::keyClick(&Shown(*editor), Qt::Key_Return);
    EXPECT_STREQ(editor->GetText().ConvertToChar(), "M8");
    TakeMessages();
}

TEST_F(MessageTest, EndsWithTheWindowItStandsBefore) {
    CATDlgNotify* const notify = new CATDlgNotify(MainWindow(), "Error", CATDlgNfyError);
    Open();
    const QPointer<QWidget> window(&Window());
    bool wasWaiting = false;
    DoSoon([this, &wasWaiting] {
        wasWaiting = QApplication::activeModalWidget() != nullptr;
        delete &Dialog();
    });
    notify->DisplayBlocked("Something else.", "Note");
    EXPECT_TRUE(wasWaiting);
    EXPECT_TRUE(window.isNull());
    EXPECT_EQ(TakeMessages().size(), 1U);
}

TEST_F(MessageTest, MayComeUpFromTheTextThatIsBeingLeft) {
    CATDlgNotify* const notify = new CATDlgNotify(MainWindow(), "Error", CATDlgNfyError);
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    const Reaction complain("CATDlgEditModifyNotification",
                            [&] { notify->DisplayBlocked("No such name.", "Name"); });
    Shown(*editor).setFocus();
    QTest::keyClicks(&Shown(*editor), QStringLiteral("M8"));
    AnswerWith(Qt::Key_Return);
    StandardButton("OK").setFocus();
    EXPECT_EQ(complain.Count(), 1);
    ASSERT_TRUE(_seen.has_value());
    EXPECT_EQ(TakeMessages().size(), 1U);
}

} // namespace

} // namespace desktop_test
