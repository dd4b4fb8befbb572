#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgContainer.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "DesktopFixture.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace desktop_test {

namespace {

// A row of a label, an empty box and a combo in a frame; a second row of a label and a framed editor.
class KeyboardAccessTest : public DesktopTest {
  protected:
    KeyboardAccessTest() {
        Dialog().SetDefaultOrientation(Vertical);
        _frame = new CATDlgFrame(&Dialog(), "ThreadFrm");
        _diameterLabel = new CATDlgLabel(_frame, "DiameterLab");
        _diameterLabel->SetTitle("Diameter");
        auto* const gap = new CATDlgContainer(_frame, "GapCon");
        _diameter = new CATDlgCombo(_frame, "DiameterCmb", CATDlgCmbDropDown);
        _depthLabel = new CATDlgLabel(_frame, "DepthLab");
        _depthLabel->SetTitle("Depth");
        auto* const box = new CATDlgFrame(_frame, "DepthFrm", CATDlgFraNoFrame);
        _depth = new CATDlgEditor(box, "DepthEdt");
        _frame->SetHorizontalAttachment(0, CATDlgTopOrLeft, _diameterLabel, gap, _diameter, nullptr);
        _frame->SetHorizontalAttachment(1, CATDlgTopOrLeft, _depthLabel, box, nullptr);
        _frame->SetVerticalAttachment(0, CATDlgTopOrLeft, _diameterLabel, _depthLabel, nullptr);
        _frame->SetVerticalAttachment(1, CATDlgTopOrLeft, gap, nullptr);
        _frame->SetVerticalAttachment(2, CATDlgTopOrLeft, _diameter, box, nullptr);
        _check = new CATDlgCheckButton(&Dialog(), "DrillCkb");
        _check->SetTitle("Drill");
    }

    static void PressTab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
    static void PressBacktab() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab); }
    // Where Tab leads from a widget on, round until it comes back there.
    static std::vector<QWidget*> TabFrom(QWidget& ioStart) {
        ioStart.setFocus();
        std::vector<QWidget*> visited;
        do {
            visited.push_back(QApplication::focusWidget());
            PressTab();
        } while (QApplication::focusWidget() != &ioStart && visited.size() < 20);
        return visited;
    }
    std::string AccessibleName(const CATDialog& iWidget) { return Utf8(Shown(iWidget).accessibleName()); }

    CATDlgFrame* _frame;
    CATDlgLabel* _diameterLabel;
    CATDlgCombo* _diameter;
    CATDlgLabel* _depthLabel;
    CATDlgEditor* _depth;
    CATDlgCheckButton* _check;
};

TEST_F(KeyboardAccessTest, TabGoesThroughTheRowsFromTheTopAndThenThroughTheButtons) {
    Open();
    EXPECT_EQ(TabFrom(Shown(*_diameter)),
              std::vector<QWidget*>({&Shown(*_diameter), &Shown(*_depth), &Shown(*_check),
                                     &StandardButton("OK"), &StandardButton("Cancel")}));
}

TEST_F(KeyboardAccessTest, AFieldThatIsMadeLaterIsVisitedWhereItStands) {
    Open();
    auto* const pitch = new CATDlgEditor(_frame, "PitchEdt");
    _frame->SetHorizontalAttachment(0, CATDlgTopOrLeft, pitch, nullptr);
    _frame->SetVerticalAttachment(3, CATDlgTopOrLeft, pitch, nullptr);
    Settle();
    Shown(*_diameter).setFocus();
    PressTab();
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*pitch)) << "it stands beside the diameter";
    PressTab();
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*_depth));
}

TEST_F(KeyboardAccessTest, ALabelStandsForTheFieldBesideIt) {
    Open();
    EXPECT_EQ(ShownAs<QLabel>(*_diameterLabel).buddy(), &Shown(*_diameter));
    EXPECT_EQ(ShownAs<QLabel>(*_depthLabel).buddy(), &Shown(*_depth));
}

