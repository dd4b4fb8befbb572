// Ways in which Qt tells somebody above: a signal that one slot hears directly, and an event of a class of
// its own that each parent passes on to the next.

#include <QCoreApplication>
#include <QEvent>
#include <QPushButton>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr int levels = 5;

class PanelEvent : public QEvent {
  public:
    static Type Kind() {
        static const Type kind = static_cast<Type>(registerEventType());
        return kind;
    }
    PanelEvent() : QEvent(Kind()) {}
};

void Send(QObject* iReceiver) {
    const std::unique_ptr<PanelEvent> event = std::make_unique<PanelEvent>();
    QCoreApplication::sendEvent(iReceiver, event.get());
}

class Container : public QObject {
  public:
    using QObject::QObject;

  protected:
    // QObject
    bool event(QEvent* ioEvent) override {
        if (ioEvent->type() == PanelEvent::Kind())
            return QCoreApplication::sendEvent(parent(), ioEvent);
        return QObject::event(ioEvent);
    }
};

class Top : public QObject {
  public:
    int Heard() const { return _heard; }

  protected:
    // QObject
    bool event(QEvent* ioEvent) override {
        if (ioEvent->type() != PanelEvent::Kind())
            return QObject::event(ioEvent);
        ++_heard;
        return true;
    }

  private:
    int _heard = 0;
};

// The lowest of iCount containers below ioTop, to which they belong.
QObject* MakeChain(QObject& ioTop, int iCount) {
    QObject* lowest = &ioTop;
    for (int level = 0; level < iCount; ++level)
        lowest = new Container(lowest);
    return lowest;
}

void ClimbByEvent(benchmark::State& ioState) {
    Top top;
    const QObject* const sender = MakeChain(top, levels);
    int sent = 0;
    for (auto _ : ioState) {
        Send(sender->parent());
        ++sent;
    }
    if (top.Heard() != sent)
        ioState.SkipWithError("not every event reached the top");
}

void HearSignal(benchmark::State& ioState) {
    QPushButton button;
    int heard = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&heard]() { ++heard; });
    int sent = 0;
    for (auto _ : ioState) {
        emit button.clicked();
        ++sent;
    }
    if (heard != sent)
        ioState.SkipWithError("not every signal was heard");
}

// A button is pressed by program; the slot behind it sends an event up, past as many parents as in the host:
// containers, dialog and main window.
void ClickButton(benchmark::State& ioState) {
    Top top;
    QObject* const panel = MakeChain(top, 2 + levels);
    QPushButton button;
    QObject::connect(&button, &QPushButton::clicked, panel, [panel]() { Send(panel->parent()); });
    int pressed = 0;
    for (auto _ : ioState) {
        button.click();
        ++pressed;
    }
    if (top.Heard() != pressed)
        ioState.SkipWithError("not every press reached the top");
}

BENCHMARK(ClimbByEvent)->Name("Climb/QtEvent");
BENCHMARK(HearSignal)->Name("Climb/QtSignal");
BENCHMARK(ClickButton)->Name("Click/QtEvent");

} // namespace
