#include "Scene.h"

#include "DrawingFile.h"
#include "host/FaultPoints.h"

namespace app {

// Faults are counted from here on: without the main window there is nothing that could fail.
Scene::Scene(const WorkData& data, workbench::FeatureCommand::Mode mode)
    : _command(data.catalogue, data.part, mode), _recorder(&_command, &_reader) {
    _command.UseDrawings(
        [&data](const std::string& type) { return workbench::DrawingFile(data.folder, type); });
    host::Application::SetActiveCommand(&_recorder);
    static_cast<void>(host::FaultPoints::ArmFromEnvironment());
}

void Scene::AddStepsTo(session::Player& player) {
    player.AddHandler(_pick);
    player.AddHandler(_set);
}

} // namespace app
