// Constant texts reach the trace as they are.

#include "OrvKvTrace.h"

#include "support/AuditedTest.h"
#include "support/TraceRecorder.h"

using namespace support;

namespace {

class OrvKvTraceTest : public AuditedTest {
  protected:
    TraceRecorder _traces;
};

TEST_F(OrvKvTraceTest, WritesATextOnAChannelAndLevel) {
    OrvKvTrace::Print(OrvKvTraceErrors, OrvKvTraceFailure, "100 % of it");
    OrvKvTrace::Print(OrvKvTraceSubFrames, OrvKvTraceEvent, "two");
    OrvKvTrace::Print(OrvKvTraceViewBase, OrvKvTraceDetail, "three");
    EXPECT_EQ(_traces.Take(), TraceLines({{"OrvKv9Errors", 1, "100 % of it"},
                                          {"OrvKv9SubFrames", 2, "two"},
                                          {"OrvKv9ViewBase", 3, "three"}}));
}

TEST_F(OrvKvTraceTest, FormatsALine) {
    OrvKvTrace::PrintV(OrvKvTraceSubFrames, OrvKvTraceDetail, "%s at %ld", "place", 12L);
    EXPECT_EQ(_traces.Take(), TraceLines({{"OrvKv9SubFrames", 3, "place at 12"}}));
}

} // namespace
