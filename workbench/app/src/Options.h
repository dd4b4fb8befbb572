#pragma once

// The command line of kelvane.

#include "workbench/FeatureCommand.h"

#include <optional>
#include <string>
#include <vector>

namespace app {

struct Options {
    enum class Command { Open, Replay, Dump, Check, Thread, Fit };

    Command command = Command::Open;
    workbench::FeatureCommand::Mode mode = workbench::FeatureCommand::Mode::Parameters;
    std::string catalogue;   ///< folder; empty for the shipped one
    std::string language;    ///< folder of the message files, such as "German"; empty for English
    std::string file;        ///< session to replay, or catalogue to check; empty for none
    bool desktop = false;    ///< replay in real windows
    std::string pictures;    ///< folder; empty for none
    std::string preferences; ///< file; empty for the user's own, or for none where a session is played
    std::string transcript;  ///< file; empty for none
    std::vector<std::string> designation; ///< words of a thread's designation, or of a class or fit
    std::string nominal;                  ///< nominal size of that class or fit, as written
    bool json = false;
};

struct Arguments {
    std::optional<Options> options; ///< none when there is nothing left to do
    int status = 0;                 ///< exit status in that case
};

/// Reads the command line. Help and version are printed to standard output, what is wrong to standard error.
Arguments ReadArguments(int count, const char* const* values);

} // namespace app
