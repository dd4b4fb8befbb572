#include "CATDlgCombo.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "DialogTest.h"
#include "host/DialogPath.h"
#include "host/Inspector.h"

namespace {

using host::DialogPath;
using host::DialogUser;
using host::Inspector;

class DialogCopyTest : public DialogTest {};

TEST_F(DialogCopyTest, HasTheLookOfTheOriginalAndNeitherParentNorChildren) {
    CATDlgFrame& frame = Make<CATDlgFrame>("Frm", CATDlgGridLayout);
    MakeIn<CATDlgLabel>(frame, "Lab");
    frame.SetTitle("Title");
    frame.SetShortHelp("Help");
    frame.SetVisibility(CATDlgHide);
    frame.SetSensitivity(CATDlgDisable);
    frame.SetDefaultOrientation(Vertical);
    frame.SetRectDimensions(1, 2, 3, 4);
    const CATDlgFrame copy(frame);
    EXPECT_STREQ(copy.GetName().ConvertToChar(), "Frm");
    EXPECT_STREQ(copy.GetTitle().ConvertToChar(), "Title");
    EXPECT_STREQ(copy.GetShortHelp().ConvertToChar(), "Help");
    EXPECT_EQ(copy.GetVisibility(), CATDlgHide);
    EXPECT_EQ(copy.GetSensitivity(), CATDlgDisable);
    EXPECT_EQ(Inspector::Style(copy), CATDlgGridLayout);
    EXPECT_EQ(Inspector::DefaultOrientation(copy), Vertical);
    EXPECT_EQ(Inspector::Parent(copy), nullptr);
    EXPECT_EQ(copy.GetFather(), nullptr);
    EXPECT_TRUE(Inspector::Children(copy).empty());
    EXPECT_EQ(Inspector::Children(*dialog).size(), 1U);
    frame.SetTitle("Other");
    EXPECT_STREQ(copy.GetTitle().ConvertToChar(), "Title");
}

TEST_F(DialogCopyTest, TakesTheLookByAssignmentAndKeepsItsPlaceAndName) {
    CATDlgFrame& from = Make<CATDlgFrame>("From", CATDlgGridLayout);
    CATDlgFrame& to = Make<CATDlgFrame>("To");
    CATDlgLabel& label = MakeIn<CATDlgLabel>(to, "Lab");
    to.SetTitle("To");
    from.SetTitle("From");
    from.SetDefaultOrientation(Vertical);
    from.SetVisibility(CATDlgHide);
    to = from;
    const CATDlgFrame& itself = to;
    to = itself;
    EXPECT_STREQ(to.GetName().ConvertToChar(), "To");
    EXPECT_STREQ(to.GetTitle().ConvertToChar(), "From");
    EXPECT_EQ(to.GetVisibility(), CATDlgHide);
    EXPECT_EQ(Inspector::DefaultOrientation(to), Vertical);
    EXPECT_EQ(Inspector::Parent(to), dialog);
    EXPECT_EQ(Inspector::Children(to), std::vector<CATDialog*>{&label});
}

TEST_F(DialogCopyTest, DoesNotBlockAnythingWhenAShownModalDialogIsCopied) {
    ListeningDialog& modal = MakeDialog("Modal", CATDlgWndModal);
    const CATDlgDialog copy(modal);
    delete &modal;
    EXPECT_EQ(copy.GetVisibility(), CATDlgShow);
    EXPECT_EQ(Result(DialogUser::CanUse(*dialog)), "done");
    EXPECT_EQ(DialogPath::Find("Modal").widget, nullptr);
}

TEST_F(DialogCopyTest, HasNotificationObjectsAndSubscriptionsOfItsOwn) {
    CATDlgPushButton& button = Make<CATDlgPushButton>("Pbt");
    dialog->Hear(button, button.GetPushBActivateNotification());
    CATDlgPushButton copy(button);
    EXPECT_NE(copy.GetPushBActivateNotification(), button.GetPushBActivateNotification());
    EXPECT_EQ(Result(DialogUser::Press(copy)), "Pbt is in no window");
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(DialogCopyTest, HasTheLinesAndSelectionOfACombo) {
    CATDlgCombo& combo = Make<CATDlgCombo>("Cmb");
    combo.SetLine("A");
    combo.SetLine("B");
    combo.SetSelect(1);
    CATDlgCombo copy(combo);
    combo.ClearLine();
    EXPECT_EQ(copy.GetLineCount(), 2);
    EXPECT_EQ(copy.GetSelect(), 1);
}

} // namespace
