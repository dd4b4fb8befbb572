#include "Scene.h"

#include "host/FaultPoints.h"

namespace app {

// Faults are counted from here on: without the main window there is nothing that could fail.
Scene::Scene(const engineering::FeatureCatalogue& catalogue, workbench::FeatureCommand::Mode mode)
    : _command(catalogue, mode), _recorder(&_command, &_reader) {
    host::Application::SetActiveCommand(&_recorder);
    static_cast<void>(host::FaultPoints::ArmFromEnvironment());
}

} // namespace app
