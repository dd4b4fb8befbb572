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
host::Application* ownApplication = nullptr; // made because nobody else made one

} // namespace

CATApplicationFrame* CATApplicationFrame::GetFrame() {
    if (frame == nullptr)
        ownApplication = new host::Application; // lasts until there is another one
    return frame;
}

CATDialog* CATApplicationFrame::GetMainWindow() const {
    return host::WidgetTree::Root();
}

namespace host {

Application::Application() {
    delete ownApplication;
    ownApplication = nullptr;
    // The main window is not among the widgets whose allocation fails on request: nothing runs without it.
    WidgetTree::SetRoot(::new CATDlgDocument(nullptr, "MainWindow"));
    frame = new CATApplicationFrame;
}

Application::~Application() {
    EventScope::RunIdle();
    delete WidgetTree::Root();
    DelayedDestruction::Drain();
    EventScope::Flush();
    delete frame;
    frame = nullptr;
    SetActiveCommand(nullptr);
    Messages::Reset();
    Misuse::Clear();
    CATError::CATCleanLastError();
    CommandInspection::Reset();
}

CATDlgDocument& Application::MainWindow() const {
    return static_cast<CATDlgDocument&>(*WidgetTree::Root());
}

void Application::SetActiveCommand(CATCommand* iCommand) {
    CommandInspection::SetActiveCommand(iCommand);
}

CATCommand* Application::ActiveCommand() {
    return CommandInspection::ActiveCommand();
}

} // namespace host
