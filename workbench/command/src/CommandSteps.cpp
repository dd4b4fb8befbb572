#include "workbench/CommandSteps.h"

namespace workbench {

session::Form PickStep::Describe() const {
    return {"pick", {{"element"}}};
}

host::Outcome PickStep::Do(const session::Json& step) {
    return _command.Pick(step.at("element").get<std::string>());
}

session::Form SetStep::Describe() const {
    return {"set", {{"parameter"}, {"text"}}};
}

host::Outcome SetStep::Do(const session::Json& step) {
    return _command.SetValue(step.at("parameter").get<std::string>(), step.at("text").get<std::string>());
}

} // namespace workbench
