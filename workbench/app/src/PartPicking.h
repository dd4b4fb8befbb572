#pragma once

// The part beside the dialog: what a designer picks in its tree goes to the command, and the tree shows which
// kinds of elements the command waits for and what is picked.

#include "PartTree.h"
#include "workbench/FeatureCommand.h"

#include <string>

namespace app {

class PartPicking {
  public:
    /// Shows the window. Part and command are not owned; the command outlives this object.
    PartPicking(const engineering::Part& part, workbench::FeatureCommand& command);
    ~PartPicking();
    PartPicking(const PartPicking&) = delete;
    PartPicking& operator=(const PartPicking&) = delete;

    PartTree& Window() { return _tree; }

  private:
    host::Outcome Pick(const std::string& element);
    void ShowInputs();

    workbench::FeatureCommand& _command;
    PartTree _tree;
};

} // namespace app
