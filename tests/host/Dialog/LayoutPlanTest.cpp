#include "host/LayoutPlan.h"

#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "DialogTest.h"
#include "host/Inspector.h"

#include <climits>
#include <random>

namespace {

using host::Cell;
using host::LayoutPlan;
using host::PlanLayout;

class LayoutPlanTest : public DialogTest {
  protected:
    // "row,column rowsxcolumns sides" of a child, or "none".
    static std::string Told(const LayoutPlan& iPlan, const CATDialog& iChild) {
        const Cell* const cell = iPlan.CellOf(iChild);
        if (cell == nullptr)
            return "none";
        return std::to_string(cell->row) + "," + std::to_string(cell->column) + " " +
               std::to_string(cell->rowSpan) + "x" + std::to_string(cell->columnSpan) + " " +
               std::to_string(cell->sides);
    }
    std::string CellOf(const CATDialog& iChild) const { return Told(PlanLayout(frame), iChild); }
    // One character a line: > for one that takes surplus space.
    static std::string Stretches(const std::vector<bool>& iLines) {
        std::string text;
        for (const bool stretches : iLines)
            text.push_back(stretches ? '>' : '.');
        return text;
    }

    CATDlgFrame& frame = Make<CATDlgFrame>("Frm");
    CATDlgLabel& a = MakeIn<CATDlgLabel>(frame, "A");
    CATDlgLabel& b = MakeIn<CATDlgLabel>(frame, "B");
    CATDlgLabel& c = MakeIn<CATDlgLabel>(frame, "C");
};

TEST_F(LayoutPlanTest, IsEmptyWithoutChildren) {
    CATDlgFrame& empty = Make<CATDlgFrame>("Empty");
    const LayoutPlan plan = PlanLayout(empty);
    EXPECT_EQ(plan.rows, 0);
    EXPECT_EQ(plan.columns, 0);
    EXPECT_TRUE(plan.cells.empty());
    EXPECT_FALSE(plan.IsLeftOf(a, b)) << "neither is placed";
}

TEST_F(LayoutPlanTest, PutsChildrenSideBySideInOrderOfCreation) {
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(Told(plan, a), "0,0 1x1 10");
    EXPECT_EQ(Told(plan, b), "0,1 1x1 10");
    EXPECT_EQ(Told(plan, c), "0,2 1x1 10");
    EXPECT_TRUE(plan.IsLeftOf(a, b));
    EXPECT_FALSE(plan.IsLeftOf(b, a));
    EXPECT_FALSE(plan.IsAbove(a, b));
    EXPECT_FALSE(plan.IsLeftOf(a, a));
}

TEST_F(LayoutPlanTest, StacksChildrenInAVerticalContainer) {
    frame.SetDefaultOrientation(Vertical);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(Told(plan, a), "0,0 1x1 10");
    EXPECT_EQ(Told(plan, b), "1,0 1x1 10");
    EXPECT_EQ(Told(plan, c), "2,0 1x1 10");
    EXPECT_TRUE(plan.IsAbove(a, c));
    EXPECT_FALSE(plan.IsLeftOf(a, c));
}

TEST_F(LayoutPlanTest, KeepsAChildWithOneSideAttachedInTheCellBesideItsLine) {
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, nullptr);
    frame.SetVerticalAttachment(1, CATDlgTopOrLeft, &b, nullptr);
    frame.SetVerticalAttachment(1, CATDlgRightOrBottom, &c, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(Told(plan, a), "0,0 1x1 10");
    EXPECT_EQ(Told(plan, b), "0,1 1x1 10");
    EXPECT_EQ(Told(plan, c), "1,0 1x1 12") << "its right side ends on line 1";
    EXPECT_EQ(Stretches(plan.columnStretches), "..");
}

TEST_F(LayoutPlanTest, StretchesTowardsALineOfMode4ButNotOfMode3) {
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetVerticalAttachment(1, CATDlgRightOrBottomRelative, &a, &b, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgRightOrBottom, &a, nullptr);
    frame.SetHorizontalAttachment(2, CATDlgTopOrLeft, &b, nullptr);
    frame.SetHorizontalAttachment(3, CATDlgRightOrBottomRelative, &b, nullptr);
    c.SetVisibility(CATDlgHide);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(Told(plan, a), "0,0 1x1 30");
    EXPECT_EQ(Told(plan, b), "2,0 1x1 30");
    EXPECT_EQ(Stretches(plan.columnStretches), ">");
    EXPECT_EQ(Stretches(plan.rowStretches), "..>");
    EXPECT_EQ(plan.rows, 3);
    EXPECT_EQ(plan.columns, 1);
    EXPECT_TRUE(plan.IsAbove(a, b));
}

TEST_F(LayoutPlanTest, SpansTheCellsBetweenItsTwoLines) {
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, &c, nullptr);
    frame.SetVerticalAttachment(1, CATDlgTopOrLeft, &b, nullptr);
    frame.SetVerticalAttachment(2, CATDlgRightOrBottomRelative, &b, &c, nullptr);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(Told(plan, a), "0,0 1x1 10");
    EXPECT_EQ(Told(plan, b), "0,1 1x1 14");
    EXPECT_EQ(Told(plan, c), "1,0 1x2 14");
    EXPECT_EQ(Stretches(plan.columnStretches), ".>");
}

