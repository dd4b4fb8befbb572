#pragma once

// The steps that the feature command adds to the language of sessions.
//
//   {"do":"pick","element":"Top face hole 1"}          an element of the part, as picked in the 3D view
//   {"do":"set","parameter":"DH","text":"7 mm"}      a value typed for a parameter of the feature

#include "session/StepHandler.h"
#include "workbench/FeatureCommand.h"

namespace workbench {

class PickStep : public session::StepHandler {
  public:
    /// The command is not owned.
    explicit PickStep(FeatureCommand& command) : _command(command) {}

    // session::StepHandler
    session::Form Describe() const override;
    host::Outcome Do(const session::Json& step) override;

  private:
    FeatureCommand& _command;
};

class SetStep : public session::StepHandler {
  public:
    /// The command is not owned.
    explicit SetStep(FeatureCommand& command) : _command(command) {}

    // session::StepHandler
    session::Form Describe() const override;
    host::Outcome Do(const session::Json& step) override;

  private:
    FeatureCommand& _command;
};

} // namespace workbench
