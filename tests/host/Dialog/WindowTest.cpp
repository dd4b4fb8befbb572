#include "CATDlgWindow.h"

#include "DialogTest.h"
#include "host/Inspector.h"

#include <array>

namespace {

using host::DialogUser;

class CATDlgWindowTest : public DialogTest {
  protected:
    static std::array<int, 4> Rectangle(const CATDialog& iWidget) {
        std::array<int, 4> values = {-7, -7, -7, -7};
        iWidget.GetRectDimensions(&values[0], &values[1], &values[2], &values[3]);
        return values;
    }
};

TEST_F(CATDlgWindowTest, StartsHidden) {
    EXPECT_EQ(MakeIn<CATDlgDialog>(MainWindow(), "Other").GetVisibility(), CATDlgHide);
}

TEST_F(CATDlgWindowTest, SendsItsOwnMoveToItselfWhenAPersonMovesIt) {
    dialog->Hear(*dialog, dialog->GetWindMoveNotification());
    dialog->onHeard = [this] {
        const std::array<int, 4> place = Rectangle(*dialog);
        return std::to_string(place[0]) + "," + std::to_string(place[1]);
    };
    dialog->SetRectDimensions(1, 2, 640, 670);
    EXPECT_EQ(dialog->TakeHeard(), Texts()) << "a move by program sends nothing";
    EXPECT_EQ(Result(DialogUser::Move(*dialog, 30, -40)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"WindMove Dlg 30,-40"});
    EXPECT_EQ(Rectangle(*dialog), (std::array<int, 4>{30, -40, 640, 670})) << "the extent stays";
}

TEST_F(CATDlgWindowTest, IsResizedByAPersonAtItsPlace) {
    dialog->HearClass(*dialog, "CATDlgWindSizeNotification");
    dialog->SetRectDimensions(1, 2, 640, 670);
    EXPECT_EQ(Result(DialogUser::Resize(*dialog, 340, 600)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"WindSize Dlg"});
    EXPECT_EQ(Rectangle(*dialog), (std::array<int, 4>{1, 2, 340, 600}));
    EXPECT_EQ(Result(DialogUser::Resize(*dialog, -1, 600)), "Dlg cannot have a negative extent");
    EXPECT_EQ(Result(DialogUser::Resize(*dialog, 340, -1)), "Dlg cannot have a negative extent");
    EXPECT_EQ(Rectangle(*dialog), (std::array<int, 4>{1, 2, 340, 600}));
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgWindowTest, StaysWhenItsCloseBoxIsPressed) {
    dialog->Hear(*dialog, dialog->GetWindCloseNotification());
    EXPECT_EQ(Result(DialogUser::Close(*dialog)), "done");
    EXPECT_EQ(dialog->TakeHeard(), Texts{"WindClose Dlg"});
    EXPECT_EQ(dialog->GetVisibility(), CATDlgShow);
}

TEST_F(CATDlgWindowTest, CannotBeMovedResizedOrClosedWhileItIsHidden) {
    dialog->Hear(*dialog, nullptr);
    dialog->SetVisibility(CATDlgHide);
    EXPECT_EQ(Result(DialogUser::Move(*dialog, 3, 4)), "Dlg is hidden");
    EXPECT_EQ(Result(DialogUser::Resize(*dialog, 3, 4)), "Dlg is hidden");
    EXPECT_EQ(Result(DialogUser::Close(*dialog)), "Dlg is hidden");
    EXPECT_EQ(Rectangle(*dialog), (std::array<int, 4>{0, 0, 0, 0}));
    EXPECT_EQ(dialog->TakeHeard(), Texts());
}

TEST_F(CATDlgWindowTest, IsListedBelowTheMainWindowInOrderOfCreation) {
    auto* const second = new CATDlgDialog(&MainWindow(), "Second");
    auto* const inSecond = new CATDlgDialog(second, "InSecond");
    auto* const third = new CATDlgDialog(&MainWindow(), "Third");
    EXPECT_EQ(host::Inspector::Windows(), (std::vector<CATDlgWindow*>{dialog, second, inSecond, third}));
    second->RequestDelayedDestruction();
    EXPECT_EQ(host::Inspector::Windows(), (std::vector<CATDlgWindow*>{dialog, third}))
        << "a window goes with its parent";
    const CATDlgDialog alone(nullptr, "Alone");
    EXPECT_EQ(TakeMisuses(), Texts{"the widget 'Alone' was made without a parent"});
    EXPECT_EQ(host::Inspector::Windows(), (std::vector<CATDlgWindow*>{dialog, third}));
}

class CATDlgDocumentTest : public CATDlgWindowTest {};

TEST_F(CATDlgDocumentTest, IsShownFromTheStart) {
    EXPECT_EQ(MainWindow().GetVisibility(), CATDlgShow);
}

TEST_F(CATDlgDocumentTest, SendsEscapeToTheActiveCommand) {
    EXPECT_EQ(Result(DialogUser::PressEscape(MainWindow())), "done");
    EXPECT_EQ(command.TakeHeard(), Texts{"Escape MainWindow"});
}

TEST_F(CATDlgDocumentTest, CountsAsShownAndEnabledForItsDialogs) {
    MainWindow().SetVisibility(CATDlgHide);
    MainWindow().SetSensitivity(CATDlgDisable);
    EXPECT_TRUE(host::Inspector::IsShownWithParents(*dialog));
    EXPECT_TRUE(host::Inspector::IsEnabledWithParents(*dialog));
    EXPECT_EQ(Result(DialogUser::CanUse(*dialog)), "done");
    EXPECT_TRUE(DialogUser::CanSee(*dialog));
}

} // namespace
