// A combo that is cleared, filled anew and set to a line whose notification somebody hears. The floor is a
// vector of strings, an index and a function. Both make each text from plain characters.

#include "ComboTexts.h"
#include "Sizes.h"

#include "CATDlgCombo.h"
#include "CATDlgDocument.h"
#include "host/Application.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

namespace {

// Hears the choice as a panel does.
class Panel : public CATDialog {
  public:
    explicit Panel(CATDialog* iParent)
        : CATDialog(iParent, "Panel"), _combo(new CATDlgCombo(this, "TypeSelectCombo", CATDlgCmbDropDown)) {
        AddAnalyseNotificationCB(_combo, _combo->GetComboSelectNotification(),
                                 static_cast<CATCommandMethod>(&Panel::OnSelect), nullptr);
    }

    void Refill(const std::vector<std::string>& iTexts) {
        _combo->ClearLine();
        for (const std::string& text : iTexts)
            _combo->SetLine(CATUnicodeString(text.c_str()));
        _combo->SetSelect(static_cast<int>(iTexts.size()) / 2, CATDlgWithNotification);
    }

    int Heard() const { return _heard; }

  private:
    void OnSelect(CATCommand*, CATNotification*, CATCommandClientData) { ++_heard; }

    CATDlgCombo* _combo; // belongs to the panel
    int _heard = 0;
};

class PlainCombo {
  public:
    PlainCombo() : _onSelect([this](int) { ++_heard; }) {}

    void Refill(const std::vector<std::string>& iTexts) {
        _lines.clear();
        _selected = -1;
        for (const std::string& text : iTexts) {
            const char* const characters = text.c_str();
            _lines.push_back(std::string(characters));
        }
        _selected = static_cast<int>(iTexts.size()) / 2;
        _onSelect(_selected);
        benchmark::ClobberMemory();
    }

    int Heard() const { return _heard; }

  private:
    std::vector<std::string> _lines;
    int _selected = -1;
    int _heard = 0;
    std::function<void(int)> _onSelect;
};

template<class Combo>
void Measure(benchmark::State& ioState, Combo& ioCombo) {
    const std::vector<std::string> texts = ComboTexts(static_cast<int>(ioState.range(0)));
    int refills = 0;
    for (auto _ : ioState) {
        ioCombo.Refill(texts);
        ++refills;
    }
    if (ioCombo.Heard() != refills)
        ioState.SkipWithError("not every choice was heard");
}

void RefillHostCombo(benchmark::State& ioState) {
    const host::Application application;
    Measure(ioState, *new Panel(&application.MainWindow())); // belongs to the main window
}

void RefillPlainCombo(benchmark::State& ioState) {
    PlainCombo combo;
    Measure(ioState, combo);
}

BENCHMARK(RefillHostCombo)->Name("ComboRefill/Ours")->Apply(ComboSizes);
BENCHMARK(RefillPlainCombo)->Name("ComboRefill/Floor")->Apply(ComboSizes);

} // namespace
