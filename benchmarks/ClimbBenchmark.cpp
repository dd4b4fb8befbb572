// Notifications on their way up, as panels of an add-in send them.
//
// Climb: a notification that is made on the heap climbs from five levels below a command to that command,
// which recognises it by its class. Click: a person presses a button five containers below its dialog; the
// panel around it hears the press and sends a notification of its own, which climbs through the containers,
// the dialog and the main window to the active command. The floors do the same with plain structures: no
// subscriptions, no commands that may die meanwhile, no modal windows or pages; a press only asks whether the
// button and its parents are shown and enabled.

#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATDlgFrame.h"
#include "CATDlgPushButton.h"
#include "CATMacForIUnknown.h"
#include "PlainNodes.h"
#include "host/Application.h"
#include "host/DialogUser.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

class PanelNotification : public CATNotification {
    CATDeclareClass;
};

CATImplementClass(PanelNotification, Implementation, CATNotification, CATNull);

namespace {

constexpr int levels = 5;

// Recognises the panel's notification.
class FeatureCommand : public CATCommand {
  public:
    FeatureCommand() : CATCommand(nullptr, "FeatureCommand") {}

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification* iNotification) override {
        if (iNotification->IsAKindOf(PanelNotification::ClassName()) == 0)
            return CATNotifTransmitToFather;
        ++_heard;
        return CATNotifDontTransmitToFather;
    }

    int Heard() const { return _heard; }

  private:
    int _heard = 0;
};

// A sub-panel with one button.
class Panel : public CATDlgFrame {
  public:
    explicit Panel(CATDialog* iParent)
        : CATDlgFrame(iParent, "PanelFrm"), _button(new CATDlgPushButton(this, "NewPbt")) {
        AddAnalyseNotificationCB(_button, _button->GetPushBActivateNotification(),
                                 static_cast<CATCommandMethod>(&Panel::OnPress), nullptr);
    }

    CATDlgPushButton& Button() const { return *_button; }

  private:
    void OnPress(CATCommand*, CATNotification*, CATCommandClientData) {
        SendNotification(GetFather(), new PanelNotification);
    }

    CATDlgPushButton* _button; // belongs to the panel
};

void ClimbHost(benchmark::State& ioState) {
    FeatureCommand top;
    std::vector<std::unique_ptr<CATCommand>> commands;
    CATCommand* lowest = &top;
    for (int level = 0; level < levels; ++level) {
        commands.push_back(std::make_unique<CATCommand>(lowest, "Command"));
        lowest = commands.back().get();
    }
    int sent = 0;
    for (auto _ : ioState) {
        lowest->SendNotification(lowest->GetFather(), new PanelNotification);
        ++sent;
    }
    if (top.Heard() != sent)
        ioState.SkipWithError("not every notification reached the command");
    while (!commands.empty())
        commands.pop_back();
}

void ClickHost(benchmark::State& ioState) {
    const host::Application application;
    FeatureCommand command;
    host::Application::SetActiveCommand(&command);
    auto* const dialog = new CATDlgDialog(&application.MainWindow(), "FeatureDlg");
    dialog->SetVisibility(CATDlgShow);
    CATDialog* container = dialog;
    for (int level = 1; level < levels; ++level)
        container = new CATDlgFrame(container, "ContainerFrm");
    const Panel& panel = *new Panel(container);
    int pressed = 0;
    for (auto _ : ioState)
        pressed += host::DialogUser::Press(panel.Button()).done ? 1 : 0;
    if (pressed == 0 || command.Heard() != pressed)
        ioState.SkipWithError("not every press reached the command");
}

struct PlainPanelEvent : PlainEvent {
    const char* Name() const override { return "PanelEvent"; }
};

bool CanPress(const PlainNode* iNode) {
    for (const PlainNode* node = iNode; node != nullptr; node = node->parent)
        if (!node->isShown || !node->isEnabled)
            return false;
    return true;
}

void SendPanelEvent(PlainNode* iTo) {
    const std::unique_ptr<PlainEvent> event = std::make_unique<PlainPanelEvent>();
    Climb(iTo, *event);
}

struct PlainTop : PlainNode {
    PlainTop() : PlainNode(nullptr) {}
    bool Handle(const PlainEvent& iEvent) override {
        if (std::strcmp(iEvent.Name(), "PanelEvent") != 0)
            return false;
        ++heard;
        return true;
    }

    int heard = 0;
};

struct PlainPanel : PlainNode {
    explicit PlainPanel(PlainNode* iParent) : PlainNode(iParent) {}
    bool Handle(const PlainEvent& iEvent) override {
        if (std::strcmp(iEvent.Name(), "PressEvent") != 0)
            return false;
        SendPanelEvent(parent);
        return true;
    }
};

void ClimbPlain(benchmark::State& ioState) {
    PlainTop top;
    const auto chain = MakeChain(top, levels);
    PlainNode* sender = chain.back().get();
    int sent = 0;
    for (auto _ : ioState) {
        benchmark::DoNotOptimize(sender);
        SendPanelEvent(sender->parent);
        ++sent;
    }
    if (top.heard != sent)
        ioState.SkipWithError("not every event reached the top");
}

// The chain stands for the main window, the dialog and the containers around the panel.
void ClickPlain(benchmark::State& ioState) {
    PlainTop top;
    const auto chain = MakeChain(top, 2 + levels - 1);
    PlainPanel panel(chain.back().get());
    PlainNode button(&panel);
    const PlainEvent press;
    PlainNode* pressedButton = &button;
    int pressed = 0;
    for (auto _ : ioState) {
        benchmark::DoNotOptimize(pressedButton);
        if (!CanPress(pressedButton))
            continue;
        Climb(pressedButton->parent, press);
        ++pressed;
    }
    if (top.heard != pressed)
        ioState.SkipWithError("not every press reached the top");
}

BENCHMARK(ClimbHost)->Name("Climb/Ours");
BENCHMARK(ClimbPlain)->Name("Climb/Floor");
BENCHMARK(ClickHost)->Name("Click/Ours");
BENCHMARK(ClickPlain)->Name("Click/Floor");

} // namespace
