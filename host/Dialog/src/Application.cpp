#include "host/Application.h"

#include "CATApplicationFrame.h"
#include "CATDlgDocument.h"
#include "CATError.h"
#include "WidgetTree.h"
#include "host/CommandInspection.h"
#include "host/DelayedDestruction.h"
#include "host/EventScope.h"
#include "host/Messages.h"
#include "host/Misuse.h"

namespace {

CATApplicationFrame* frame = nullptr;

} // namespace

CATApplicationFrame* CATApplicationFrame::GetFrame() {
    if (frame == nullptr)
        new host::Application; // lasts to the end of the process
    return frame;
}

namespace host {

Application::Application() {
    auto* const mainWindow = new CATDlgDocument(nullptr, "MainWindow");
    WidgetTree::SetRoot(mainWindow);
    frame = new CATApplicationFrame;
    frame->_mainWindow = mainWindow;
}

Application::~Application() {
    EventScope::RunIdle();
    delete frame->_mainWindow;
    DelayedDestruction::Drain();
    delete frame;
    frame = nullptr;
    SetActiveCommand(nullptr);
    Messages::Reset();
    Misuse::Clear();
    CATError::CATCleanLastError();
    CommandInspection::Reset();
}

CATDlgDocument& Application::MainWindow() const {
    return static_cast<CATDlgDocument&>(*frame->_mainWindow);
}

void Application::SetActiveCommand(CATCommand* iCommand) {
    CommandInspection::SetActiveCommand(iCommand);
}

CATCommand* Application::ActiveCommand() {
    return CommandInspection::ActiveCommand();
}

} // namespace host
