#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "DialogTest.h"
#include "host/Inspector.h"

namespace {

using host::Inspector;

// What widgets ask for in their container, as it is recorded.
class LayoutRequestTest : public DialogTest {
  protected:
    // One text an attachment: "A vertical 0 1" for the left side of A on line 0.
    static Texts Told(const std::vector<host::Attachment>& iAttachments) {
        Texts texts;
        for (const host::Attachment& each : iAttachments)
            texts.push_back(std::string(each.child->GetName().ConvertToChar()) +
                            (each.vertical ? " vertical " : " horizontal ") + std::to_string(each.tab) + " " +
                            std::to_string(each.mode));
        return texts;
    }
    Texts All() const { return Told(Inspector::Attachments(frame)); }

    CATDlgFrame& frame = Make<CATDlgFrame>("Frm");
    CATDlgLabel& a = MakeIn<CATDlgLabel>(frame, "A");
    CATDlgLabel& b = MakeIn<CATDlgLabel>(frame, "B");
    CATDlgLabel& c = MakeIn<CATDlgLabel>(frame, "C");
};

TEST_F(LayoutRequestTest, NothingIsAttachedAtStart) {
    EXPECT_EQ(All(), Texts());
}

TEST_F(LayoutRequestTest, AttachesEachWidgetOfAListThatEndsWithNull) {
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &a, &b, nullptr);
    frame.SetHorizontalAttachment(7, CATDlgRightOrBottom, &c, nullptr);
    EXPECT_EQ(All(), (Texts{"A vertical 0 1", "B vertical 0 1", "C horizontal 7 3"}));
}

TEST_F(LayoutRequestTest, AttachesNothingForAnEmptyList) {
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, nullptr);
    frame.ResetAttachment(nullptr);
    frame.Attach4Sides(nullptr);
    EXPECT_EQ(All(), Texts());
}

TEST_F(LayoutRequestTest, RecordsEachModeOnItsSide) {
    frame.SetVerticalAttachment(1, CATDlgTopOrLeft, &a, nullptr);
    frame.SetVerticalAttachment(2, CATDlgRightOrBottomRelative, &a, nullptr);
    frame.SetHorizontalAttachment(3, CATDlgCenter, &a, nullptr);
    frame.SetHorizontalAttachment(4, CATDlgRightOrBottom, &a, nullptr);
    EXPECT_EQ(Told(Inspector::AttachmentsOf(a)),
              (Texts{"A vertical 1 1", "A vertical 2 4", "A horizontal 3 2", "A horizontal 4 3"}));
}

TEST_F(LayoutRequestTest, MovesASideThatIsAttachedAgain) {
    frame.SetVerticalAttachment(1, CATDlgTopOrLeft, &a, nullptr);
    frame.SetVerticalAttachment(5, CATDlgTopOrLeft, &a, nullptr);
    frame.SetVerticalAttachment(6, CATDlgRightOrBottomRelative, &a, nullptr);
    frame.SetVerticalAttachment(7, CATDlgRightOrBottom, &a, nullptr);
    EXPECT_EQ(All(), (Texts{"A vertical 5 1", "A vertical 7 3"}));
}

TEST_F(LayoutRequestTest, ResetsBothDirectionsOfTheListedWidgetsAlone) {
    frame.Attach4Sides(&a);
    frame.Attach4Sides(&b);
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &c, nullptr);
    frame.ResetAttachment(&a, &b, nullptr);
    EXPECT_EQ(All(), Texts{"C vertical 0 1"});
}

TEST_F(LayoutRequestTest, FillsItsContainerWithFourSides) {
    frame.Attach4Sides(&a);
    EXPECT_EQ(All(), (Texts{"A vertical 0 1", "A vertical 1 4", "A horizontal 0 1", "A horizontal 1 4"}));
}

