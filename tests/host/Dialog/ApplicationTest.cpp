#include "host/Application.h"

#include "CATApplicationFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgNotify.h"
#include "CATError.h"
#include "CATInternalError.h"
#include "DialogTest.h"
#include "host/CommandInspection.h"
#include "host/DelayedDestruction.h"
#include "host/ErrorInspection.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/Messages.h"
#include "host/Misuse.h"

namespace {

class ApplicationTest : public DialogTest {};

TEST_F(ApplicationTest, HasOneFrameAndOneMainWindow) {
    ASSERT_NE(CATApplicationFrame::GetFrame(), nullptr);
    EXPECT_EQ(CATApplicationFrame::GetFrame(), CATApplicationFrame::GetFrame());
    EXPECT_EQ(CATApplicationFrame::GetFrame()->GetMainWindow(), &MainWindow());
    EXPECT_STREQ(MainWindow().GetName().ConvertToChar(), "MainWindow");
    EXPECT_TRUE(MainWindow().IsAKindOf("CATDlgDocument"));
}

TEST_F(ApplicationTest, DestroysTheDialogsThatAreLeftAndWhatIsQueued) {
    MakeDialog("Left");
    Make<CATDlgLabel>("Lab").RequestDelayedDestruction();
    MakeDialog("Queued").RequestDelayedDestruction();
    application.reset();
    EXPECT_EQ(host::DelayedDestruction::Pending(), 0);
    EXPECT_EQ(host::Inspector::Windows().size(), 0U);
}

TEST_F(ApplicationTest, ForgetsMessagesMisusesErrorsAndTheActiveCommandAtItsEnd) {
    host::Messages::Ask(host::Message{CATDlgNfyError, "Error", "text", "title", 0});
    host::Messages::QueueAnswer(3);
    host::Misuse::Record("a misuse");
    CATError::GetReturn(CATReturnKindError, new CATInternalError("Key"), nullptr, __FILE__, __LINE__);
    ASSERT_NE(host::ErrorInspection::LastError(), nullptr);
    ASSERT_EQ(host::Application::ActiveCommand(), &command);
    application.reset();
    EXPECT_TRUE(host::Messages::Journal().empty());
    EXPECT_EQ(host::Messages::QueuedAnswers(), 0);
    EXPECT_TRUE(host::Misuse::Recorded().empty());
    EXPECT_EQ(host::ErrorInspection::LastError(), nullptr);
    EXPECT_EQ(host::Application::ActiveCommand(), nullptr);
}

TEST_F(ApplicationTest, CanBeMadeAgain) {
    for (int turn = 0; turn < 3; ++turn) {
        application.reset();
        application = std::make_unique<host::Application>();
        EXPECT_EQ(host::Inspector::Windows().size(), 0U);
        MakeDialog("Again");
        EXPECT_EQ(host::Inspector::Windows().size(), 1U);
    }
}

TEST_F(ApplicationTest, SurvivesTheEndOfItsMainWindow) {
    MainWindow().RequestDelayedDestruction();
    host::DelayedDestruction::Drain();
    ASSERT_NE(CATApplicationFrame::GetFrame(), nullptr);
    EXPECT_EQ(CATApplicationFrame::GetFrame()->GetMainWindow(), nullptr);
}

TEST_F(ApplicationTest, GivesTheActiveCommandWhatNobodyBelowAnswersAndCountsTheRest) {
    dialog->GetVisibilityNotification();
    dialog->SetVisibility(CATDlgHide);
    EXPECT_EQ(command.TakeHeard(), Texts{"Visibility Dlg"});
    EXPECT_EQ(host::CommandInspection::UndeliveredNotifications(), 0);
    host::Application::SetActiveCommand(nullptr);
    dialog->SetVisibility(CATDlgShow);
    EXPECT_EQ(command.TakeHeard(), Texts());
    EXPECT_EQ(host::CommandInspection::UndeliveredNotifications(), 1);
}

TEST_F(ApplicationTest, IsMadeByTheFrameWhenThereIsNoneAndGivesWayToAnother) {
    application.reset();
    CATApplicationFrame* const frame = CATApplicationFrame::GetFrame();
    ASSERT_NE(frame, nullptr);
    EXPECT_NE(frame->GetMainWindow(), nullptr);
    EXPECT_EQ(CATApplicationFrame::GetFrame(), frame);
    new CATDlgDialog(frame->GetMainWindow(), "Left");
    application = std::make_unique<host::Application>();
    EXPECT_EQ(CATApplicationFrame::GetFrame()->GetMainWindow(), &MainWindow());
    EXPECT_EQ(host::Inspector::Windows().size(), 0U);
}

TEST_F(ApplicationTest, IsThereEvenWhenTheFirstWidgetFails) {
    application.reset();
    host::FaultPoints::FailCall(1, "widget allocation");
    application = std::make_unique<host::Application>();
    EXPECT_EQ(new CATDlgLabel(&MainWindow(), "Lab"), nullptr);
}

} // namespace
