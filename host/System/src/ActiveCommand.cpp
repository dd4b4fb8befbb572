#include "ActiveCommand.h"

#include "host/CommandInspection.h"

namespace host {

CATCommand* ActiveCommand::_active = nullptr;

void CommandInspection::SetActiveCommand(CATCommand* iCommand) {
    host::ActiveCommand::Set(iCommand);
}

CATCommand* CommandInspection::ActiveCommand() {
    return host::ActiveCommand::Get();
}

} // namespace host
