// The feature command in its real window: a person chooses with mouse and keyboard, and the command answers.

#include "CATDlgCombo.h"
#include "PartPicking.h"
#include "command/CommandTest.h"
#include "desktop/Desktop.h"
#include "host/DialogPath.h"
#include "host/EventScope.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeWidget>

#include <algorithm>
#include <memory>

namespace {

using command::Texts;

class FeatureDialogTest : public command::CommandTest {
  protected:
    void SetUp() override {
        ASSERT_TRUE(Start(_mode));
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
    QWidget& Window() { return Shown<QWidget>("MainPanel"); }
    QListView& Types() { return Shown<QListView>("TypeSelectCombo"); }
    QComboBox& Sets() { return Shown<QComboBox>("ParameterSetCmb"); }
    QTableView& Table(const std::string& iName) { return Shown<QTableView>(iName); }
    static std::string Cell(const QTableView& iTable, int iRow, int iColumn) {
        return iTable.model()->index(iRow, iColumn).data().toString().toStdString();
    }
    static void DoubleClick(QTableView& ioTable, int iRow, int iColumn) {
        const QPoint place = ioTable.visualRect(ioTable.model()->index(iRow, iColumn)).center();
        QTest::mouseClick(ioTable.viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(ioTable.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    void Press(const std::string& iButton) {
        QTest::mouseClick(&Shown<QPushButton>(iButton), Qt::LeftButton);
    }

    // The classes of the panels' notifications that the command has heard since the last call.
    Texts TakeClasses() {
        Texts classes;
        for (const command::HeardNotification& heard : TakeHeard())
            classes.push_back(heard.className);
        return classes;
    }

    std::unique_ptr<desktop::Desktop> _desktop;
    command::FeatureCommand::Mode _mode = command::FeatureCommand::Mode::Parameters;
};

// The type, its first set, the thread that goes with it, and that the rules hold.
const Texts aTypeAndItsFirstSet = {
    "OrvKvTypeSelectedNotification",   "OrvKvParameterSetSelectedNotification",
    "OrvKvThreadDiameterNotification", "OrvKvThreadTakeNotification",
    "OrvKvThreadTakeNotification",     "OrvKvTriggerStateChangeToValidNotification"};

TEST_F(FeatureDialogTest, AClickOnATypeReachesTheCommandWhichListsItsSetsAndShowsTheFirst) {
    const QRect line = Types().visualRect(Types().model()->index(1, 0));
    QTest::mouseClick(Types().viewport(), Qt::LeftButton, Qt::NoModifier, line.center());
    EXPECT_EQ(TakeClasses(), aTypeAndItsFirstSet);
    EXPECT_EQ(Command().TypeKey(), "Counterbore");
    EXPECT_EQ(Sets().count(), 78);
    EXPECT_EQ(Sets().currentText().toStdString(), Command().SetName());
    EXPECT_EQ(Table("ParameterMul").model()->rowCount(), 9);
    EXPECT_EQ(Cell(Table("ParameterMul"), 4, 2), "3.2mm");
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
    EXPECT_EQ(Cell(Table("ParameterMul"), 4, 0), "*");
    EXPECT_EQ(Cell(Table("ParameterMul"), 4, 2), "3.4mm");
}

TEST_F(FeatureDialogTest, AChosenGroupShowsItsTypesAndItsInputs) {
    auto& groups = Shown<QComboBox>("GroupCmb");
    groups.setFocus();
    QTest::keyClick(&groups, Qt::Key_Down);
    EXPECT_EQ(Command().TypeKey(), "TappedBlindHole");
    EXPECT_TRUE(Shown<QPushButton>("Input3Pbt").isVisible());
    QTest::keyClick(&groups, Qt::Key_Up);
    EXPECT_EQ(Command().TypeKey(), "ClearanceHole");
    EXPECT_FALSE(Shown<QPushButton>("Input3Pbt").isVisible());
}

TEST_F(FeatureDialogTest, APickFillsTheInputWhoseButtonWasPressed) {
    Press("Input2Pbt");
    EXPECT_EQ(Command().AwaitedInput(), 2);
    EXPECT_TRUE(Command().Pick("Top face"));
    host::EventScope::RunIdle();
    EXPECT_EQ(Shown<QLineEdit>("Input2Edt").text().toStdString(), "Top face");
    Press("InvertPbt");
    EXPECT_EQ(Shown<QLineEdit>("Input2Edt").text().toStdString(), "Top face (inverted)");
    EXPECT_EQ(TakeClasses(), Texts({"OrvKvSetInputGeometryNotification", "OrvKvInvertFeatureNotification"}));
}

TEST_F(FeatureDialogTest, ADoubleClickOnARowTellsTheCommandWhichParameter) {
    DoubleClick(Table("ParameterMul"), 2, 2);
    const auto heard = TakeHeard();
    const auto found = std::find_if(heard.begin(), heard.end(), [](const command::HeardNotification& each) {
        return each.className == "OrvKvParameterListDoubleClickedNotification";
    });
    ASSERT_NE(found, heard.end());
    EXPECT_EQ(found->values["parameterName"], "DH");
}

TEST_F(FeatureDialogTest, AValueThatTheCommandChangesIsShownAndMarked) {
    EXPECT_TRUE(Command().SetValue("DH", "2,5"));
    host::EventScope::RunIdle();
    EXPECT_EQ(Cell(Table("ParameterMul"), 2, 0), "*");
    EXPECT_EQ(Cell(Table("ParameterMul"), 2, 2), "2.5mm");
}

class PickingTest : public FeatureDialogTest {
  protected:
    void SetUp() override {
        FeatureDialogTest::SetUp();
        _picking = std::make_unique<app::PartPicking>(SamplePart(), Command());
    }
    void TearDown() override {
        _picking.reset();
        FeatureDialogTest::TearDown();
    }

    void Click(const char* iElement) {
        QTreeWidget& tree = *_picking->Window().findChild<QTreeWidget*>();
        const QList<QTreeWidgetItem*> found =
            tree.findItems(QString::fromUtf8(iElement), Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(found.size(), 1);
        tree.scrollToItem(found.front());
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree.visualItemRect(found.front()).center());
    }
    std::string Input(int iNumber) {
        return Shown<QLineEdit>("Input" + std::to_string(iNumber) + "Edt").text().toStdString();
    }

    std::unique_ptr<app::PartPicking> _picking;
};

TEST_F(PickingTest, ClicksInThePartFillTheInputsOneAfterTheOther) {
    Click("Top face hole 3");
    EXPECT_EQ(Input(1), "Top face hole 3");
    Click("Hole 3 axis");
    EXPECT_EQ(Input(2), "Hole 3 axis");
    EXPECT_EQ(Command().AwaitedInput(), 0);
}

TEST_F(PickingTest, AClickOnWhatDoesNotFitChangesNothing) {
    Click("Top face");
    EXPECT_EQ(Input(1), "No selection");
    EXPECT_EQ(Command().AwaitedInput(), 1);
    Click("Top face hole 1");
    EXPECT_EQ(Input(1), "Top face hole 1");
}

TEST_F(PickingTest, TheButtonOfAnInputMakesItsKindOfElementPickable) {
    Press("Input2Pbt");
    Click("Top face");
    EXPECT_EQ(Input(2), "Top face");
    EXPECT_EQ(Command().PickedElements(), Texts({"Top face"}));
}

class SetDialogTest : public FeatureDialogTest {
  protected:
    SetDialogTest() { _mode = command::FeatureCommand::Mode::Sets; }
};

TEST_F(SetDialogTest, AClickOnARowChoosesTheSet) {
    QTableView& sets = Table("ParameterSetMul");
    const QPoint place = sets.visualRect(sets.model()->index(3, 0)).center();
    QTest::mouseClick(sets.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(Command().SetName(), "ISO 273 M2 fine");
    EXPECT_EQ(Cell(Table("CurrentParameterMul"), 0, 0), "ISO 273 M2 fine");
    EXPECT_EQ(TakeClasses(), Texts({"OrvKvParameterSetSelectedNotification",
                                    "OrvKvModifiedParameterInMultiListNotification"}));
}

TEST_F(SetDialogTest, ADoubleClickOnACellOfTheLowerTableAsksForItsEditor) {
    DoubleClick(Table("CurrentParameterMul"), 0, 3);
    const Texts classes = TakeClasses();
    EXPECT_NE(std::find(classes.begin(), classes.end(), "OrvKvParameterListDoubleClickedNotification"),
              classes.end());
    EXPECT_TRUE(Shown<QWidget>("OrvKvParameterEditPanel").isVisible());
}

// The tables are made anew for the columns of another type, in the middle of the click that asks for it.
TEST_F(SetDialogTest, AClickOnATypeBringsTablesWithItsColumns) {
    const QRect line = Types().visualRect(Types().model()->index(1, 0));
    QTest::mouseClick(Types().viewport(), Qt::LeftButton, Qt::NoModifier, line.center());
    EXPECT_EQ(Table("ParameterSetMul").model()->rowCount(), 78);
    EXPECT_EQ(Table("ParameterSetMul").model()->headerData(1, Qt::Horizontal).toString().toStdString(),
              "THREAD");
    EXPECT_TRUE(Table("CurrentParameterMul").isVisible());
}

TEST_F(FeatureDialogTest, TheSelectorExplainsItselfInABalloon) {
    EXPECT_EQ(Types().toolTip().toStdString(), "Feature type");
    EXPECT_EQ(Sets().toolTip().toStdString(), "Parameter set");
    EXPECT_FALSE(Types().whatsThis().isEmpty());
}

// Object names of the widgets that Tab visits; the standard buttons have their texts.
TEST_F(FeatureDialogTest, TabGoesThroughTheDialogAsItIsSeen) {
    QWidget& start = Shown<QWidget>("GroupCmb");
    start.setFocus();
    Texts visited;
    do {
        const QWidget* const widget = QApplication::focusWidget();
        const QString name = widget->objectName();
        visited.push_back((name.isEmpty() ? widget->accessibleName() : name).toStdString());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != &start && visited.size() < 40);
    EXPECT_EQ(visited, Texts({"GroupCmb", "Input1Pbt", "Input1Edt", "Input2Pbt", "Input2Edt", "InvertPbt",
                              "TypeSelectCombo", "ParameterSetCmb", "ParameterMul", "TabContainer",
                              "MoreLessButton", "KelvaneRules", "OK", "Apply", "Cancel", "Help"}));
}

TEST_F(FeatureDialogTest, OkAcceptsTheChoiceAndTheWindowGoes) {
    QWidget& window = Window();
    for (QPushButton* button : window.findChildren<QPushButton*>())
        if (button->text().remove('&') == "OK")
            QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(Command().CurrentState(), command::FeatureCommand::State::Accepted);
    EXPECT_EQ(Host("MainPanel"), nullptr);
}

TEST_F(FeatureDialogTest, EscapeCancels) {
    QWidget& window = Window();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(Command().CurrentState(), command::FeatureCommand::State::Cancelled);
    EXPECT_EQ(Host("MainPanel"), nullptr);
}

} // namespace
