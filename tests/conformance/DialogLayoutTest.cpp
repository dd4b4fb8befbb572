// Values of tabulations, grids and styles. Places themselves are not told by the platform.

#include "CATDlgCombo.h"
#include "CATDlgContainer.h"
#include "CATDlgDefine.h"
#include "CATDlgDialog.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgGridConstraints.h"
#include "CATDlgMultiList.h"
#include "CATDlgNotify.h"
#include "CATDlgPushButton.h"
#include "CATDlgSpinner.h"

#include "Panels.h"

namespace {

class DialogLayout : public DialogTest {};

} // namespace

CERTAIN(DialogLayout, TheAttachmentsThatThePanelsUseHaveTheirNumbers) {
    EXPECT_EQ(1, static_cast<int>(CATDlgTopOrLeft));
    EXPECT_EQ(3, static_cast<int>(CATDlgRightOrBottom));
    EXPECT_EQ(4, static_cast<int>(CATDlgRightOrBottomRelative));
}

ASSUMED(DialogLayout, TheCentreIsTwo, "recalled: the number between; no panel uses it") {
    EXPECT_EQ(2, static_cast<int>(CATDlgCenter));
}

CERTAIN(DialogLayout, GridConstraintsStartAtTheFirstCellTiedLeftAndTop) {
    const CATDlgGridConstraints constraints;
    EXPECT_EQ(0, constraints.Row);
    EXPECT_EQ(0, constraints.Column);
    EXPECT_EQ(0, constraints.H_Span);
    EXPECT_EQ(0, constraints.V_Span);
    EXPECT_EQ(CATGRID_LEFT | CATGRID_TOP, constraints.Justification);
}

CERTAIN(DialogLayout, GridConstraintsAreMadeInTheOrderOfTheirMembers) {
    const CATDlgGridConstraints constraints(1, 2, 3, 4, CATGRID_4SIDES);
    const CATDlgGridConstraints copy(constraints);
    EXPECT_EQ(1, copy.Row);
    EXPECT_EQ(2, copy.Column);
    EXPECT_EQ(3, copy.H_Span);
    EXPECT_EQ(4, copy.V_Span);
    EXPECT_EQ(CATGRID_4SIDES, copy.Justification);
}

ASSUMED(DialogLayout, TheCellSidesAddUpToThirty,
        "the sum and the value 20 for right and bottom follow from the numbers that the panels pass") {
    EXPECT_EQ(30U, CATGRID_4SIDES);
    EXPECT_EQ(CATGRID_4SIDES, CATGRID_LEFT | CATGRID_RIGHT | CATGRID_TOP | CATGRID_BOTTOM);
    EXPECT_EQ(20U, CATGRID_RIGHT | CATGRID_BOTTOM);
}

ASSUMED(DialogLayout, TheStylesOfTheStandardButtonsFollowTheDocumentedOrder,
        "deduced from the sums that the panels pass and the order of the documented names") {
    EXPECT_EQ(0x200UL, CATDlgWndModal);
    EXPECT_EQ(0x400UL, CATDlgWndOK);
    EXPECT_EQ(0x800UL, CATDlgWndCANCEL);
    EXPECT_EQ(0x1000UL, CATDlgWndAPPLY);
    EXPECT_EQ(0x2000UL, CATDlgWndHELP);
    EXPECT_EQ(0x4000UL, CATDlgWndNoButton);
}

ASSUMED(DialogLayout, TheStylesOfTheWidgetsHaveTheValuesThatThePanelsPass,
        "deduced from the numbers that the panels pass and the documented names") {
    EXPECT_EQ(1UL, CATDlgGridLayout);
    EXPECT_EQ(0x80000UL, CATDlgFraNoFrame);
    EXPECT_EQ(0x40000UL, CATDlgFraNoTitle);
    EXPECT_EQ(0x40000UL, CATDlgCmbDropDown);
    EXPECT_EQ(0x40000UL, CATDlgLstMultisel);
    EXPECT_EQ(0x60000UL, CATDlgSpnEntry | CATDlgSpnDouble);
    EXPECT_EQ(0x80000UL, CATDlgPusNoShadow);
    EXPECT_EQ(0x4000000UL, CATDlgEdtReadOnly);
    EXPECT_EQ(0x4080000UL, CATDlgEdtReadOnly | CATDlgEdtMultiline);
}

CERTAIN(DialogLayout, TheStylesOfMessagesHaveTheirNumbers) {
    EXPECT_EQ(0x10000000UL, CATDlgNfyError);
    EXPECT_EQ(0x8000000UL, CATDlgNfyWarning);
}

CERTAIN(DialogLayout, TheModeThatAddsLinesIsSixtyFour) {
    EXPECT_EQ(64UL, CATDlgDataAdd);
}

ASSUMED(DialogLayout, TheModeThatReplacesLinesIsTheNextBit, "open: the number is given nowhere") {
    EXPECT_EQ(128UL, CATDlgDataModify);
}

CERTAIN(DialogLayout, ASpacerKeepsTheExtentThatItIsGiven) {
    auto* const spacer = new CATDlgContainer(panel, "Spacer");
    spacer->SetRectDimensions(1, 1, 30, 200);
    int height = 0;
    int width = 0;
    spacer->GetRectDimensions(nullptr, nullptr, &height, &width);
    EXPECT_EQ(30, height);
    EXPECT_EQ(200, width);
}

CERTAIN(DialogLayout, AttachingAndArrangingChangeNothingElse) {
    auto* const frame = new CATDlgFrame(panel, "Frame", CATDlgGridLayout);
    auto* const first = new CATDlgPushButton(frame, "First");
    auto* const second = new CATDlgPushButton(frame, "Second");
    second->SetVisibility(CATDlgHide);
    frame->SetDefaultOrientation(Vertical);
    frame->SetVerticalAttachment(0, CATDlgTopOrLeft, first, second, nullptr);
    frame->SetHorizontalAttachment(1, CATDlgRightOrBottomRelative, first, nullptr);
    frame->Attach4Sides(second);
    frame->ResetAttachment(first, second, nullptr);
    first->SetGridConstraints(0, 1, 1, 1, CATGRID_4SIDES);
    second->SetGridConstraints(CATDlgGridConstraints(1, 0, 1, 1, CATGRID_LEFT));
    frame->SetGridRowResizable(0);
    frame->SetGridColumnResizable(1, 0);
    EXPECT_EQ(CATDlgShow, first->GetVisibility());
    EXPECT_EQ(CATDlgHide, second->GetVisibility());
    EXPECT_EQ(frame, first->GetFather());
    EXPECT_EQ(Journal(), journal);
}
