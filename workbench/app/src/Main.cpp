// kelvane: the feature dialog with its catalogue, for people, for sessions and for checks; its threads and
// its fits.

#include "Catalogue.h"
#include "Commands.h"
#include "Environment.h"
#include "ExitStatus.h"
#include "KeptPreferences.h"
#include "UserFolders.h"
#include "host/FaultPoints.h"
#include "host/Trace.h"

#include <exception>

namespace app {

namespace {

/// Traces go to standard error where the environment asks for them.
class EnvironmentTrace {
  public:
    EnvironmentTrace() {
        if (!Environment("KELVANE_TRACE").empty())
            host::Trace::AddSink(_sink);
    }
    ~EnvironmentTrace() { host::Trace::RemoveSink(_sink); }
    EnvironmentTrace(const EnvironmentTrace&) = delete;
    EnvironmentTrace& operator=(const EnvironmentTrace&) = delete;

  private:
    host::StandardErrorSink _sink;
};

std::string FaultOfEnvironment() {
    if (!host::Trace::SetLevelsFromEnvironment())
        return "KELVANE_TRACE: '" + Environment("KELVANE_TRACE") +
               "' is no list of levels such as OrvKv9Errors:1,2";
    if (!host::FaultPoints::ArmFromEnvironment())
        return "KELVANE_FAIL_CALL: '" + Environment("KELVANE_FAIL_CALL") +
               "' is neither a number from 1 on nor a name with one, such as message look-up:3";
    return {};
}

/// What a person does is remembered; sessions play alike everywhere.
std::filesystem::path PreferencesOf(const Options& options) {
    const bool isByPerson = options.command == Options::Command::Open;
    return options.preferences.empty() && isByPerson ? PreferencesFile()
                                                     : std::filesystem::path(options.preferences);
}

int RunWithCatalogue(const Options& options) {
    const FoundData found = FindData();
    if (!found.folders)
        return Complain(ExitUnusable, found.reason.c_str());
    const std::optional<WorkData> data = PrepareData(options, *found.folders);
    if (!data)
        return ExitUnusable;
    const KeptPreferences preferences(PreferencesOf(options));
    switch (options.command) {
    case Options::Command::Replay:
        return Replay(options, *data);
    case Options::Command::Dump:
        return Dump(options, *data);
    case Options::Command::Thread:
        return ShowThread(options, *data);
    case Options::Command::Fit:
        return ShowFit(options, *data);
    default:
        return Open(options, *data);
    }
}

int Run(const Options& options) {
    const std::string fault = FaultOfEnvironment();
    if (!fault.empty())
        return Complain(ExitUnusable, fault.c_str());
    const EnvironmentTrace trace;
    return options.command == Options::Command::Check ? CheckCatalogue(options.file)
                                                      : RunWithCatalogue(options);
}

} // namespace

} // namespace app

int main(int count, char** values) {
    try {
        const app::Arguments arguments = app::ReadArguments(count, values);
        return arguments.options ? app::Run(*arguments.options) : arguments.status;
    } catch (const std::exception& error) {
        return app::Complain(app::ExitUnusable, error.what());
    }
}
