#include "CATDlgSpinner.h"

#include "DialogTest.h"
#include "host/Inspector.h"

#include <climits>
#include <limits>

namespace {

using host::DialogUser;
using host::Inspector;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

class CATDlgSpinnerTest : public DialogTest {
  protected:
    CATDlgSpinnerTest() {
        dialog->Hear(spinner, spinner.GetSpinnerModifyNotification());
        dialog->onHeard = [this] { return std::to_string(static_cast<int>(spinner.GetValue())); };
    }

    void ExpectRange(double iMinimum, double iMaximum, double iStep) const {
        const Inspector::Range range = Inspector::RangeOf(spinner);
        EXPECT_EQ(range.minimum, iMinimum);
        EXPECT_EQ(range.maximum, iMaximum);
        EXPECT_EQ(range.step, iStep);
    }

    CATDlgSpinner& spinner = Make<CATDlgSpinner>("LengthSpn", CATDlgSpnEntry | CATDlgSpnDouble);
};

TEST_F(CATDlgSpinnerTest, StartsAtZeroWithTenSteps) {
    EXPECT_EQ(spinner.GetValue(), 0.0);
    ExpectRange(0.0, 10.0, 1.0);
    EXPECT_EQ(Inspector::RangeOf(spinner).precision, -1);
}

TEST_F(CATDlgSpinnerTest, TakesARangeWithANumberOfSteps) {
    spinner.SetMinMaxStep(-1.0F, 1.0F, 8);
    ExpectRange(-1.0, 1.0, 0.25);
}

TEST_F(CATDlgSpinnerTest, TakesARangeWithAStep) {
    spinner.SetMinMaxStep(0.0, 9999.0, 1.0, 1);
    ExpectRange(0.0, 9999.0, 1.0);
}

TEST_F(CATDlgSpinnerTest, MovesItsValueIntoANewRangeSilently) {
    spinner.SetValue(10.0);
    spinner.SetMinMaxStep(0.0, 4.0, 1.0, 0);
    EXPECT_EQ(spinner.GetValue(), 4.0);
    spinner.SetMinMaxStep(5.0, 8.0, 1.0, 0);
    EXPECT_EQ(spinner.GetValue(), 5.0);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgSpinnerTest, MovesItsValueToAWholeNumberOfStepsWhenTheStepIsApplied) {
    spinner.SetValue(3.4);
    spinner.SetMinMaxStep(0.0, 10.0, 2.0, 0);
    EXPECT_EQ(spinner.GetValue(), 3.4);
    spinner.SetMinMaxStep(0.0, 10.0, 2.0, 1);
    EXPECT_EQ(spinner.GetValue(), 4.0);
    spinner.SetValue(10.0);
    spinner.SetMinMaxStep(0.0, 10.0, 4.0, 1);
    EXPECT_EQ(spinner.GetValue(), 10.0) << "the nearest step, 12, is outside the range";
}

TEST_F(CATDlgSpinnerTest, TakesNoRangeThatMakesNoSense) {
    spinner.SetValue(7.0);
    spinner.SetMinMaxStep(0.0F, 5.0F, 0);
    spinner.SetMinMaxStep(0.0F, 5.0F, -3);
    spinner.SetMinMaxStep(5.0F, 0.0F, 5);
    spinner.SetMinMaxStep(std::numeric_limits<float>::infinity(), 5.0F, 5);
    spinner.SetMinMaxStep(5.0, 0.0, 1.0, 0);
    spinner.SetMinMaxStep(0.0, 5.0, 0.0, 0);
    spinner.SetMinMaxStep(0.0, 5.0, -1.0, 0);
    spinner.SetMinMaxStep(0.0, 5.0, infinity, 1);
    spinner.SetMinMaxStep(0.0, 5.0, noNumber, 1);
    spinner.SetMinMaxStep(noNumber, 5.0, 1.0, 1);
    spinner.SetMinMaxStep(0.0, infinity, 1.0, 1);
    ExpectRange(0.0, 10.0, 1.0);
    EXPECT_EQ(spinner.GetValue(), 7.0);
}

TEST_F(CATDlgSpinnerTest, RefusesValuesOutsideItsRangeAndKeepsThePreviousOne) {
    spinner.SetValue(7.0);
    for (const double value : {-0.1, 10.1, infinity, -infinity, noNumber})
        spinner.SetValue(value, CATDlgWithNotification);
    EXPECT_EQ(spinner.GetValue(), 7.0);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgSpinnerTest, IsNotifiedOfAChangeOnlyAndOnlyWhenAsked) {
    spinner.SetValue(3.0);
    spinner.SetValue(3.0, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
    spinner.SetValue(10.0, CATDlgWithNotification);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"SpinnerModify LengthSpn 10"});
}

