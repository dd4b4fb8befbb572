#include "session/Player.h"

#include "Expectation.h"
#include "UserStep.h"
#include "host/EventScope.h"
#include "host/Messages.h"
#include "session/Counted.h"
#include "session/StepHandler.h"

namespace session {

namespace {

host::Outcome HandleAsOneEvent(StepHandler& handler, const Json& step) {
    const host::EventScope event;
    return handler.Do(step);
}

Failure UnusedAnswers(const Script& script, std::size_t count) {
    const int lastLine = script.steps.empty() ? 0 : script.steps.back().line;
    return {Failure::Expectation, lastLine, "at the end of the session every answer is used", "0",
            Counted(count, "answer") + " for which no message came"};
}

} // namespace

std::string ToText(const Failure& failure, const std::string& file) {
    const std::string place = file + ":" + std::to_string(failure.line) + ": ";
    if (failure.kind == Failure::Refusal)
        return place + "refused: " + failure.what;
    return place + failure.what + "\n  expected: " + failure.expected + "\n  actual:   " + failure.actual;
}

std::string Summary(const PlayResult& result) {
    return Counted(result.steps, "step") + ", " + Counted(result.expectations, "expectation") + ", " +
           Counted(result.failures.size(), "failure");
}

Player::Player(NotificationRecorder& recorder, Journal::Watching watching) : _journal(recorder, watching) {}

void Player::AddHandler(StepHandler& handler) {
    Form form = handler.Describe();
    _handlers[form.word] = &handler;
    _vocabulary.AddStep(std::move(form));
}

PlayResult Player::Play(const Script& script) {
    PlayResult result;
    const int answersBefore = host::Messages::QueuedAnswers();
    for (const Step& step : script.steps) {
        const std::optional<Failure> failure = Run(step);
        ++(step.IsExpectation() ? result.expectations : result.steps);
        Tell(step, failure ? &*failure : nullptr);
        if (!failure)
            continue;
        result.failures.push_back(*failure);
        if (failure->kind == Failure::Refusal)
            return result;
    }
    const int unused = host::Messages::QueuedAnswers() - answersBefore;
    if (unused > 0)
        result.failures.push_back(UnusedAnswers(script, static_cast<std::size_t>(unused)));
    return result;
}

std::optional<Failure> Player::Run(const Step& step) {
    if (step.IsExpectation())
        return CheckExpectation(step, _journal.SinceStep());
    _journal.StartStep();
    const auto handler = _handlers.find(step.Word());
    const host::Outcome outcome =
        handler == _handlers.end() ? DoAsUser(step.json) : HandleAsOneEvent(*handler->second, step.json);
    host::EventScope::RunIdle();
    if (outcome)
        return std::nullopt;
    return Failure{Failure::Refusal, step.line, outcome.reason, {}, {}};
}

void Player::Tell(const Step& step, const Failure* failure) {
    if (_listeners.empty())
        return;
    const Happenings happenings = _journal.SinceStep();
    for (StepListener* listener : _listeners)
        listener->AfterStep(step, happenings, failure);
}

} // namespace session