TEST_F(KeyboardAccessTest, ABlankLabelOnlyKeepsTheDistance) {
    auto* const row = new CATDlgFrame(&Dialog(), "RowFrm", CATDlgFraNoFrame);
    auto* const blank = new CATDlgLabel(row, "BlankLab");
    blank->SetTitle("     ");
    auto* const label = new CATDlgLabel(row, "PitchLab");
    label->SetTitle("Pitch");
    auto* const pitch = new CATDlgEditor(row, "PitchEdt");
    row->SetHorizontalAttachment(0, CATDlgTopOrLeft, label, blank, pitch, nullptr);
    row->SetVerticalAttachment(0, CATDlgTopOrLeft, label, nullptr);
    row->SetVerticalAttachment(1, CATDlgTopOrLeft, blank, nullptr);
    row->SetVerticalAttachment(2, CATDlgTopOrLeft, pitch, nullptr);
    Open();
    EXPECT_EQ(ShownAs<QLabel>(*label).buddy(), &Shown(*pitch));
    EXPECT_EQ(ShownAs<QLabel>(*blank).buddy(), nullptr);
    EXPECT_EQ(AccessibleName(*pitch), "Pitch");
}

TEST_F(KeyboardAccessTest, AltAndALetterMoveTheFocusToTheFieldOfALabel) {
    Open();
    Shown(*_check).setFocus();
    const QString text = ShownAs<QLabel>(*_depthLabel).text();
    const QChar letter = text.at(text.indexOf(QLatin1Char('&')) + 1);
    QTest::keyClick(&Window(), letter.toLatin1(), Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*_depth));
}

TEST_F(KeyboardAccessTest, NoTwoCaptionsShareALetter) {
    Open();
    EXPECT_EQ(Utf8(ShownAs<QLabel>(*_diameterLabel).text()), "&Diameter");
    EXPECT_EQ(Utf8(ShownAs<QLabel>(*_depthLabel).text()), "D&epth");
    EXPECT_EQ(Utf8(ShownAs<QAbstractButton>(*_check).text()), "D&rill");
}

TEST_F(KeyboardAccessTest, EveryInputHasAnAccessibleName) {
    auto* const helped = new CATDlgCombo(&Dialog(), "HelpedCmb");
    helped->SetShortHelp("Pitch of the thread");
    auto* const bare = new CATDlgEditor(&Dialog(), "BareEdt");
    auto* const titled = new CATDlgEditor(&Dialog(), "TitledEdt", CATDlgEdtMultiline);
    titled->SetTitle("Remarks");
    auto* const radio = new CATDlgRadioButton(&Dialog(), "LeftRdb");
    radio->SetTitle("Left");
    Open();
    EXPECT_EQ(AccessibleName(*_diameter), "Diameter");
    EXPECT_EQ(AccessibleName(*_depth), "Depth");
    EXPECT_EQ(AccessibleName(*_check), "Drill");
    EXPECT_EQ(AccessibleName(*helped), "Pitch of the thread");
    EXPECT_EQ(AccessibleName(*bare), "BareEdt");
    EXPECT_EQ(AccessibleName(*titled), "Remarks");
    EXPECT_EQ(AccessibleName(*radio), "Left");
    EXPECT_EQ(Utf8(StandardButton("OK").accessibleName()), "OK");
    _diameterLabel->SetTitle("Nominal diameter");
    Settle();
    EXPECT_EQ(AccessibleName(*_diameter), "Nominal diameter");
}

TEST_F(KeyboardAccessTest, ADisabledFieldIsSkipped) {
    _depth->SetSensitivity(CATDlgDisable);
    Open();
    Shown(*_diameter).setFocus();
    PressTab();
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*_check));
}

TEST_F(KeyboardAccessTest, ALabelStandsForTheFieldBelowItWhereAnotherLabelIsBesideIt) {
    auto* const table = new CATDlgFrame(&Dialog(), "LimitsFrm", CATDlgFraNoFrame);
    auto* const upperLabel = new CATDlgLabel(table, "UpperLab");
    upperLabel->SetTitle("Upper limit");
    auto* const lowerLabel = new CATDlgLabel(table, "LowerLab");
    lowerLabel->SetTitle("Lower limit");
    auto* const upper = new CATDlgEditor(table, "UpperEdt");
    auto* const lower = new CATDlgEditor(table, "LowerEdt");
    table->SetHorizontalAttachment(0, CATDlgTopOrLeft, upperLabel, lowerLabel, nullptr);
    table->SetHorizontalAttachment(1, CATDlgTopOrLeft, upper, lower, nullptr);
    table->SetVerticalAttachment(0, CATDlgTopOrLeft, upperLabel, upper, nullptr);
    table->SetVerticalAttachment(1, CATDlgTopOrLeft, lowerLabel, lower, nullptr);
    Open();
    EXPECT_EQ(ShownAs<QLabel>(*upperLabel).buddy(), &Shown(*upper));
    EXPECT_EQ(AccessibleName(*upper), "Upper limit");
    EXPECT_EQ(AccessibleName(*lower), "Lower limit");
}