TEST_F(LayoutPlanTest, DoesNotCareForGapsInTheNumberingOrItsSign) {
    frame.SetVerticalAttachment(-40, CATDlgTopOrLeft, &a, nullptr);
    frame.SetVerticalAttachment(100, CATDlgTopOrLeft, &b, nullptr);
    frame.SetVerticalAttachment(INT_MAX, CATDlgTopOrLeft, &c, nullptr);
    frame.SetHorizontalAttachment(17, CATDlgTopOrLeft, &a, &b, &c, nullptr);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(Told(plan, a), "0,0 1x1 10");
    EXPECT_EQ(Told(plan, b), "0,1 1x1 10");
    EXPECT_EQ(Told(plan, c), "0,2 1x1 10");
}

TEST_F(LayoutPlanTest, HasACellBeforeTheFirstLineForAChildThatEndsThere) {
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetVerticalAttachment(INT_MIN, CATDlgRightOrBottom, &a, nullptr);
    frame.SetVerticalAttachment(INT_MIN, CATDlgTopOrLeft, &b, nullptr);
    c.SetVisibility(CATDlgHide);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(Told(plan, a), "0,0 1x1 12");
    EXPECT_EQ(Told(plan, b), "0,1 1x1 10");
    EXPECT_TRUE(plan.IsLeftOf(a, b));
}

TEST_F(LayoutPlanTest, PutsAChildThatOnlyEndsOnALineBehindOneThatSpansUpToIt) {
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, &c, nullptr);
    frame.SetVerticalAttachment(1, CATDlgRightOrBottomRelative, &a, &c, nullptr);
    frame.SetVerticalAttachment(1, CATDlgRightOrBottom, &b, nullptr);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(Told(plan, a), "0,0 1x1 14");
    EXPECT_EQ(Told(plan, b), "0,1 1x1 12");
    EXPECT_EQ(Told(plan, c), "1,0 1x2 14") << "what is in another row still reaches the line";
    EXPECT_EQ(Stretches(plan.columnStretches), ">.");
    EXPECT_TRUE(plan.IsLeftOf(a, b));
}

TEST_F(LayoutPlanTest, MovesWhatFollowsALineBeforeWhichRoomIsMade) {
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, &b, &c, nullptr);
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &b, nullptr);
    frame.SetVerticalAttachment(1, CATDlgRightOrBottom, &a, &b, nullptr);
    frame.SetVerticalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(Told(plan, b), "0,0 1x1 14");
    EXPECT_EQ(Told(plan, a), "0,1 1x1 12") << "whichever was made first";
    EXPECT_EQ(Told(plan, c), "0,2 1x1 10");
    EXPECT_EQ(plan.columns, 3);
}

