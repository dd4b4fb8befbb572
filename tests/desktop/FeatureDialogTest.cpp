// The feature command in its real window: a person chooses with mouse and keyboard, and the command answers.

#include "CATDlgCombo.h"
#include "CATDlgEditor.h"
#include "command/CommandTest.h"
#include "desktop/Desktop.h"
#include "host/DialogPath.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>

#include <memory>

namespace {

using command::Texts;

class FeatureDialogTest : public command::CommandTest {
  protected:
    void SetUp() override {
        ASSERT_TRUE(Start());
        _desktop = std::make_unique<desktop::Desktop>();
        Window().activateWindow();
        QApplication::processEvents();
        static_cast<void>(TakeHeard());
    }
    void TearDown() override {
        _desktop.reset();
        command::CommandTest::TearDown();
    }

    static CATDialog* Host(const std::string& iPath) { return host::DialogPath::Find(iPath).widget; }

    template<class QtWidget>
    QtWidget& Shown(const std::string& iPath) {
        return dynamic_cast<QtWidget&>(*_desktop->WidgetOf(*Host(iPath)));
    }
    QWidget& Window() { return Shown<QWidget>("FeatureDialog"); }
    QListView& Types() { return Shown<QListView>("TypeSelectCombo"); }
    QComboBox& Sets() { return Shown<QComboBox>("ParameterSetCmb"); }
    std::string ShownParameters() {
        return Shown<QPlainTextEdit>("ParametersEdt").toPlainText().toStdString();
    }

    // The classes of the panels' notifications that the command has heard since the last call.
    Texts TakeClasses() {
        Texts classes;
        for (const command::HeardNotification& heard : TakeHeard())
            classes.push_back(heard.className);
        return classes;
    }

    std::unique_ptr<desktop::Desktop> _desktop;
};

const Texts aTypeAndItsFirstSet = {"OrvKvTypeSelectedNotification", "OrvKvParameterSetSelectedNotification"};

TEST_F(FeatureDialogTest, AClickOnATypeReachesTheCommandWhichListsItsSetsAndShowsTheFirst) {
    const QRect line = Types().visualRect(Types().model()->index(1, 0));
    QTest::mouseClick(Types().viewport(), Qt::LeftButton, Qt::NoModifier, line.center());
    EXPECT_EQ(TakeClasses(), aTypeAndItsFirstSet);
    EXPECT_EQ(Command().TypeKey(), "Counterbore");
    EXPECT_EQ(Sets().count(), 78);
    EXPECT_EQ(Sets().currentText().toStdString(), Command().SetName());
    EXPECT_EQ(ShownParameters().substr(0, Command().SetName().size()), Command().SetName());
}

TEST_F(FeatureDialogTest, ArrowKeysChooseATypeAndThenASet) {
    Types().setFocus();
    QTest::keyClick(&Types(), Qt::Key_Down);
    EXPECT_EQ(TakeClasses(), aTypeAndItsFirstSet);
    EXPECT_EQ(Command().TypeKey(), "Counterbore");
    const std::string first = Command().SetName();
    Sets().setFocus();
    QTest::keyClick(&Sets(), Qt::Key_Down);
    EXPECT_EQ(TakeClasses(), Texts({"OrvKvParameterSetSelectedNotification"}));
    EXPECT_NE(Command().SetName(), first);
    EXPECT_EQ(ShownParameters().substr(0, Command().SetName().size()), Command().SetName());
}

TEST_F(FeatureDialogTest, TheSelectorExplainsItselfInABalloon) {
    EXPECT_EQ(Types().toolTip().toStdString(), "Feature type");
    EXPECT_EQ(Sets().toolTip().toStdString(), "Parameter set");
    EXPECT_FALSE(Types().whatsThis().isEmpty());
}

TEST_F(FeatureDialogTest, OkAcceptsTheChoiceAndTheWindowGoes) {
    QWidget& window = Window();
    for (QPushButton* button : window.findChildren<QPushButton*>())
        if (button->text().remove('&') == "OK")
            QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(Command().CurrentState(), command::FeatureCommand::State::Accepted);
    EXPECT_EQ(Host("FeatureDialog"), nullptr);
}

TEST_F(FeatureDialogTest, EscapeCancels) {
    QWidget& window = Window();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(Command().CurrentState(), command::FeatureCommand::State::Cancelled);
    EXPECT_EQ(Host("FeatureDialog"), nullptr);
}

} // namespace
