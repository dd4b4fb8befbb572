// A combo box that is cleared, filled anew and set to an entry which a slot hears of.

#include "ComboTexts.h"
#include "Sizes.h"

#include <QComboBox>

#include <benchmark/benchmark.h>

namespace {

void RefillComboBox(benchmark::State& ioState) {
    const std::vector<std::string> texts = ComboTexts(static_cast<int>(ioState.range(0)));
    const int chosen = static_cast<int>(texts.size()) / 2;
    QComboBox combo;
    int heard = 0;
    QObject::connect(&combo, &QComboBox::currentIndexChanged,
                     [&heard, chosen](int iIndex) { heard += iIndex == chosen ? 1 : 0; });
    int refills = 0;
    for (auto _ : ioState) {
        combo.clear();
        for (const std::string& text : texts)
            combo.addItem(QString::fromUtf8(text.c_str()));
        combo.setCurrentIndex(chosen);
        ++refills;
    }
    if (heard != refills)
        ioState.SkipWithError("not every choice was heard");
}

BENCHMARK(RefillComboBox)->Name("ComboRefill/QComboBox")->Apply(ComboSizes);

} // namespace
