#include "session/Journal.h"

#include "ChangeRecorder.h"

#include <algorithm>

namespace session {

Journal::Journal(NotificationRecorder& recorder, Watching watching) : _recorder(recorder) {
    host::Trace::AddSink(_traces);
    if (watching == WithChanges)
        _changes = std::make_unique<ChangeRecorder>();
}

Journal::~Journal() {
    host::Trace::RemoveSink(_traces);
}

void Journal::StartStep() {
    _recorder.Forget();
    _traces.Clear();
    _messagesBefore = host::Messages::Journal().size();
    if (_changes)
        _changes->Forget();
}

Happenings Journal::SinceStep() const {
    const std::vector<host::Message>& messages = host::Messages::Journal();
    const std::size_t older = std::min(_messagesBefore, messages.size());
    return {_recorder.Heard(),
            {messages.begin() + static_cast<std::ptrdiff_t>(older), messages.end()},
            _traces.Lines(),
            _changes ? _changes->Sentences() : std::vector<std::string>()};
}

} // namespace session