TEST_F(CATDlgSpinnerTest, IsSteppedByAPersonAndStopsAtItsEnds) {
    EXPECT_EQ(Result(DialogUser::Spin(spinner, 3)), "done");
    EXPECT_EQ(Result(DialogUser::Spin(spinner, -1)), "done");
    EXPECT_EQ(Result(DialogUser::Spin(spinner, INT_MAX)), "done");
    EXPECT_EQ(Result(DialogUser::Spin(spinner, 1)), "done");
    EXPECT_EQ(Result(DialogUser::Spin(spinner, INT_MIN)), "done");
    EXPECT_EQ(Result(DialogUser::Spin(spinner, 0)), "done");
    EXPECT_EQ(dialog->TakeHeard(), (Texts{"SpinnerModify LengthSpn 3", "SpinnerModify LengthSpn 2",
                                          "SpinnerModify LengthSpn 10", "SpinnerModify LengthSpn 0"}));
}

TEST_F(CATDlgSpinnerTest, IsTypedInByAPerson) {
    EXPECT_EQ(Result(DialogUser::TypeValue(spinner, "2.5")), "done");
    EXPECT_EQ(spinner.GetValue(), 2.5);
    EXPECT_EQ(dialog->TakeHeard(), Texts{"SpinnerModify LengthSpn 2"});
    EXPECT_EQ(Result(DialogUser::TypeValue(spinner, "7,25")), "done");
    EXPECT_EQ(spinner.GetValue(), 7.25);
}

TEST_F(CATDlgSpinnerTest, TakesWholeNumbersAloneUnlessItIsMadeForOthers) {
    CATDlgSpinner& whole = Make<CATDlgSpinner>("WholeSpn", CATDlgSpnEntry);
    EXPECT_EQ(Result(DialogUser::TypeValue(whole, "2.5")),
              "Dlg/WholeSpn takes whole numbers, and '2.5' is none");
    EXPECT_EQ(whole.GetValue(), 0.0);
    EXPECT_EQ(Result(DialogUser::TypeValue(whole, "2.0")), "done");
    EXPECT_EQ(whole.GetValue(), 2.0);
}

TEST_F(CATDlgSpinnerTest, RefusesAPersonWhatItDoesNotTake) {
    spinner.SetValue(7.0);
    EXPECT_EQ(Result(DialogUser::TypeValue(spinner, "11")),
              "Dlg/LengthSpn does not take 11, which is out of its range");
    EXPECT_EQ(Result(DialogUser::TypeValue(spinner, "-1")),
              "Dlg/LengthSpn does not take -1, which is out of its range");
    EXPECT_EQ(Result(DialogUser::TypeValue(spinner, "ten")),
              "Dlg/LengthSpn takes numbers, and 'ten' is none");
    EXPECT_EQ(Result(DialogUser::TypeValue(spinner, "")), "Dlg/LengthSpn takes numbers, and '' is none");
    EXPECT_EQ(Result(DialogUser::TypeValue(spinner, "nan")),
              "Dlg/LengthSpn takes numbers, and 'nan' is none");
    CATDlgSpinner& arrowsOnly = Make<CATDlgSpinner>("ArrowSpn");
    EXPECT_EQ(Result(DialogUser::TypeValue(arrowsOnly, "2")), "Dlg/ArrowSpn has no field to type in");
    EXPECT_EQ(Result(DialogUser::Spin(arrowsOnly, 2)), "done");
    EXPECT_EQ(arrowsOnly.GetValue(), 2.0);
    EXPECT_EQ(spinner.GetValue(), 7.0);
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgSpinnerTest, KeepsItsPrecision) {
    spinner.SetPrecision(0, 0);
    EXPECT_EQ(Inspector::RangeOf(spinner).precision, 0);
    spinner.SetPrecision(3, 1);
    EXPECT_EQ(Inspector::RangeOf(spinner).precision, 3);
}

TEST_F(CATDlgSpinnerTest, ShowsTheDigitsThatItsPrecisionAsksFor) {
    spinner.SetMinMaxStep(-10.0, 10.0, 1.0, 0);
    spinner.SetValue(2.625);
    EXPECT_EQ(Inspector::ShownText(spinner), "2.625");
    spinner.SetPrecision(0, 0);
    EXPECT_EQ(Inspector::ShownText(spinner), "3");
    spinner.SetPrecision(2, 0);
    spinner.SetValue(2.0);
    EXPECT_EQ(Inspector::ShownText(spinner), "2.00");
    EXPECT_EQ(spinner.GetValue(), 2.0);
}

TEST_F(CATDlgSpinnerTest, NeverShowsMinusZeroNorAnEndlessNumber) {
    spinner.SetMinMaxStep(-10.0, 10.0, 1.0, 0);
    spinner.SetPrecision(1, 0);
    spinner.SetValue(-0.04);
    EXPECT_EQ(Inspector::ShownText(spinner), "0.0");
    spinner.SetValue(-0.05001);
    EXPECT_EQ(Inspector::ShownText(spinner), "-0.1");
    spinner.SetPrecision(INT_MAX, 0);
    spinner.SetValue(0.5);
    EXPECT_EQ(Inspector::ShownText(spinner), "0.500000000000000");
}

} // namespace