TEST_F(LayoutRequestTest, LeavesOutWhatIsNoChildOfTheContainer) {
    CATDlgLabel& stranger = Make<CATDlgLabel>("Stranger");
    CATDlgFrame& inner = MakeIn<CATDlgFrame>(frame, "Inner");
    CATDlgLabel& grandchild = MakeIn<CATDlgLabel>(inner, "Grandchild");
    frame.SetVerticalAttachment(0, CATDlgTopOrLeft, &stranger, &a, &grandchild, nullptr);
    frame.SetHorizontalAttachment(0, CATDlgTopOrLeft, &stranger, nullptr);
    frame.Attach4Sides(&stranger);
    frame.Attach4Sides(&frame);
    EXPECT_EQ(All(), Texts{"A vertical 0 1"});
    EXPECT_EQ(Told(Inspector::AttachmentsOf(stranger)), Texts());
    EXPECT_EQ(Told(Inspector::AttachmentsOf(grandchild)), Texts());
    EXPECT_EQ(Told(Inspector::AttachmentsOf(frame)), Texts());
    dialog->Attach4Sides(&stranger);
    frame.ResetAttachment(&stranger, nullptr);
    EXPECT_EQ(Inspector::AttachmentsOf(stranger).size(), 4U) << "reset by its own container only";
}

TEST_F(LayoutRequestTest, KeepsGridConstraintsWithTheirMembersInOrder) {
    EXPECT_FALSE(Inspector::HasGridConstraints(a));
    a.SetGridConstraints(CATDlgGridConstraints(1, 2, 3, 4, CATGRID_4SIDES));
    b.SetGridConstraints(5, 6, 7, 8, 20);
    ASSERT_TRUE(Inspector::HasGridConstraints(a));
    const CATDlgGridConstraints first = Inspector::GridConstraints(a);
    EXPECT_EQ(first.Row, 1);
    EXPECT_EQ(first.Column, 2);
    EXPECT_EQ(first.H_Span, 3);
    EXPECT_EQ(first.V_Span, 4);
    EXPECT_EQ(first.Justification, 30U);
    EXPECT_EQ(Inspector::GridConstraints(b).V_Span, 8);
    EXPECT_EQ(Inspector::GridConstraints(b).Justification, CATGRID_RIGHT | CATGRID_BOTTOM);
}

TEST_F(LayoutRequestTest, StartsGridConstraintsAtTheFirstCellLeftAndTop) {
    const CATDlgGridConstraints constraints;
    EXPECT_EQ(constraints.Row, 0);
    EXPECT_EQ(constraints.Column, 0);
    EXPECT_EQ(constraints.H_Span, 0);
    EXPECT_EQ(constraints.V_Span, 0);
    EXPECT_EQ(constraints.Justification, CATGRID_LEFT | CATGRID_TOP);
}

TEST_F(LayoutRequestTest, LetsRowsAndColumnsOfTheGridTakeSurplusSpaceOrNot) {
    frame.SetGridRowResizable(1);
    frame.SetGridRowResizable(1);
    frame.SetGridColumnResizable(2, 1);
    EXPECT_TRUE(Inspector::IsGridRowResizable(frame, 1));
    EXPECT_FALSE(Inspector::IsGridRowResizable(frame, 2));
    EXPECT_TRUE(Inspector::IsGridColumnResizable(frame, 2));
    EXPECT_FALSE(Inspector::IsGridColumnResizable(frame, 1));
    frame.SetGridRowResizable(1, 0);
    frame.SetGridColumnResizable(7, 0);
    EXPECT_FALSE(Inspector::IsGridRowResizable(frame, 1));
}

TEST_F(LayoutRequestTest, RunsHorizontallyUnlessItIsTurned) {
    EXPECT_EQ(Inspector::DefaultOrientation(frame), Horizontal);
    frame.SetDefaultOrientation(Vertical);
    EXPECT_EQ(Inspector::DefaultOrientation(frame), Vertical);
}

} // namespace