TEST_F(LayoutPlanTest, GivesOneCellToAChildWhoseLinesAreCrossed) {
    frame.SetVerticalAttachment(5, CATDlgTopOrLeft, &a, nullptr);
    frame.SetVerticalAttachment(1, CATDlgRightOrBottom, &a, nullptr);
    EXPECT_EQ(PlanLayout(frame).CellOf(a)->columnSpan, 1);
}

TEST_F(LayoutPlanTest, TiesACentredChildToNoSide) {
    frame.SetVerticalAttachment(0, CATDlgCenter, &a, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgCenter, &a, nullptr);
    EXPECT_EQ(PlanLayout(frame).CellOf(a)->sides, 0U);
}

TEST_F(LayoutPlanTest, StacksChildrenThatAreAttachedInColumnsOnly) {
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, &b, &c, nullptr);
    frame.SetVerticalAttachment(1, CATDlgRightOrBottomRelative, &a, &b, &c, nullptr);
    for (const CATDlgOrientation orientation : {Horizontal, Vertical}) {
        frame.SetDefaultOrientation(orientation);
        const LayoutPlan plan = PlanLayout(frame);
        EXPECT_TRUE(plan.IsAbove(a, b));
        EXPECT_TRUE(plan.IsAbove(b, c));
        EXPECT_EQ(Told(plan, c), "2,0 1x1 14");
    }
}

TEST_F(LayoutPlanTest, PutsChildrenThatAreAttachedInRowsOnlyBehindEachOther) {
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_TRUE(plan.IsLeftOf(a, b));
    EXPECT_TRUE(plan.IsLeftOf(b, c));
    EXPECT_TRUE(plan.IsAbove(a, c));
}

// A row of buttons whose columns are told alone, in a container whose children stand side by side; the fourth
// child lies under the second.
TEST_F(LayoutPlanTest, AlignsTheTopsOfChildrenThatAreAttachedToDifferentColumnsOnly) {
    CATDlgFrame d(&frame, "D");
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, nullptr);
    frame.SetVerticalAttachment(2, CATDlgTopOrLeft, &b, &d, nullptr);
    frame.SetVerticalAttachment(4, CATDlgTopOrLeft, &c, nullptr);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(plan.rows, 2);
    EXPECT_EQ(plan.CellOf(a)->row, 0);
    EXPECT_EQ(plan.CellOf(b)->row, 0);
    EXPECT_EQ(plan.CellOf(c)->row, 0);
    EXPECT_EQ(plan.CellOf(d)->row, 1);
}

TEST_F(LayoutPlanTest, AlignsTheLeftSidesOfChildrenThatAreAttachedToDifferentRowsOnly) {
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    frame.SetDefaultOrientation(Vertical);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_TRUE(plan.IsLeftOf(a, b));
    EXPECT_EQ(plan.CellOf(c)->column, plan.CellOf(a)->column);
}

TEST_F(LayoutPlanTest, LetsUnattachedChildrenFollowBehindTheAttachedOnesInBothOrientations) {
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &c, nullptr);
    frame.SetVerticalAttachment(2, CATDlgRightOrBottomRelative, &c, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &c, nullptr);
    const LayoutPlan horizontal = PlanLayout(frame);
    EXPECT_TRUE(horizontal.IsLeftOf(c, a));
    EXPECT_TRUE(horizontal.IsLeftOf(a, b));
    frame.SetDefaultOrientation(Vertical);
    const LayoutPlan vertical = PlanLayout(frame);
    EXPECT_TRUE(vertical.IsAbove(c, a));
    EXPECT_TRUE(vertical.IsAbove(a, b));
}

