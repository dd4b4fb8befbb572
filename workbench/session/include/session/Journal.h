#pragma once

// Keeps what happens from one step of a session to the next.
//
//   Journal journal(recorder, Journal::WithChanges);
//   journal.StartStep();
//   ... a person does something ...
//   journal.SinceStep().notifications

#include "session/Happenings.h"

#include <cstddef>
#include <memory>

namespace session {

class ChangeRecorder;

class Journal {
  public:
    /// Changes of widgets are watched only on request; without it a run pays nothing for them.
    enum Watching { WithoutChanges, WithChanges };

    /// The recorder is not owned and outlives the journal. What it has heard already counts as happened.
    Journal(NotificationRecorder& recorder, Watching watching);
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    void StartStep();
    Happenings SinceStep() const;

  private:
    NotificationRecorder& _recorder;
    host::RecorderSink _traces;
    std::size_t _messagesBefore = 0;          ///< messages of the host's journal that are older than the step
    std::unique_ptr<ChangeRecorder> _changes; ///< null when changes are not watched
};

} // namespace session
