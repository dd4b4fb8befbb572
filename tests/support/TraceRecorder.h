#pragma once

#include "host/Trace.h"

#include <iosfwd>

namespace host {

// Shows a trace line in a failed comparison.
void PrintTo(const TraceLine& iLine, std::ostream* ioStream);

} // namespace host

namespace support {

using TraceLines = std::vector<host::TraceLine>;

// Hears every trace line that passes while it lives.
//
//     TraceRecorder traces;
//     OrvKvPrompt::Error(nullptr);
//     EXPECT_EQ(traces.Take(), TraceLines({{"OrvKv9ViewBase", 3, "Error in displaying error"}}));
class TraceRecorder {
  public:
    TraceRecorder();
    ~TraceRecorder();
    TraceRecorder(const TraceRecorder&) = delete;
    TraceRecorder& operator=(const TraceRecorder&) = delete;

    const TraceLines& Lines() const { return _sink.Lines(); }
    // The lines since the last Take.
    TraceLines Take();

  private:
    host::RecorderSink _sink;
};

} // namespace support