// The heading stands above the field, but the field has a label of its own.
TEST_F(KeyboardAccessTest, AFieldIsNamedAfterTheLabelBesideItBeforeTheOneAboveIt) {
    auto* const table = new CATDlgFrame(&Dialog(), "TableFrm", CATDlgFraNoFrame);
    auto* const heading = new CATDlgLabel(table, "HeadingLab");
    heading->SetTitle("Values");
    auto* const label = new CATDlgLabel(table, "PitchLab");
    label->SetTitle("Pitch");
    auto* const pitch = new CATDlgEditor(table, "PitchEdt");
    table->SetHorizontalAttachment(0, CATDlgTopOrLeft, heading, nullptr);
    table->SetHorizontalAttachment(1, CATDlgTopOrLeft, label, pitch, nullptr);
    table->SetVerticalAttachment(0, CATDlgTopOrLeft, label, nullptr);
    table->SetVerticalAttachment(1, CATDlgTopOrLeft, heading, pitch, nullptr);
    Open();
    EXPECT_EQ(AccessibleName(*pitch), "Pitch");
    EXPECT_EQ(ShownAs<QLabel>(*heading).buddy(), nullptr);
}

// Two columns that are made in another order than they stand: a check button that shows and hides a row, and
// a group of radio buttons.
class TabOrderTest : public KeyboardAccessTest {
  protected:
    TabOrderTest() {
        _table = new CATDlgFrame(&Dialog(), "TableFrm");
        _right = new CATDlgRadioButton(_table, "RightRdb");
        _left = new CATDlgRadioButton(_table, "LeftRdb");
        _low = new CATDlgEditor(_table, "LowEdt");
        _far = new CATDlgCombo(_table, "FarCmb", CATDlgCmbDropDown);
        _near = new CATDlgEditor(_table, "NearEdt");
        _table->SetHorizontalAttachment(0, CATDlgTopOrLeft, _left, _right, nullptr);
        _table->SetHorizontalAttachment(1, CATDlgTopOrLeft, _near, _far, nullptr);
        _table->SetHorizontalAttachment(2, CATDlgTopOrLeft, _low, nullptr);
        _table->SetVerticalAttachment(0, CATDlgTopOrLeft, _left, _near, _low, nullptr);
        _table->SetVerticalAttachment(1, CATDlgTopOrLeft, _right, _far, nullptr);
    }

    // From the check button that stands above the table round to the standard buttons.
    std::vector<std::string> Visited() {
        std::vector<std::string> names;
        for (const QWidget* widget : TabFrom(Shown(*_check)))
            names.push_back(Utf8(widget->objectName()));
        return names;
    }

    CATDlgFrame* _table;
    CATDlgRadioButton* _right;
    CATDlgRadioButton* _left;
    CATDlgEditor* _low;
    CATDlgCombo* _far;
    CATDlgEditor* _near;
};

const std::string standardButton; // which has no name

TEST_F(TabOrderTest, GoesByTheRowsAndNotByTheOrderOfCreation) {
    _right->SetState(CATDlgCheck);
    Open();
    EXPECT_EQ(Visited(),
              std::vector<std::string>({"DrillCkb", "RightRdb", "NearEdt", "FarCmb", "LowEdt", standardButton,
                                        standardButton, "DiameterCmb", "DepthEdt"}));
    Shown(*_low).setFocus();
    PressBacktab();
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*_far));
    PressBacktab();
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*_near)) << "and back the same way";
}

