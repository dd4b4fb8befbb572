// The main panel as a hand-written Qt dialog of the same widgets: built and destroyed without being shown,
// opened and painted, and with another thread type chosen. Beside it the desktop's main panel, opened and
// painted. The first paint begins when a window that is built already is to be shown.

#include "QtMainPanel.h"

#include "OrvKvMainPanel.h"
#include "desktop/Desktop.h"
#include "host/Application.h"
#include "host/EventScope.h"
#include "host/MessageCatalogs.h"

#include <QApplication>
#include <QComboBox>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int diameters = 1000;

void BuildAndDestroy(benchmark::State& ioState) {
    for (auto _ : ioState)
        benchmark::DoNotOptimize(std::make_unique<QtMainPanel>(ioState.range(0) == 1).get());
}

// Notes that a widget was painted.
class PaintNote : public QObject {
  public:
    bool IsTaken() const { return _isTaken; }

    bool eventFilter(QObject*, QEvent* iEvent) override {
        _isTaken = _isTaken || iEvent->type() == QEvent::Paint;
        return false;
    }

  private:
    bool _isTaken = false;
};

// Lets a window draw itself. Whether it did.
bool Paint(QWidget& ioWindow) {
    PaintNote note;
    ioWindow.installEventFilter(&note);
    QApplication::processEvents();
    return ioWindow.isVisible() && note.IsTaken();
}

// What is timed of an opened window.
enum class Timed { All, FirstPaint };

// Building before the first paint does not count where the first paint is timed alone.
class Watch {
  public:
    Watch(benchmark::State& ioState, Timed iTimed)
        : _state(ioState), _isPaintAlone(iTimed == Timed::FirstPaint) {}

    void Building() {
        if (_isPaintAlone)
            _state.PauseTiming();
    }
    void Painting() {
        if (_isPaintAlone)
            _state.ResumeTiming();
    }
    // The end of the window counts with its building.
    void Ending() { Building(); }
    void Ended() { Painting(); }

  private:
    benchmark::State& _state;
    bool _isPaintAlone;
};

template<Timed What>
void OpenQt(benchmark::State& ioState) {
    Watch watch(ioState, What);
    for (auto _ : ioState) {
        watch.Building();
        auto panel = std::make_unique<QtMainPanel>(ioState.range(0) == 1);
        watch.Painting();
        panel->show();
        if (!Paint(*panel))
            ioState.SkipWithError("the dialog is not drawn");
        watch.Ending();
        panel.reset();
        watch.Ended();
    }
}

// The desktop is there already, as it is when a command opens its panel.
template<Timed What>
void OpenOurs(benchmark::State& ioState) {
    host::MessageCatalogs::AddFolder(KELVANE_LIBRARY_MESSAGES);
    const host::Application application;
    const desktop::Desktop windows;
    Watch watch(ioState, What);
    for (auto _ : ioState) {
        watch.Building();
        auto* const panel = new OrvKvMainPanel(static_cast<unsigned char>(ioState.range(0)), 0);
        panel->Build();
        host::EventScope::RunIdle();
        watch.Painting();
        panel->SetVisibility(CATDlgShow);
        host::EventScope::RunIdle();
        QWidget* const window = windows.WidgetOf(*panel);
        if (window == nullptr || !Paint(*window))
            ioState.SkipWithError("the panel is not drawn");
        watch.Ending();
        panel->RequestDelayedDestruction();
        host::EventScope::RunIdle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // no event loop runs that would
        watch.Ended();
    }
}

void SwitchThreadType(benchmark::State& ioState) {
    QtMainPanel panel(false);
    panel.ThreadTypes().addItems(
        {QStringLiteral("No Standard"), QStringLiteral("Coarse"), QStringLiteral("Fine")});
    QStringList coarse;
    QStringList fine;
    for (int number = 1; number <= diameters; ++number) {
        coarse.append(QStringLiteral("M%1").arg(number));
        fine.append(QStringLiteral("M1x%1").arg(number));
    }
    QObject::connect(&panel.ThreadTypes(), &QComboBox::currentIndexChanged, &panel,
                     [&](int iIndex) { panel.ShowThread(iIndex == 1 ? coarse : fine, 2.5); });
    int line = 0;
    for (auto _ : ioState) {
        line = line == 1 ? 2 : 1;
        panel.ThreadTypes().setCurrentIndex(line);
    }
    if (panel.ThreadDiameters().count() != diameters)
        ioState.SkipWithError("the diameters are not listed");
}

BENCHMARK(BuildAndDestroy)->Name("MainPanel/Qt")->Arg(0)->Arg(1);
BENCHMARK(OpenQt<Timed::All>)->Name("MainPanelOpened/Qt")->Arg(0)->Arg(1);
BENCHMARK(OpenOurs<Timed::All>)->Name("MainPanelOpened/Ours")->Arg(0)->Arg(1);
BENCHMARK(OpenQt<Timed::FirstPaint>)->Name("MainPanelFirstPaint/Qt")->Arg(0)->Arg(1);
BENCHMARK(OpenOurs<Timed::FirstPaint>)->Name("MainPanelFirstPaint/Ours")->Arg(0)->Arg(1);
BENCHMARK(SwitchThreadType)->Name("ThreadType/Qt");

} // namespace
