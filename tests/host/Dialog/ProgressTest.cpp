#include "CATDlgProgress.h"

#include "DialogTest.h"
#include "host/Inspector.h"

#include <climits>

namespace {

using host::Inspector;

class CATDlgProgressTest : public DialogTest {
  protected:
    CATDlgProgress& progress = Make<CATDlgProgress>("Bar");
};

TEST_F(CATDlgProgressTest, StartsAtZeroOfAHundred) {
    EXPECT_EQ(progress.GetPos(), 0);
    EXPECT_EQ(Inspector::RangeOf(progress).minimum, 0.0);
    EXPECT_EQ(Inspector::RangeOf(progress).maximum, 100.0);
    EXPECT_EQ(Inspector::RangeOf(progress).step, 1.0);
}

TEST_F(CATDlgProgressTest, StepsToItsMaximumAndStaysThere) {
    progress.SetRange(10, 15);
    progress.SetStep(2);
    std::vector<int> positions;
    for (int step = 0; step < 5; ++step) {
        positions.push_back(progress.GetPos());
        progress.StepIt();
    }
    EXPECT_EQ(positions, (std::vector<int>{10, 12, 14, 15, 15}));
}

TEST_F(CATDlgProgressTest, StepsBackToItsMinimumAtMost) {
    progress.SetRange(0, 5);
    progress.StepIt();
    progress.SetStep(-3);
    progress.StepIt();
    EXPECT_EQ(progress.GetPos(), 0);
}

TEST_F(CATDlgProgressTest, BeginsAnewWithEachRange) {
    progress.StepIt();
    progress.SetRange(0, 100);
    EXPECT_EQ(progress.GetPos(), 0);
}

TEST_F(CATDlgProgressTest, TakesAMaximumBelowTheMinimumForTheMinimum) {
    progress.SetRange(8, 3);
    EXPECT_EQ(progress.GetPos(), 8);
    progress.StepIt();
    EXPECT_EQ(progress.GetPos(), 8);
    EXPECT_EQ(Inspector::RangeOf(progress).maximum, 8.0);
}

TEST_F(CATDlgProgressTest, DoesNotOverflow) {
    progress.SetRange(INT_MIN, INT_MAX);
    progress.SetStep(INT_MAX);
    for (int step = 0; step < 4; ++step)
        progress.StepIt();
    EXPECT_EQ(progress.GetPos(), INT_MAX);
    progress.SetStep(INT_MIN);
    for (int step = 0; step < 4; ++step)
        progress.StepIt();
    EXPECT_EQ(progress.GetPos(), INT_MIN);
}

TEST_F(CATDlgProgressTest, SendsNothing) {
    progress.SetRange(0, 3);
    progress.StepIt();
    EXPECT_EQ(command.TakeHeard(), Texts());
}

} // namespace
