#pragma once

#include "AuditedTest.h"
#include "RecordingCommand.h"
#include "TraceRecorder.h"
#include "host/Application.h"
#include "host/Messages.h"

#include <iosfwd>

namespace host {

bool operator==(const Message& iLeft, const Message& iRight);
void PrintTo(const Message& iMessage, std::ostream* ioStream);

} // namespace host

namespace support {

using ShownMessages = std::vector<host::Message>;

// An application with a main window, whose active command records the notifications that reach it. The
// library's texts are found, traces are recorded.
//
//     class OrvKvTypeSubTest : public ApplicationTest { ... };
//     OrvKvTypeSub* const panel = new OrvKvTypeSub(MainWindow());
class ApplicationTest : public AuditedTest {
  protected:
    ApplicationTest();
    ~ApplicationTest() override;

    CATDlgDocument* MainWindow() const { return &_application.MainWindow(); }
    RecordingCommand& Command() { return _command; }
    TraceRecorder& Traces() { return _traces; }

    // The messages shown since the last call.
    static ShownMessages TakeMessages();
    // Runs what the main loop does between two events: delayed destructions.
    static void RunIdle();

  private:
    TraceRecorder _traces;
    RecordingCommand _command;
    host::Application _application; // its end destroys all dialogs, which may still reach the command
};

} // namespace support
