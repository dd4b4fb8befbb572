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

    static std::string NameAt(const LayoutPlan& iPlan, int iRow, int iColumn) {
        for (const Cell& cell : iPlan.cells)
            if (cell.row <= iRow && iRow < cell.row + cell.rowSpan && cell.column <= iColumn &&
                iColumn < cell.column + cell.columnSpan)
                return cell.child->GetName().ConvertToChar();
        return ".";
    }
    // The cells as one text a row with the name of the child in each, or a dot.
    static Texts DrawnIn(const CATDialog& iContainer) {
        const LayoutPlan plan = PlanLayout(iContainer);
        Texts lines;
        for (int row = 0; row < plan.rows; ++row) {
            std::string line;
            for (int column = 0; column < plan.columns; ++column)
                line += (column > 0 ? " " : "") + NameAt(plan, row, column);
            lines.push_back(line);
        }
        return lines;
    }
    Texts Drawn() const { return DrawnIn(frame); }

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

TEST_F(LayoutPlanTest, PutsChildrenThatAreAttachedInTheSameRowOnlyBehindEachOther) {
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    for (const CATDlgOrientation orientation : {Horizontal, Vertical}) {
        frame.SetDefaultOrientation(orientation);
        EXPECT_EQ(Drawn(), (Texts{"A B", "C C"})) << "each row starts at the left edge";
    }
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

// A child attached to a column only goes where that column has room behind what was created before it.
TEST_F(LayoutPlanTest, PutsAChildThatIsAttachedInColumnsOnlyIntoTheFirstFreeCellOfItsColumn) {
    CATDlgLabel& d = MakeIn<CATDlgLabel>(frame, "D");
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, &b, &c, nullptr);
    frame.SetVerticalAttachment(1, CATDlgTopOrLeft, &d, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &d, nullptr);
    frame.SetHorizontalAttachment(2, CATDlgTopOrLeft, &c, nullptr);
    EXPECT_EQ(Drawn(), (Texts{"A .", "B D", "C ."}));
    frame.ResetAttachment(&a, nullptr);
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, nullptr);
    EXPECT_EQ(Drawn(), (Texts{"A D", "C .", "B ."}))
        << "what is below C is free, above it there is no second";
    c.SetVisibility(CATDlgHide);
    EXPECT_EQ(Drawn(), (Texts{"A D", "B ."})) << "a hidden child holds no cell";
}

TEST_F(LayoutPlanTest, NeverPutsAChildThatIsAttachedInColumnsOnlyBeforeAnOlderSiblingOfItsColumn) {
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetVerticalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &a, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &c, nullptr);
    EXPECT_EQ(Drawn(), (Texts{". C", "A .", "B ."}));
}

TEST_F(LayoutPlanTest, KeepsAChildThatIsAttachedInColumnsOnlyOutOfTheCellsThatSpanningOnesCover) {
    CATDlgLabel& d = MakeIn<CATDlgLabel>(frame, "D");
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, &b, &c, nullptr);
    frame.SetVerticalAttachment(1, CATDlgTopOrLeft, &d, nullptr);
    frame.SetVerticalAttachment(2, CATDlgRightOrBottom, &b, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    frame.SetHorizontalAttachment(2, CATDlgTopOrLeft, &d, nullptr);
    frame.SetHorizontalAttachment(3, CATDlgRightOrBottom, &c, nullptr);
    EXPECT_EQ(Drawn(), (Texts{"A .", "C .", "C D", "B B"}));
}

TEST_F(LayoutPlanTest, LaysAChildThatIsAttachedInRowsOnlyAcrossTheFreeCellsOfItsRow) {
    CATDlgLabel& d = MakeIn<CATDlgLabel>(frame, "D");
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, nullptr);
    frame.SetVerticalAttachment(2, CATDlgTopOrLeft, &b, nullptr);
    frame.SetVerticalAttachment(4, CATDlgTopOrLeft, &d, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, &b, &d, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    EXPECT_EQ(Drawn(), (Texts{"A B D", "C C C"}));
    EXPECT_EQ(CellOf(c), "1,0 1x3 10") << "it keeps its natural size";
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &d, nullptr);
    EXPECT_EQ(Drawn(), (Texts{"A B .", "C C D"})) << "up to the next child";
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &c, nullptr);
    EXPECT_EQ(Drawn(), (Texts{"A B C", ". . D"})) << "behind those that were created before it";
}

// Where the columns are narrower than the child that lies across them, those keep their width that others
// see.
TEST_F(LayoutPlanTest, LetsAChildThatLiesAcrossWidenNoColumnInWhichAnotherWouldMove) {
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, nullptr);
    frame.SetVerticalAttachment(1, CATDlgTopOrLeft, &b, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetHorizontalAttachment(1, CATDlgTopOrLeft, &c, nullptr);
    EXPECT_EQ(Stretches(PlanLayout(frame).columnStretches), ".>") << "B keeps to its left side";
    frame.SetVerticalAttachment(2, CATDlgRightOrBottom, &b, nullptr);
    EXPECT_EQ(Drawn(), (Texts{"A B .", "C C C"}));
    EXPECT_EQ(Stretches(PlanLayout(frame).columnStretches), "..>") << "B reaches from line to line";
    frame.SetVerticalAttachment(1, CATDlgRightOrBottomRelative, &a, nullptr);
    EXPECT_EQ(Drawn(), (Texts{"A B", "C C"}));
    EXPECT_EQ(Stretches(PlanLayout(frame).columnStretches), ">.") << "A takes what there is anyway";
}

