#pragma once

// Writes down a session as it is played: each step and what came of it.
//
//   12: {"do":"choose","at":"TypeSelectCombo","line":2}
//       notified OrvKvTypeSelectedNotification {"group":1,"type":3}
//       changed MainPanel/.../ParameterSetCmb (content, selection): 9 lines, line 0 "M3" chosen
//
// The same session gives the same transcript, on every machine and at any time.

#include "session/Player.h"

#include <ostream>

namespace session {

class Transcript : public StepListener {
  public:
    /// The stream outlives the transcript.
    explicit Transcript(std::ostream& output) : _output(output) {}

    /// The heading, and what happened before the first step.
    void Start(const std::string& title, const Happenings& before);
    /// The closing lines with the counts.
    void Finish(const PlayResult& result);

    // StepListener
    void AfterStep(const Step& step, const Happenings& happenings, const Failure* failure) override;

  private:
    void Write(const Happenings& happenings);

    std::ostream& _output;
};

} // namespace session
