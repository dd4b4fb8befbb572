#include "session/Transcript.h"

#include "session/Buttons.h"

namespace session {

namespace {

constexpr const char* indent = "    ";

} // namespace

void Transcript::Start(const std::string& title, const Happenings& before) {
    _output << title << "\n\nbefore the first step\n";
    Write(before);
}

void Transcript::AfterStep(const Step& step, const Happenings& happenings, const Failure* failure) {
    _output << step.line << ": " << ToLine(step.json) << '\n';
    if (!step.IsExpectation())
        Write(happenings);
    if (failure == nullptr)
        return;
    if (failure->kind == Failure::Refusal)
        _output << indent << "refused: " << failure->what << '\n';
    else
        _output << indent << "failed; actual: " << failure->actual << '\n';
}

void Transcript::Finish(const PlayResult& result) {
    _output << '\n' << Summary(result) << '\n';
}

void Transcript::Write(const Happenings& happenings) {
    for (const HeardNotification& heard : happenings.notifications) {
        _output << indent << "notified " << heard.className;
        if (!heard.values.empty())
            _output << ' ' << ToLine(heard.values);
        _output << '\n';
    }
    for (const host::Message& message : happenings.messages)
        _output << indent << "message " << ToLine(message.title) << ": " << ToLine(message.text)
                << " answered " << NameOfButton(static_cast<CATULong>(message.answer)) << '\n';
    for (const host::TraceLine& trace : happenings.traces)
        _output << indent << "trace " << trace.channel << ' ' << trace.level << ": " << ToLine(trace.text)
                << '\n';
    for (const std::string& change : happenings.changes)
        _output << indent << change << '\n';
}

} // namespace session
