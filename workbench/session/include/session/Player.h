#pragma once

// Plays a session: does its steps as a person would and checks what it expects.
//
//   NotificationRecorder recorder(&command, &reader);
//   host::Application::SetActiveCommand(&recorder);
//   Player player(recorder, Journal::WithoutChanges);
//   command.Start();
//   const PlayResult result = player.Play(script);
//   for (const Failure& failure : result.failures)
//       std::cerr << ToText(failure, script.file) << '\n';
//
// A failed expectation is noted and the session goes on, so that one run tells of all of them. A step that is
// refused ends the session: what follows was meant for dialogs that are not as it supposes.

#include "session/Journal.h"
#include "session/Script.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace session {

class StepHandler;

struct Failure {
    enum Kind { Expectation, Refusal };

    Kind kind = Expectation;
    int line = 0;         ///< of the session, from 1
    std::string what;     ///< what was expected of what, or why the step was refused
    std::string expected; ///< JSON; empty for a refusal
    std::string actual;   ///< JSON, or the reason why there is no value; empty for a refusal
};

/// "file:line: what", for an expectation with the expected and the actual value below each other.
std::string ToText(const Failure& failure, const std::string& file);

struct PlayResult {
    std::size_t steps = 0;        ///< things done
    std::size_t expectations = 0; ///< things checked, the failed ones included
    std::vector<Failure> failures;
};

/// "5 steps, 16 expectations, 1 failure".
std::string Summary(const PlayResult& result);

/// Hears of each step when it is over.
class StepListener {
  public:
    StepListener() = default;
    StepListener(const StepListener&) = delete;
    StepListener& operator=(const StepListener&) = delete;
    virtual ~StepListener() = default;

    /// The failure is null when there was none.
    virtual void AfterStep(const Step& step, const Happenings& happenings, const Failure* failure) = 0;
};

class Player {
  public:
    /// What happens from now on counts for expectations before the first step. The recorder is not owned.
    Player(NotificationRecorder& recorder, Journal::Watching watching);

    /// Adds a step to the language; not owned. To be done before Words is used to read a script.
    void AddHandler(StepHandler& handler);
    /// Not owned.
    void AddListener(StepListener& listener) { _listeners.push_back(&listener); }

    const Vocabulary& Words() const { return _vocabulary; }
    /// What has happened since the last step, or since the player was made.
    Happenings SinceStep() const { return _journal.SinceStep(); }

    PlayResult Play(const Script& script);

  private:
    std::optional<Failure> Run(const Step& step);
    void Tell(const Step& step, const Failure* failure);

    Vocabulary _vocabulary;
    Journal _journal;
    std::map<std::string, StepHandler*> _handlers;
    std::vector<StepListener*> _listeners;
};

} // namespace session
