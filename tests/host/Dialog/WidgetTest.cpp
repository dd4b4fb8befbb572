#include "CATDialog.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgContainer.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgMultiList.h"
#include "CATDlgProgress.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "DialogTest.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"

#include <array>

namespace {

using host::Inspector;

class CATDialogTest : public DialogTest {
  protected:
    static std::array<int, 4> Rectangle(const CATDialog& iWidget) {
        std::array<int, 4> values = {-7, -7, -7, -7};
        iWidget.GetRectDimensions(&values[0], &values[1], &values[2], &values[3]);
        return values;
    }

    CATDlgFrame& frame = Make<CATDlgFrame>("Frm");
};

TEST_F(CATDialogTest, IsNamedAndShownAndEnabledFromTheStart) {
    EXPECT_STREQ(frame.GetName().ConvertToChar(), "Frm");
    EXPECT_STREQ(frame.GetResourceName().ConvertToChar(), "Frm");
    EXPECT_EQ(frame.GetVisibility(), CATDlgShow);
    EXPECT_EQ(frame.GetSensitivity(), CATDlgEnable);
    EXPECT_EQ(frame.GetFather(), dialog);
    EXPECT_EQ(Inspector::Style(Make<CATDlgFrame>("Styled", 0xC0000)), 0xC0000U);
}

TEST_F(CATDialogTest, StandsWithItsBaseInTheClassTree) {
    CATDlgTabContainer& pages = Make<CATDlgTabContainer>("Tab");
    const std::vector<std::pair<CATDialog*, const char*>> bases = {
        {dialog, "CATDlgWindow"},
        {&MainWindow(), "CATDlgWindow"},
        {&frame, "CATDlgBox"},
        {&pages, "CATDlgBox"},
        {&MakeIn<CATDlgTabPage>(pages, "Pge"), "CATDlgBox"},
        {&Make<CATDlgContainer>("Con"), "CATDlgBox"},
        {&Make<CATDlgLabel>("Lab"), "CATDlgControl"},
        {&Make<CATDlgEditor>("Edt"), "CATDlgControl"},
        {&Make<CATDlgPushButton>("Pbt"), "CATDlgControl"},
        {&Make<CATDlgRadioButton>("Rdb"), "CATDlgControl"},
        {&Make<CATDlgCheckButton>("Ckb"), "CATDlgControl"},
        {&Make<CATDlgCombo>("Cmb"), "CATDlgControl"},
        {&Make<CATDlgSpinner>("Spn"), "CATDlgControl"},
        {&Make<CATDlgMultiList>("Mul"), "CATDlgControl"},
        {&Make<CATDlgProgress>("Bar"), "CATDlgControl"}};
    for (const auto& [widget, base] : bases) {
        EXPECT_TRUE(widget->IsAKindOf(base)) << widget->IsA();
        EXPECT_TRUE(widget->IsAKindOf("CATDialog")) << widget->IsA();
        EXPECT_TRUE(widget->IsAKindOf("CATCommand")) << widget->IsA();
        EXPECT_TRUE(widget->IsAKindOf("CATEventSubscriber")) << widget->IsA();
    }
    EXPECT_FALSE(frame.IsAKindOf("CATDlgControl"));
}

TEST_F(CATDialogTest, KeepsItsOwnVisibilityApartFromThatOfItsParents) {
    dialog->SetVisibility(CATDlgHide);
    EXPECT_EQ(frame.GetVisibility(), CATDlgShow);
    EXPECT_FALSE(Inspector::IsShownWithParents(frame));
    frame.SetVisibility(CATDlgHide);
    dialog->SetVisibility(CATDlgShow);
    EXPECT_EQ(frame.GetVisibility(), CATDlgHide);
    EXPECT_FALSE(Inspector::IsShownWithParents(frame));
    frame.SetVisibility(CATDlgShow);
    EXPECT_TRUE(Inspector::IsShownWithParents(frame));
}

TEST_F(CATDialogTest, KeepsItsOwnSensitivityApartFromThatOfItsParents) {
    dialog->SetSensitivity(CATDlgDisable);
    EXPECT_EQ(frame.GetSensitivity(), CATDlgEnable);
    EXPECT_FALSE(Inspector::IsEnabledWithParents(frame));
    frame.SetSensitivity(CATDlgDisable);
    dialog->SetSensitivity(CATDlgEnable);
    EXPECT_EQ(frame.GetSensitivity(), CATDlgDisable);
    frame.SetSensitivity(CATDlgEnable);
    EXPECT_TRUE(Inspector::IsEnabledWithParents(frame));
}

TEST_F(CATDialogTest, TakesNoOtherValueForVisibilityAndSensitivity) {
    for (const CATULong value :
         {CATULong(0), CATULong(1), CATDlgShow | CATDlgHide, CATDlgEnable, ~CATULong(0)})
        frame.SetVisibility(value);
    EXPECT_EQ(frame.GetVisibility(), CATDlgShow);
    for (const CATULong value :
         {CATULong(0), CATULong(1), CATDlgEnable | CATDlgDisable, CATDlgHide, ~CATULong(0)})
        frame.SetSensitivity(value);
    EXPECT_EQ(frame.GetSensitivity(), CATDlgEnable);
}

TEST_F(CATDialogTest, SendsItsVisibilityNotificationOnceForEachChange) {
    dialog->Hear(frame, frame.GetVisibilityNotification());
    frame.SetVisibility(CATDlgShow);
    frame.SetVisibility(CATDlgHide);
    frame.SetVisibility(CATDlgHide);
    frame.SetVisibility(CATDlgShow);
    EXPECT_EQ(dialog->TakeHeard(), (Texts{"Visibility Frm", "Visibility Frm"}));
}

TEST_F(CATDialogTest, SendsNoVisibilityNotificationThatNobodyHasAskedFor) {
    frame.SetVisibility(CATDlgHide);
    EXPECT_EQ(command.TakeHeard(), Texts());
    frame.GetVisibilityNotification();
    frame.SetVisibility(CATDlgShow);
    EXPECT_EQ(command.TakeHeard(), Texts{"Visibility Frm"});
}

TEST_F(CATDialogTest, KeepsItsRectangleInTheGivenOrder) {
    EXPECT_EQ(Rectangle(frame), (std::array<int, 4>{0, 0, 0, 0}));
    frame.SetRectDimensions(10, 20, 640, 670);
    EXPECT_EQ(Rectangle(frame), (std::array<int, 4>{10, 20, 640, 670}));
    frame.SetRectDimensions(-1, -2, 0, 0);
    EXPECT_EQ(Rectangle(frame), (std::array<int, 4>{-1, -2, 0, 0}));
    int width = -7;
    frame.SetRectDimensions(1, 2, 3, 4);
    frame.GetRectDimensions(nullptr, nullptr, nullptr, &width);
    EXPECT_EQ(width, 4);
}

TEST_F(CATDialogTest, TakesTheIconsOfItsFourStates) {
    frame.SetIconName("I_Red", "I_Selected", "I_Focus", "I_Disabled");
    EXPECT_EQ(Inspector::Icons(frame).normal, "I_Red");
    EXPECT_EQ(Inspector::Icons(frame).selected, "I_Selected");
    EXPECT_EQ(Inspector::Icons(frame).focus, "I_Focus");
    EXPECT_EQ(Inspector::Icons(frame).disabled, "I_Disabled");
    frame.SetIconName("I_Green");
    EXPECT_EQ(Inspector::Icons(frame).normal, "I_Green");
    EXPECT_EQ(Inspector::Icons(frame).selected, "") << "what is not given is empty";
    frame.SetIconName(nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(Inspector::Icons(frame).normal, "");
}

TEST_F(CATDialogTest, TakesANullNameForAnEmptyOneAndRecordsTheMisuse) {
    const CATDlgFrame& nameless = *new CATDlgFrame(dialog, nullptr);
    EXPECT_STREQ(nameless.GetName().ConvertToChar(), "");
    EXPECT_EQ(TakeMisuses(), Texts{"a widget was made without a name"});
}

TEST_F(CATDialogTest, StandsAloneWithoutAParentAndRecordsTheMisuse) {
    {
        CATDlgFrame alone(nullptr, "Alone");
        EXPECT_EQ(TakeMisuses(), Texts{"the widget 'Alone' was made without a parent"});
        EXPECT_EQ(Inspector::Parent(alone), nullptr);
        EXPECT_EQ(Inspector::WindowOf(alone), nullptr);
        MakeIn<CATDlgLabel>(alone, "Lab");
        EXPECT_EQ(Result(host::DialogUser::CanUse(alone)), "Alone is in no window");
        EXPECT_FALSE(host::DialogUser::CanSee(alone));
    }
    EXPECT_EQ(TakeMisuses(), Texts());
}

TEST_F(CATDialogTest, SendsToItselfAndTheActiveCommandWithoutAParent) {
    ListeningDialog alone(nullptr, "Alone");
    TakeMisuses();
    alone.GetVisibilityNotification();
    alone.SetVisibility(CATDlgShow);
    EXPECT_EQ(command.TakeHeard(), Texts{"Visibility Alone"});
    alone.Hear(alone, alone.GetVisibilityNotification());
    alone.SetVisibility(CATDlgHide);
    EXPECT_EQ(alone.TakeHeard(), Texts{"Visibility Alone"});
    EXPECT_EQ(command.TakeHeard(), Texts());
}

TEST_F(CATDialogTest, RecordsAWidgetThatIsMadeInAControl) {
    CATDlgPushButton& button = Make<CATDlgPushButton>("Pbt");
    CATDlgLabel& label = MakeIn<CATDlgLabel>(button, "Lab");
    EXPECT_EQ(TakeMisuses(), Texts{"the widget 'Lab' was made in 'Pbt', which takes no children"});
    EXPECT_EQ(Inspector::Parent(label), &button);
}

TEST_F(CATDialogTest, IsNullWhenItsAllocationFails) {
    host::FaultPoints::FailCall(2, "widget allocation");
    CATDlgFrame* const first = new CATDlgFrame(dialog, "First");
    CATDlgFrame* const second = new CATDlgFrame(dialog, "Second");
    CATDlgFrame* const third = new CATDlgFrame(dialog, "Third");
    EXPECT_EQ(host::FaultPoints::PassedByName()["widget allocation"], 3);
    host::FaultPoints::Stop();
    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(Inspector::Children(*dialog), (std::vector<CATDialog*>{&frame, first, third}));
}

TEST_F(CATDialogTest, TellsItsWindow) {
    CATDlgLabel& label = MakeIn<CATDlgLabel>(frame, "Lab");
    EXPECT_EQ(Inspector::WindowOf(label), dialog);
    EXPECT_EQ(Inspector::WindowOf(*dialog), dialog);
    EXPECT_EQ(Inspector::WindowOf(MainWindow()), &MainWindow());
}

TEST_F(CATDialogTest, HasNoVisibleTextSizeUnlessItShowsText) {
    EXPECT_EQ(Inspector::VisibleTextHeight(frame), 0);
    EXPECT_EQ(Inspector::VisibleTextWidth(frame), 0);
}

TEST_F(CATDialogTest, SendsNothingForTextsHelpPlaceAndSensitivity) {
    frame.SetTitle("title");
    frame.SetShortHelp("short");
    frame.SetLongHelp("long");
    frame.SetHelp("status");
    frame.SetIconName("I_Red");
    frame.SetSensitivity(CATDlgDisable);
    frame.SetRectDimensions(1, 2, 3, 4);
    dialog->SetRectDimensions(1, 2, 3, 4);
    EXPECT_EQ(command.TakeHeard(), Texts());
}

} // namespace
