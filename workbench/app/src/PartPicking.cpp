#include "PartPicking.h"

#include "host/EventScope.h"

namespace app {

PartPicking::PartPicking(const engineering::Part& part, workbench::FeatureCommand& command)
    : _command(command), _tree(part, [this](const std::string& element) { return Pick(element); }) {
    _command.WhenInputsChange([this] { ShowInputs(); });
    ShowInputs();
    _tree.show();
}

PartPicking::~PartPicking() {
    _command.WhenInputsChange(nullptr);
}

// A pick is one event of the main loop, like anything else that a person does.
host::Outcome PartPicking::Pick(const std::string& element) {
    const host::EventScope event;
    return _command.Pick(element);
}

void PartPicking::ShowInputs() {
    const std::set<engineering::ElementKind> kinds = _command.AwaitedKinds();
    _tree.ShowWanted({kinds.begin(), kinds.end()});
    _tree.MarkPicked(_command.PickedElements());
}

} // namespace app
