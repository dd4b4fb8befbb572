#pragma once

// A step that a command adds to the language of sessions, such as the pick of an element in its part.

#include "host/Outcome.h"
#include "session/Json.h"
#include "session/Vocabulary.h"

namespace session {

class StepHandler {
  public:
    StepHandler() = default;
    StepHandler(const StepHandler&) = delete;
    StepHandler& operator=(const StepHandler&) = delete;
    virtual ~StepHandler() = default;

    /// The word behind "do" and the keys beside it.
    virtual Form Describe() const = 0;

    /// Does what a person would do, as one event of the main loop. The keys of the step fit the form.
    virtual host::Outcome Do(const Json& step) = 0;
};

} // namespace session
