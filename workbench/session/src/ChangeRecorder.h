#pragma once

// Writes down what changes on the dialogs, a sentence for each widget.

#include "host/DialogObserver.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace session {

class ChangeRecorder : public host::DialogObserver {
  public:
    /// Knows the widgets that are there already.
    ChangeRecorder();
    ~ChangeRecorder() override;

    const std::vector<std::string>& Sentences() const { return _sentences; }
    void Forget() { _sentences.clear(); }

    // host::DialogObserver
    void OnChanges(const host::DialogChanges& changes) override;

  private:
    void NoteDestroyed(const std::vector<const CATDialog*>& destroyed);
    void NoteCreated(const std::vector<CATDialog*>& created);

    std::unordered_map<const CATDialog*, std::string> _paths; ///< of all widgets, for when they are gone
    std::vector<std::string> _sentences;
};

} // namespace session