TEST_F(TabOrderTest, FollowsTheLayoutThatChangesWhileTheWindowIsOpen) {
    _left->SetState(CATDlgCheck);
    _far->SetVisibility(CATDlgHide);
    Open();
    EXPECT_EQ(Visited(), std::vector<std::string>({"DrillCkb", "LeftRdb", "NearEdt", "LowEdt", standardButton,
                                                   standardButton, "DiameterCmb", "DepthEdt"}));
    _far->SetVisibility(CATDlgShow);
    _table->ResetAttachment(_low, nullptr);
    _table->ResetAttachment(_near, nullptr);
    _table->SetHorizontalAttachment(1, CATDlgTopOrLeft, _low, nullptr);
    _table->SetHorizontalAttachment(2, CATDlgTopOrLeft, _near, nullptr);
    _table->SetVerticalAttachment(0, CATDlgTopOrLeft, _low, _near, nullptr);
    Settle();
    EXPECT_EQ(Visited(),
              std::vector<std::string>({"DrillCkb", "LeftRdb", "LowEdt", "FarCmb", "NearEdt", standardButton,
                                        standardButton, "DiameterCmb", "DepthEdt"}));
    _low->SetSensitivity(CATDlgDisable);
    Settle();
    EXPECT_EQ(Visited(), std::vector<std::string>({"DrillCkb", "LeftRdb", "FarCmb", "NearEdt", standardButton,
                                                   standardButton, "DiameterCmb", "DepthEdt"}));
}

class RadioGroupTest : public TabOrderTest {
  protected:
    std::vector<std::string> VisitedRadioButtons() {
        std::vector<std::string> radios;
        for (const std::string& name : Visited())
            if (name == "LeftRdb" || name == "RightRdb")
                radios.push_back(name);
        return radios;
    }
};

TEST_F(RadioGroupTest, TabGoesToTheCheckedButtonOfAGroupAlone) {
    _right->SetState(CATDlgCheck);
    Open();
    EXPECT_EQ(VisitedRadioButtons(), Classes({"RightRdb"}));
    _left->SetState(CATDlgCheck);
    Settle();
    EXPECT_EQ(VisitedRadioButtons(), Classes({"LeftRdb"})) << "also when the program has checked another";
    QTest::mousePress(&Shown(*_right), Qt::LeftButton);
    QTest::mouseRelease(&Shown(*_right), Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
    EXPECT_EQ(VisitedRadioButtons(), Classes({"LeftRdb"})) << "and when another only had the focus";
}

TEST_F(RadioGroupTest, TabGoesToEachButtonOfAGroupWithoutACheckedOne) {
    Open();
    EXPECT_EQ(VisitedRadioButtons(), Classes({"LeftRdb", "RightRdb"}));
}

TEST_F(RadioGroupTest, AGroupIsReachedWhereItsCheckedButtonCannotBeUsed) {
    _left->SetState(CATDlgCheck);
    Open();
    _left->SetSensitivity(CATDlgDisable);
    Settle();
    EXPECT_EQ(VisitedRadioButtons(), Classes({"RightRdb"}));
    _left->SetSensitivity(CATDlgEnable);
    Settle();
    EXPECT_EQ(VisitedRadioButtons(), Classes({"LeftRdb"}));
    _left->SetVisibility(CATDlgHide);
    Settle();
    EXPECT_EQ(VisitedRadioButtons(), Classes({"RightRdb"}));
}

TEST_F(RadioGroupTest, ArrowKeysCheckTheNextButtonOfTheGroup) {
    _left->SetState(CATDlgCheck);
    Open();
    Shown(*_left).setFocus();
    QTest::keyClick(&Shown(*_left), Qt::Key_Right);
    EXPECT_EQ(_right->GetState(), CATDlgCheck);
    EXPECT_EQ(_left->GetState(), CATDlgUncheck);
    EXPECT_TRUE(Shown(*_right).hasFocus());
    QTest::keyClick(&Shown(*_right), Qt::Key_Left);
    EXPECT_EQ(_left->GetState(), CATDlgCheck);
    const Classes unchecksAndChecks(2 * 2, "CATDlgRadBModifyNotification");
    EXPECT_EQ(Command().TakeClasses(), unchecksAndChecks);
}

} // namespace

} // namespace desktop_test
