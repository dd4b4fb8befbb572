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

    std::string AccessibleName(const CATDialog& iWidget) { return Utf8(Shown(iWidget).accessibleName()); }

    CATDlgFrame* _frame;
    CATDlgLabel* _diameterLabel;
    CATDlgCombo* _diameter;
    CATDlgLabel* _depthLabel;
    CATDlgEditor* _depth;
    CATDlgCheckButton* _check;
};

TEST_F(KeyboardAccessTest, TabGoesThroughTheFieldsInTheOrderOfCreation) {
    Open();
    Shown(*_diameter).setFocus();
    std::vector<QWidget*> visited;
    for (int step = 0; step < 5; ++step) {
        visited.push_back(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited, std::vector<QWidget*>({&Shown(*_diameter), &Shown(*_depth), &Shown(*_check),
                                              &StandardButton("OK"), &StandardButton("Cancel")}));
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*_diameter)) << "and begins again";
}

TEST_F(KeyboardAccessTest, AFieldThatIsMadeLaterIsVisitedAmongItsSiblings) {
    Open();
    auto* const pitch = new CATDlgEditor(_frame, "PitchEdt");
    Settle();
    Shown(*_depth).setFocus();
    QTest::keyClick(&Shown(*_depth), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*pitch));
    QTest::keyClick(&Shown(*pitch), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*_check));
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
    QTest::keyClick(&Shown(*_diameter), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &Shown(*_check));
}

} // namespace

} // namespace desktop_test
