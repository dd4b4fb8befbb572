#ifndef OrvKvTrace_H
#define OrvKvTrace_H

#include "OrvKv9Trace.h"

// Channels of the library's traces.
static constexpr const char* OrvKvTraceErrors = "OrvKv9Errors"; // failing operations
static constexpr const char* OrvKvTraceSubFrames =
    "OrvKv9SubFrames";                                              // events and caught errors of sub-panels
static constexpr const char* OrvKvTraceViewBase = "OrvKv9ViewBase"; // messages that cannot be shown

// Levels of the library's traces, the most important first.
enum OrvKvTraceLevel { OrvKvTraceFailure = 1, OrvKvTraceEvent = 2, OrvKvTraceDetail = 3 };

// The add-in's trace for constant texts. OrvKv9Trace takes texts that could be written to, and never writes
// to them; this is the one place that relies on it.
//
//     OrvKvTrace::Print(OrvKvTraceErrors, OrvKvTraceFailure, "Error in setting the types.");
class OrvKvTrace {
  public:
    static void Print(const char* iChannel, OrvKvTraceLevel iLevel, const char* iText);

    // iFormat is a printf format for the arguments.
    template<class... Arguments>
    static void PrintV(const char* iChannel, OrvKvTraceLevel iLevel, const char* iFormat,
                       Arguments... iArguments) {
        OrvKv9Trace::PrintV(Writable(iChannel), iLevel, Writable(iFormat), iArguments...);
    }

  private:
    static char* Writable(const char* iText) { return const_cast<char*>(iText); }
};

#endif