TEST_F(LayoutPlanTest, LeavesHiddenChildrenAndWindowsOut) {
    auto* const window = new CATDlgDialog(&frame, "Window");
    window->SetVisibility(CATDlgShow);
    b.SetVisibility(CATDlgHide);
    frame.SetVerticalAttachment(5, CATDlgTopOrLeft, &b, nullptr);
    const LayoutPlan plan = PlanLayout(frame);
    EXPECT_EQ(Told(plan, b), "none");
    EXPECT_EQ(plan.CellOf(*window), nullptr);
    EXPECT_EQ(Told(plan, c), "0,1 1x1 10");
    EXPECT_EQ(plan.columns, 2);
}

class GridPlanTest : public LayoutPlanTest {
  protected:
    CATDlgFrame& grid = Make<CATDlgFrame>("Grid", 0x80001);
    CATDlgLabel& first = MakeIn<CATDlgLabel>(grid, "First");
    CATDlgLabel& second = MakeIn<CATDlgLabel>(grid, "Second");
    CATDlgLabel& third = MakeIn<CATDlgLabel>(grid, "Third");
};

TEST_F(GridPlanTest, PlacesChildrenByTheirConstraints) {
    first.SetGridConstraints(1, 2, 3, 4, CATGRID_4SIDES);
    second.SetGridConstraints(0, 0, 0, 0, CATGRID_CENTER);
    third.SetVisibility(CATDlgHide);
    grid.SetGridRowResizable(4);
    grid.SetGridRowResizable(99);
    grid.SetGridColumnResizable(0);
    const LayoutPlan plan = PlanLayout(grid);
    EXPECT_EQ(Told(plan, first), "1,2 4x3 30");
    EXPECT_EQ(Told(plan, second), "0,0 1x1 1");
    EXPECT_EQ(plan.rows, 5);
    EXPECT_EQ(plan.columns, 5);
    EXPECT_EQ(Stretches(plan.rowStretches), "....>");
    EXPECT_EQ(Stretches(plan.columnStretches), ">....");
}

TEST_F(GridPlanTest, PutsChildrenWithoutConstraintsBelowInOrderOfCreation) {
    second.SetGridConstraints(1, 1, 1, 1, CATGRID_4SIDES);
    const LayoutPlan plan = PlanLayout(grid);
    EXPECT_EQ(Told(plan, first), "2,0 1x1 10");
    EXPECT_EQ(Told(plan, third), "3,0 1x1 10");
    EXPECT_EQ(plan.rows, 4);
    ASSERT_EQ(plan.cells.size(), 3U);
    EXPECT_EQ(plan.cells[0].child, &first) << "cells are in order of creation";
    EXPECT_EQ(plan.cells[1].child, &second);
}

TEST_F(GridPlanTest, TakesNegativePlacesForTheFirstAndSpansForOne) {
    first.SetGridConstraints(-3, -1, -2, -2, CATGRID_LEFT);
    EXPECT_EQ(Told(PlanLayout(grid), first), "0,0 1x1 2");
}

TEST_F(GridPlanTest, IgnoresTabulationLinesInAGridAndConstraintsOutsideOne) {
    grid.SetVerticalAttachment(9, CATDlgTopOrLeft, &first, nullptr);
    first.SetGridConstraints(0, 0, 1, 1, CATGRID_LEFT);
    EXPECT_EQ(Told(PlanLayout(grid), first), "0,0 1x1 2");
    a.SetGridConstraints(7, 7, 1, 1, CATGRID_4SIDES);
    EXPECT_EQ(CellOf(a), "0,0 1x1 10");
}

