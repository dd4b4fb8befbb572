// Spinners and progress bars: numbers in a range.

#include "CATDlgProgress.h"
#include "CATDlgSpinner.h"

#include "Panels.h"

namespace {

class Spinners : public DialogTest {
  protected:
    CATDlgSpinner* spinner = new CATDlgSpinner(panel, "Spinner", CATDlgSpnEntry | CATDlgSpnDouble);
};

class ProgressBars : public DialogTest {
  protected:
    CATDlgProgress* bar = new CATDlgProgress(panel, "Bar");
};

} // namespace

ASSUMED(Spinners, TheRangeStartsAtZeroToTen, "two pages differ in the lower end: 1 or 0") {
    spinner->SetValue(10.0);
    EXPECT_DOUBLE_EQ(10.0, spinner->GetValue());
    spinner->SetValue(0.0);
    EXPECT_DOUBLE_EQ(0.0, spinner->GetValue());
    spinner->SetValue(10.5);
    EXPECT_DOUBLE_EQ(0.0, spinner->GetValue());
}

CERTAIN(Spinners, AValueOutsideTheRangeIsRefusedAndThePreviousOneKept) {
    spinner->SetMinMaxStep(0.0, 9999.0, 1.0, 1);
    spinner->SetValue(5000.0);
    spinner->SetValue(9999.5);
    spinner->SetValue(-0.5);
    EXPECT_DOUBLE_EQ(5000.0, spinner->GetValue());
    spinner->SetValue(9999.0);
    EXPECT_DOUBLE_EQ(9999.0, spinner->GetValue());
}

CERTAIN(Spinners, ARangeIsAlsoGivenByANumberOfSteps) {
    spinner->SetMinMaxStep(0.0F, 2.0F, 4);
    spinner->SetValue(2.0);
    EXPECT_DOUBLE_EQ(2.0, spinner->GetValue());
    spinner->SetValue(2.5);
    EXPECT_DOUBLE_EQ(2.0, spinner->GetValue());
}

ASSUMED(Spinners, ANewRangeTakesTheValueAlong, "open: the value is moved into the range") {
    spinner->SetValue(9.0);
    spinner->SetMinMaxStep(0.0, 5.0, 1.0, 0);
    EXPECT_DOUBLE_EQ(5.0, spinner->GetValue());
}

ASSUMED(Spinners, ARangeThatMakesNoSenseChangesNothing, "open: refused rather than guessed at") {
    spinner->SetValue(5.0);
    spinner->SetMinMaxStep(7.0, 6.0, 1.0, 1);
    spinner->SetMinMaxStep(6.0, 7.0, 0.0, 1);
    spinner->SetMinMaxStep(6.0F, 7.0F, 0);
    EXPECT_DOUBLE_EQ(5.0, spinner->GetValue());
}

CERTAIN(Spinners, APrecisionOfZeroIsAcceptedAndLeavesTheValue) {
    spinner->SetValue(2.5);
    spinner->SetPrecision(0, 0);
    EXPECT_DOUBLE_EQ(2.5, spinner->GetValue());
}

CERTAIN(Spinners, AChangeHasItsNotification) {
    Hear(*spinner, spinner->GetSpinnerModifyNotification(), "changed");
    Send(*spinner, spinner->GetSpinnerModifyNotification());
    EXPECT_EQ(Journal{"changed"}, journal);
}

ASSUMED(Spinners, AValueSetByProgramIsNotifiedOnlyWhenAskedFor, "open: as for the other controls") {
    Hear(*spinner, spinner->GetSpinnerModifyNotification(), "changed");
    spinner->SetValue(3.0);
    EXPECT_EQ(Journal(), journal);
    spinner->SetValue(4.0, 1);
    EXPECT_EQ(Journal{"changed"}, journal);
    spinner->SetValue(4.0, 1);
    spinner->SetValue(99.0, 1);
    EXPECT_EQ(Journal{"changed"}, journal);
}

ASSUMED(ProgressBars, APositionStartsAtTheMinimum, "open: the operations are given, this is not") {
    bar->SetRange(5, 8);
    EXPECT_EQ(5, bar->GetPos());
}

ASSUMED(ProgressBars, AStepIsAddedUpToTheMaximum, "open: a bar cannot be fuller than full") {
    bar->SetRange(0, 5);
    bar->SetStep(2);
    std::vector<int> positions;
    for (int step = 0; step < 4; ++step) {
        bar->StepIt();
        positions.push_back(bar->GetPos());
    }
    EXPECT_EQ((std::vector<int>{2, 4, 5, 5}), positions);
}

ASSUMED(ProgressBars, ACrossedRangeIsEmpty, "open: a maximum below the minimum counts as the minimum") {
    bar->SetRange(3, 1);
    bar->StepIt();
    EXPECT_EQ(3, bar->GetPos());
}
