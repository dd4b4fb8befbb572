#pragma once

namespace app {

/// What the program tells its caller.
enum ExitStatus {
    ExitDone = 0,
    ExitFailed = 1,  ///< an expectation failed, or a thing asked for does not exist
    ExitUnusable = 2 ///< the arguments or the input cannot be used
};

/// Writes "kelvane: sentence" to standard error and gives the status back.
int Complain(ExitStatus status, const char* sentence);

} // namespace app