// A panel with two ways to choose, and the fields for each below it.
class TolerancePlanTest : public LayoutPlanTest {
  protected:
    CATDlgFrame& MakeTolerances(CATDialog& ioParent) {
        auto& panel = *new CATDlgFrame(&ioParent, "Tolerances");
        const auto make = [&panel](const char* iName) { return new CATDlgLabel(&panel, iName); };
        fit = make("Fit");
        CATDialog* const symmetric = make("Symmetric");
        CATDialog* const free = make("Free");
        CATDialog* const group = make("Group");
        CATDialog* const groups = make("Groups");
        CATDialog* const field = make("Field");
        CATDialog* const fields = make("Fields");
        CATDialog* const besideFit = make("GapA");
        CATDialog* const aboveMax = make("GapB");
        CATDialog* const max = make("Max");
        CATDialog* const maxValue = make("MaxValue");
        CATDialog* const min = make("Min");
        CATDialog* const minValue = make("MinValue");
        panel.SetHorizontalAttachment(0, CATDlgTopOrLeft, symmetric, besideFit, fit, nullptr);
        panel.SetHorizontalAttachment(1, CATDlgTopOrLeft, aboveMax, nullptr);
        panel.SetHorizontalAttachment(2, CATDlgTopOrLeft, max, group, nullptr);
        panel.SetHorizontalAttachment(3, CATDlgTopOrLeft, maxValue, groups, nullptr);
        panel.SetHorizontalAttachment(4, CATDlgTopOrLeft, min, field, nullptr);
        panel.SetHorizontalAttachment(5, CATDlgTopOrLeft, minValue, fields, nullptr);
        panel.SetVerticalAttachment(0, CATDlgTopOrLeft, symmetric, free, max, maxValue, min, minValue,
                                    nullptr);
        panel.SetVerticalAttachment(1, CATDlgTopOrLeft, besideFit, nullptr);
        panel.SetVerticalAttachment(2, CATDlgTopOrLeft, fit, group, groups, field, fields, nullptr);
        ofFit = {group, groups, field, fields};
        return panel;
    }

    CATDialog* fit = nullptr;
    std::vector<CATDialog*> ofFit; // shown in one of the ways only
};

TEST_F(TolerancePlanTest, PutsWhatIsAttachedInOneDirectionBesideItsNeighbours) {
    const CATDlgFrame& panel = MakeTolerances(frame);
    EXPECT_EQ(DrawnIn(panel), (Texts{
                                  "Symmetric GapA Fit",
                                  "Free GapB GapB",
                                  "Max . Group",
                                  "MaxValue . Groups",
                                  "Min . Field",
                                  "MinValue . Fields",
                              }));
}

TEST_F(TolerancePlanTest, StaysInPlaceWhenTheFieldsOfOneWayAreHidden) {
    const CATDlgFrame& panel = MakeTolerances(frame);
    for (CATDialog* const each : ofFit)
        each->SetVisibility(CATDlgHide);
    EXPECT_EQ(DrawnIn(panel), (Texts{"Symmetric GapA Fit", "Free GapB GapB", "Max . .", "MaxValue . .",
                                     "Min . .", "MinValue . ."}));
    fit->SetVisibility(CATDlgHide);
    EXPECT_EQ(DrawnIn(panel),
              (Texts{"Symmetric GapA", "Free GapB", "Max .", "MaxValue .", "Min .", "MinValue ."}));
}

// A value with its name beside it, a box to tick below the value, and a panel under all that.
TEST_F(TolerancePlanTest, LiesAcrossBelowTheNameAndTheValueOfAParameter) {
    CATDlgFrame& box = Make<CATDlgFrame>("Box");
    auto* const name = new CATDlgLabel(&box, "Name");
    auto* const value = new CATDlgLabel(&box, "Value");
    auto* const tick = new CATDlgLabel(&box, "Tick");
    auto* const gap = new CATDlgLabel(&box, "Gap");
    CATDlgFrame& panel = MakeTolerances(box);
    box.SetHorizontalAttachment(0, CATDlgTopOrLeft, name, gap, value, nullptr);
    box.SetHorizontalAttachment(1, CATDlgTopOrLeft, tick, nullptr);
    box.SetHorizontalAttachment(2, CATDlgTopOrLeft, &panel, nullptr);
    box.SetVerticalAttachment(0, CATDlgTopOrLeft, name, nullptr);
    box.SetVerticalAttachment(1, CATDlgTopOrLeft, gap, nullptr);
    box.SetVerticalAttachment(2, CATDlgTopOrLeft, value, tick, nullptr);
    EXPECT_EQ(DrawnIn(box), (Texts{"Name Gap Value", ". . Tick", "Tolerances Tolerances Tolerances"}));
    EXPECT_EQ(Stretches(PlanLayout(box).columnStretches), "..>");
    panel.SetVisibility(CATDlgHide);
    EXPECT_EQ(DrawnIn(box), (Texts{"Name Gap Value", ". . Tick"}));
    EXPECT_EQ(Stretches(PlanLayout(box).columnStretches), "...");
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