TEST_F(LayoutPlanTest, LaysThePagesOfATabContainerBehindOneAnother) {
    CATDlgTabContainer& pages = Make<CATDlgTabContainer>("Tab");
    CATDlgTabPage& front = MakeIn<CATDlgTabPage>(pages, "Front");
    CATDlgTabPage& back = MakeIn<CATDlgTabPage>(pages, "Back");
    CATDlgTabPage& hidden = MakeIn<CATDlgTabPage>(pages, "Hidden");
    hidden.SetVisibility(CATDlgHide);
    const LayoutPlan plan = PlanLayout(pages);
    EXPECT_EQ(Told(plan, front), "0,0 1x1 30");
    EXPECT_EQ(Told(plan, back), "0,0 1x1 30");
    EXPECT_EQ(Told(plan, hidden), "none");
    EXPECT_EQ(Stretches(plan.rowStretches), ">");
    EXPECT_EQ(Stretches(plan.columnStretches), ">");
}

// Whatever is asked for, each shown child has one cell within the plan, and a child that is free in a
// direction shares its cells with nobody.
TEST_F(LayoutPlanTest, PlacesEveryShownChildOnceWhateverIsAskedFor) {
    std::mt19937 random(20240611);
    const auto below = [&random](int iLimit) {
        return static_cast<int>(random() % static_cast<unsigned int>(iLimit));
    };
    const CATDlgAttachment modes[] = {CATDlgTopOrLeft, CATDlgCenter, CATDlgRightOrBottom,
                                      CATDlgRightOrBottomRelative};
    for (int turn = 0; turn < 2000; ++turn) {
        CATDlgFrame& box = Make<CATDlgFrame>("Box");
        box.SetDefaultOrientation(below(2) == 0 ? Horizontal : Vertical);
        std::vector<CATDlgLabel*> children;
        for (int number = below(8); number >= 0; --number) {
            CATDlgLabel& child = MakeIn<CATDlgLabel>(box, "Lab");
            children.push_back(&child);
            for (int times = below(3); times > 0; --times)
                box.SetVerticalAttachment(below(7) - 3, modes[below(4)], &child, nullptr);
            for (int times = below(3); times > 0; --times)
                box.SetHorizontalAttachment(below(7) - 3, modes[below(4)], &child, nullptr);
            child.SetVisibility(below(5) == 0 ? CATDlgHide : CATDlgShow);
        }
        const LayoutPlan plan = PlanLayout(box);
        ASSERT_EQ(plan.rowStretches.size(), static_cast<std::size_t>(plan.rows));
        ASSERT_EQ(plan.columnStretches.size(), static_cast<std::size_t>(plan.columns));
        std::size_t shown = 0;
        for (const CATDlgLabel* child : children) {
            const Cell* const cell = plan.CellOf(*child);
            ASSERT_EQ(cell != nullptr, child->GetVisibility() == CATDlgShow);
            if (cell == nullptr)
                continue;
            ++shown;
            ASSERT_GE(cell->row, 0);
            ASSERT_GE(cell->column, 0);
            ASSERT_GE(cell->rowSpan, 1);
            ASSERT_GE(cell->columnSpan, 1);
            ASSERT_LE(cell->row + cell->rowSpan, plan.rows);
            ASSERT_LE(cell->column + cell->columnSpan, plan.columns);
            const host::Inspector::TabSpan columns = host::Inspector::ColumnsOf(*child);
            const host::Inspector::TabSpan rows = host::Inspector::RowsOf(*child);
            const bool isFree =
                (!columns.hasLeading && !columns.hasTrailing) || (!rows.hasLeading && !rows.hasTrailing);
            for (const CATDlgLabel* other : children) {
                if (!isFree || other == child || plan.CellOf(*other) == nullptr)
                    continue;
                ASSERT_TRUE(plan.IsLeftOf(*child, *other) || plan.IsLeftOf(*other, *child) ||
                            plan.IsAbove(*child, *other) || plan.IsAbove(*other, *child))
                    << "turn " << turn;
            }
        }
        ASSERT_EQ(plan.cells.size(), shown);
        delete &box;
    }
}

} // namespace
