#include "TraceRecorder.h"

#include <gtest/gtest.h>
#include <ostream>

namespace host {

void PrintTo(const TraceLine& iLine, std::ostream* ioStream) {
    *ioStream << iLine.channel << " " << iLine.level << ": " << testing::PrintToString(iLine.text);
}

} // namespace host

namespace support {

TraceRecorder::TraceRecorder() {
    host::Trace::AddSink(_sink);
}

TraceRecorder::~TraceRecorder() {
    host::Trace::RemoveSink(_sink);
}

TraceLines TraceRecorder::Take() {
    TraceLines lines = _sink.Lines();
    _sink.Clear();
    return lines;
}

} // namespace support
