#pragma once

#include "TraceRecorder.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace support {

// Everything that an operation of the library tells by its result: the value, the way in which it was
// returned, the trace and the error object.
//
//     EXPECT_EQ(Observe([&] { return notification.GetThreadInfo(nullptr); }),
//               FailureIn("OrvKv9Notifications.m/src/OrvKvThreadTypeNotification", "NULL == pType"));
struct Report {
    std::string result;     // "S_OK", "E_FAIL", or the number
    int returns = 0;        // results that went through CATError::GetReturn
    std::string source;     // source file that the last of them named; empty when there was none
    TraceLines traces;      // the line number reads "LINE" where it is the one of the last result
    std::string errorClass; // class, key, catalogue and parameters of the error object behind a failure;
    std::string key;        // empty when there is none
    std::string catalogue;
    std::vector<std::string> parameters;

    bool operator==(const Report&) const = default;
};

void PrintTo(const Report& iReport, std::ostream* ioStream);

// Runs iCall and tells what it told. An older error lies about meanwhile: a failure that takes it for its own
// shows it. No error is left afterwards.
Report Observe(const std::function<long()>& iCall);

// What a success looks like that goes through CATError::GetReturn, and one that does not.
Report SuccessIn(const std::string& iSource);
Report PlainSuccess();
// What a failure of the library itself looks like, and one that says nothing.
Report FailureIn(const std::string& iSource, const std::string& iMessage);
Report PlainFailure();

} // namespace support
