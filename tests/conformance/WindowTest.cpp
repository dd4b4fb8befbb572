// Windows: the main window, dialogs and messages.

#include "CATApplicationFrame.h"
#include "CATDlgDocument.h"
#include "CATDlgNotify.h"

#include "Panels.h"

namespace {

class Windows : public DialogTest {};

// A dialog that is linked to the power input for its whole life.
class PowerInputPanel : public CATDlgDialog {
  public:
    explicit PowerInputPanel(CATDialog* iParent) : CATDlgDialog(iParent, "Edit") {
        SetPowerInputLink(1);
        UpdatePowerInput();
    }
    ~PowerInputPanel() override {
        SetPowerInputLink(0);
        UpdatePowerInput();
        ReleasePowerInputFocus();
    }
    PowerInputPanel(const PowerInputPanel&) = delete;
    PowerInputPanel& operator=(const PowerInputPanel&) = delete;
};

} // namespace

ASSUMED(Windows, TheApplicationFrameIsAlwaysThere, "open: the panels do not test for null") {
    ASSERT_NE(nullptr, CATApplicationFrame::GetFrame());
    EXPECT_EQ(CATApplicationFrame::GetFrame(), CATApplicationFrame::GetFrame());
}

CERTAIN(Windows, TheMainWindowIsADocument) {
    CATDialog* const main = CATApplicationFrame::GetFrame()->GetMainWindow();
    ASSERT_NE(nullptr, main);
    EXPECT_NE(0, main->IsAKindOf("CATDlgDocument"));
    EXPECT_EQ(main, panel->GetFather());
}

CERTAIN(Windows, AWindowTellsThatItWasMovedResizedOrClosed) {
    EXPECT_STREQ("CATDlgWindMoveNotification", panel->GetWindMoveNotification()->IsA());
    EXPECT_STREQ("CATDlgWindSizeNotification", panel->GetWindSizeNotification()->IsA());
    EXPECT_STREQ("CATDlgWindCloseNotification", panel->GetWindCloseNotification()->IsA());
}

CERTAIN(Windows, APanelHearsItsOwnWindow) {
    Hear(*panel, panel->GetWindMoveNotification(), "moved");
    Send(*panel, panel->GetWindMoveNotification());
    EXPECT_EQ(Journal{"moved"}, journal);
}

ASSUMED(Windows, AMoveByProgramIsNotNotified,
        "open: only a person's move may write the preferences; building and folding move the panel too") {
    Hear(*panel, panel->GetWindMoveNotification(), "moved");
    Hear(*panel, panel->GetWindSizeNotification(), "resized");
    panel->SetRectDimensions(5, 6, 340, 670);
    EXPECT_EQ(Journal(), journal);
    Send(*panel, panel->GetWindMoveNotification());
    EXPECT_EQ(Journal{"moved"}, journal);
}

ASSUMED(Windows, EachStandardButtonHasItsNotification, "recalled: sent when the button is pushed") {
    EXPECT_STREQ("CATDlgDiaOKNotification", panel->GetDiaOKNotification()->IsA());
    EXPECT_STREQ("CATDlgDiaCANCELNotification", panel->GetDiaCANCELNotification()->IsA());
    EXPECT_STREQ("CATDlgDiaAPPLYNotification", panel->GetDiaAPPLYNotification()->IsA());
    EXPECT_STREQ("CATDlgDiaCLOSENotification", panel->GetDiaCLOSENotification()->IsA());
    EXPECT_STREQ("CATDlgDiaHELPNotification", panel->GetDiaHELPNotification()->IsA());
}

ASSUMED(Windows, AButtonDoesNotCloseItsDialog, "recalled: the command hides or destroys the dialog") {
    panel->SetVisibility(CATDlgShow);
    Hear(*panel, panel->GetDiaOKNotification(), "OK");
    Send(*panel, panel->GetDiaOKNotification());
    EXPECT_EQ(Journal{"OK"}, journal);
    EXPECT_EQ(CATDlgShow, panel->GetVisibility());
}

ASSUMED(Windows, TheDefaultButtonIsNoneOrOK,
        "the numbers 0 and 1024 are given; that 1024 is the bit of OK is deduced") {
    EXPECT_EQ(1024UL, CATDlgWndOK);
    panel->SetDefaultButton(0);
    EXPECT_EQ(0UL, panel->GetDefaultButton());
    panel->SetDefaultButton(1024);
    EXPECT_EQ(CATDlgWndOK, panel->GetDefaultButton());
}

CERTAIN(Windows, ThePowerInputCallsComeInTheirOrderAndDisturbNothing) {
    panel->SetVisibility(CATDlgShow);
    panel->SetPowerInputLink(1);
    panel->UpdatePowerInput();
    panel->TakePowerInputFocus();
    panel->ReleasePowerInputFocus();
    panel->SetPowerInputLink(0);
    EXPECT_EQ(CATDlgShow, panel->GetVisibility());
    EXPECT_EQ(CATDlgEnable, panel->GetSensitivity());
    EXPECT_EQ(Journal(), journal);
}

ASSUMED(Windows, ReleasingThePowerInputWithoutHavingItIsHarmless,
        "open: the second release changes nothing") {
    panel->ReleasePowerInputFocus();
    panel->ReleasePowerInputFocus();
    EXPECT_EQ(Journal(), journal);
    EXPECT_EQ(CATDlgEnable, panel->GetSensitivity());
}

CERTAIN(Windows, APanelGivesThePowerInputBackWhileItIsDestroyed) {
    auto* const edit = new PowerInputPanel(panel);
    edit->TakePowerInputFocus();
    delete edit;
    panel->TakePowerInputFocus();
    panel->ReleasePowerInputFocus();
    EXPECT_EQ(Journal(), journal);
}

ASSUMED(Windows, TheStyleOfAnEditDialogIsThatOfANameDialogWithoutModal,
        "deduced from the sums that the panels pass; both have OK, Cancel and Apply") {
    const CATDlgStyle buttons =
        CATDlgWndOK | CATDlgWndCANCEL | CATDlgWndAPPLY | CATDlgWndHELP | CATDlgWndNoButton | CATDlgWndModal;
    EXPECT_EQ(CATDlgWndOK | CATDlgWndCANCEL | CATDlgWndAPPLY, 0x601C00UL & buttons);
    EXPECT_EQ(CATDlgWndModal, 0x601C00UL ^ 0x601E00UL);
}

ASSUMED(Windows, AMessageReturnsTheStandardButtonOfItsAnswer,
        "open: without anybody to answer, a message is recorded and answered with OK") {
    auto* const message = new CATDlgNotify(panel, "Warning", CATDlgNfyWarning);
    EXPECT_EQ(static_cast<int>(CATDlgWndOK), message->DisplayBlocked("The text", "The title"));
}

ASSUMED(Windows, AMessageHasItsNameAsTitleWithoutResource,
        "recalled: titles of all widgets are found alike") {
    auto* const message = new CATDlgNotify(panel, "Warning", CATDlgNfyWarning);
    EXPECT_STREQ("Warning", message->GetTitle().ConvertToChar());
}

CERTAIN(Windows, TheMainWindowTellsOfTheEscapeKey) {
    auto* const main = static_cast<CATDlgDocument*>(CATApplicationFrame::GetFrame()->GetMainWindow());
    ASSERT_NE(nullptr, main->GetEscapeNotification());
    EXPECT_EQ(main->GetEscapeNotification(), main->GetEscapeNotification());
}
