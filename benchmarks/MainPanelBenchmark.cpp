// The main panel with everything in it, built and destroyed without windows: in parameter mode and in
// parameter-set mode, each text looked up in its resource file. And the thread page when another thread type
// is chosen that has 1,000 diameters.

#include "CATDlgCombo.h"
#include "CATDlgTabPage.h"
#include "OrvKvMainPanel.h"
#include "host/Application.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
#include "host/EventScope.h"
#include "host/Inspector.h"
#include "host/LiveObjects.h"
#include "host/MessageCatalogs.h"
#include "host/Parameters.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr int diameters = 1000;

std::size_t LengthOf(const CATUnicodeString& iText) {
    return static_cast<std::size_t>(iText.GetLengthInByte());
}

// Asks for every text that a person can see, as a window on a screen would.
std::size_t LookUpTexts(const CATDialog& iWidget) {
    std::size_t length = LengthOf(iWidget.GetShortHelp()) + LengthOf(iWidget.GetLongHelp());
    if (host::Inspector::ShowsTitle(iWidget))
        length += LengthOf(iWidget.GetTitle());
    for (const CATDialog* child = host::Inspector::FirstChild(iWidget); child != nullptr;
         child = host::Inspector::NextSibling(*child))
        length += LookUpTexts(*child);
    return length;
}

void BuildAndDestroy(benchmark::State& ioState) {
    host::MessageCatalogs::AddFolder(KELVANE_LIBRARY_MESSAGES);
    const host::Application application;
    const auto buildOne = [&] {
        auto* const panel = new OrvKvMainPanel(static_cast<unsigned char>(ioState.range(0)), 0);
        panel->Build();
        const std::size_t length = LookUpTexts(*panel);
        panel->RequestDelayedDestruction();
        host::EventScope::RunIdle();
        return length;
    };
    if (buildOne() < 500)
        ioState.SkipWithError("the texts of the panel are missing");
    const std::size_t before = host::LiveObjects::All().size();
    for (auto _ : ioState)
        benchmark::DoNotOptimize(buildOne());
    if (host::LiveObjects::All().size() != before)
        ioState.SkipWithError("the panel is not destroyed");
}

CATListValCATUnicodeString Designations(const char* iPrefix) {
    CATListValCATUnicodeString designations;
    for (int number = 1; number <= diameters; ++number)
        designations.Append((iPrefix + std::to_string(number)).c_str());
    return designations;
}

// Answers a chosen thread type as a command does: with the diameters of that type and new values.
class ThreadCommand : public CATCommand {
  public:
    ThreadCommand() : CATCommand(nullptr, "ThreadCommand") {
        _types.Append("Coarse");
        _types.Append("Fine");
    }

    void Fill(OrvKvMainPanel& ioPanel) {
        _panel = &ioPanel;
        const auto length = [](const char* iName) { return host::Parameters::NewLength(iName, 1.0); };
        _panel->SetThreadTypes(_types, -1, 0);
        _panel->SetThreadPanelParameters(length("Internal"), length("Diameter"), length("Length"),
                                         length("Pitch"));
        _panel->SetThread(1, 0);
    }
    int Answered() const { return _answered; }

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification* iNotification) override {
        if (_panel == nullptr || iNotification->IsAKindOf("OrvKvThreadTypeNotification") == 0)
            return CATNotifTransmitToFather;
        const int type = _answered++ % 2;
        _panel->RebuildThreadPanel(_types, type, type == 0 ? _coarse : _fine, 0);
        _panel->SetThreadValues(_value, _value, _value);
        return CATNotifDontTransmitToFather;
    }

  private:
    OrvKvMainPanel* _panel = nullptr;
    CATListValCATUnicodeString _types;
    CATListValCATUnicodeString _coarse = Designations("M");
    CATListValCATUnicodeString _fine = Designations("M1x");
    CATRawColldouble _value = [] {
        CATRawColldouble value;
        value.Append(2.5);
        return value;
    }();
    int _answered = 0;
};

void SwitchThreadType(benchmark::State& ioState) {
    ThreadCommand command;
    const host::Application application;
    host::Application::SetActiveCommand(&command);
    auto* const panel = new OrvKvMainPanel(0, 0);
    panel->Build();
    command.Fill(*panel);
    panel->SetVisibility(CATDlgShow);
    auto& page = dynamic_cast<CATDlgTabPage&>(*host::DialogPath::Find("ThreadPge").widget);
    auto& types = dynamic_cast<CATDlgCombo&>(*host::DialogPath::Find("ThreadTypeCmb").widget);
    if (!host::DialogUser::ShowPage(page))
        ioState.SkipWithError("the thread page cannot be used");
    int line = 0;
    for (auto _ : ioState) {
        line = line == 1 ? 2 : 1;
        if (!host::DialogUser::Choose(types, line))
            ioState.SkipWithError("the type cannot be chosen");
    }
    const auto* const combo = dynamic_cast<CATDlgCombo*>(host::DialogPath::Find("DiameterCmb").widget);
    if (combo == nullptr || combo->GetLineCount() != diameters)
        ioState.SkipWithError("the diameters are not listed");
    host::Application::SetActiveCommand(nullptr);
}

BENCHMARK(BuildAndDestroy)->Name("MainPanel/Ours")->Arg(0)->Arg(1);
BENCHMARK(SwitchThreadType)->Name("ThreadType/Ours");

} // namespace
