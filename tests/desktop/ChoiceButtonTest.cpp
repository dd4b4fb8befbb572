#include "CATDlgCheckButton.h"
#include "CATDlgFrame.h"
#include "CATDlgRadioButton.h"
#include "DesktopFixture.h"

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QRadioButton>

namespace desktop_test {

namespace {

const Classes checkModified = {"CATDlgChkBModifyNotification"};

class ChoiceButtonTest : public DesktopTest {
  protected:
    ChoiceButtonTest()
        : _fit(new CATDlgRadioButton(&Dialog(), "FitRdb")),
          _plus(new CATDlgRadioButton(&Dialog(), "PlusRdb")),
          _tolerance(new CATDlgCheckButton(&Dialog(), "ToleranceCkb")) {
        _fit->SetTitle("ISO fit");
        _plus->SetTitle("Plus/minus");
        _tolerance->SetTitle("Tolerance");
    }

    bool IsShownChecked(const CATDialog& iButton) { return ShownAs<QAbstractButton>(iButton).isChecked(); }
    void Click(const CATDialog& iButton) {
        const auto& button = ShownAs<QAbstractButton>(iButton);
        QTest::mouseClick(&ShownAs<QAbstractButton>(iButton), Qt::LeftButton, Qt::NoModifier,
                          QPoint(8, button.height() / 2));
    }

    CATDlgRadioButton* _fit;
    CATDlgRadioButton* _plus;
    CATDlgCheckButton* _tolerance;
};

TEST_F(ChoiceButtonTest, StartWithNoneOfAGroupChecked) {
    Open();
    EXPECT_FALSE(IsShownChecked(*_fit));
    EXPECT_FALSE(IsShownChecked(*_plus));
}

TEST_F(ChoiceButtonTest, CheckingOneOfAGroupUnchecksTheOther) {
    Open();
    Click(*_fit);
    EXPECT_EQ(_fit->GetState(), CATDlgCheck);
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgRadBModifyNotification"}));
    Click(*_plus);
    EXPECT_EQ(_fit->GetState(), CATDlgUncheck);
    EXPECT_FALSE(IsShownChecked(*_fit));
    EXPECT_TRUE(IsShownChecked(*_plus));
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgRadBModifyNotification", "CATDlgRadBModifyNotification"}));
}

TEST_F(ChoiceButtonTest, TheProgramMayUncheckAllOfAGroup) {
    _fit->SetState(CATDlgCheck);
    Open();
    ASSERT_TRUE(IsShownChecked(*_fit));
    _fit->SetState(CATDlgUncheck);
    Settle();
    EXPECT_FALSE(IsShownChecked(*_fit));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(ChoiceButtonTest, ARefusedChoiceLeavesTheGroupAsItWas) {
    _fit->SetState(CATDlgCheck);
    Open();
    _plus->SetSensitivity(CATDlgDisable); // Qt has not heard of it yet
    Click(*_plus);
    EXPECT_TRUE(IsShownChecked(*_fit));
    EXPECT_FALSE(IsShownChecked(*_plus));
    EXPECT_NE(ShownReason().find("is disabled"), std::string::npos) << ShownReason();
}

TEST_F(ChoiceButtonTest, ACheckButtonIsCheckedAndUncheckedByMouseAndSpace) {
    Open();
    Click(*_tolerance);
    EXPECT_EQ(_tolerance->GetState(), CATDlgCheck);
    EXPECT_EQ(Command().TakeClasses(), checkModified);
    QTest::keyClick(&Shown(*_tolerance), Qt::Key_Space);
    EXPECT_EQ(_tolerance->GetState(), CATDlgUncheck);
    EXPECT_EQ(Command().TakeClasses(), checkModified);
}

TEST_F(ChoiceButtonTest, ACheckButtonFollowsTheProgram) {
    Open();
    _tolerance->SetState(CATDlgCheck);
    Settle();
    EXPECT_TRUE(IsShownChecked(*_tolerance));
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

} // namespace

} // namespace desktop_test
