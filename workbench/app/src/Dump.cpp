#include "Commands.h"

#include "ExitStatus.h"
#include "Scene.h"
#include "host/DialogDump.h"
#include "host/EventScope.h"
#include "session/Player.h"
#include "session/WidgetValues.h"

#include <iostream>

namespace app {

namespace {

constexpr int jsonIndent = 2;

/// Replays the session where there is one. What it expects in vain goes to standard error.
int PlayFirst(session::Player& player, const session::Script& script) {
    const session::PlayResult result = player.Play(script);
    for (const session::Failure& failure : result.failures)
        std::cerr << ToText(failure, script.file) << '\n';
    return result.failures.empty() ? ExitDone : ExitFailed;
}

} // namespace

int Dump(const Options& options, const WorkData& data) {
    Scene scene(data, options.mode);
    session::Player player(scene.Recorder(), session::Journal::WithoutChanges);
    scene.AddStepsTo(player);
    session::Reading reading{session::Script(), {}};
    if (!options.file.empty())
        reading = session::ReadScript(options.file, player.Words());
    if (!reading.script)
        return Complain(ExitUnusable, reading.problem.c_str());
    if (!scene.Start())
        return Complain(ExitFailed, "the feature dialog cannot be made: memory is short");
    host::EventScope::RunIdle();
    const int status = PlayFirst(player, *reading.script);
    if (options.json)
        std::cout << session::TreeOfAll().dump(jsonIndent) << '\n';
    else
        std::cout << host::DialogDump::OfAll();
    return status;
}

} // namespace app
