#include "Commands.h"

#include "ExitStatus.h"
#include "Scene.h"
#include "Windows.h"

#include <iostream>

namespace app {

using workbench::FeatureCommand;

int Open(const Options& options, const WorkData& data) {
    const OpenedWindows windows = OpenWindowSystem(Display::Required);
    if (!windows.system)
        return Complain(ExitUnusable, windows.reason.c_str());
    Scene scene(data, options.mode);
    const std::unique_ptr<DialogWindows> dialogs = windows.system->ShowDialogs(Answering::ByPerson);
    scene.Command().WhenEnded([&windows] { windows.system->Quit(); });
    if (!scene.Start())
        return Complain(ExitFailed, "the feature dialog cannot be made: memory is short");
    dialogs->ShowPart(data.part, scene.Command());
    dialogs->Settle();
    if (scene.Command().CurrentState() == FeatureCommand::State::Running)
        windows.system->Run();
    if (scene.Command().CurrentState() == FeatureCommand::State::Accepted)
        std::cout << scene.Command().TypeKey() << ": " << scene.Command().SetName() << '\n';
    return ExitDone;
}

} // namespace app
