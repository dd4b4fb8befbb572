#include "ActiveCommand.h"

#include "host/CommandInspection.h"

namespace host {

namespace {
CATCommand* active = nullptr;
}

CATCommand* ActiveCommand::Get() { return active; }

void ActiveCommand::Set(CATCommand* iCommand) { active = iCommand; }

void CommandInspection::SetActiveCommand(CATCommand* iCommand) { host::ActiveCommand::Set(iCommand); }

CATCommand* CommandInspection::ActiveCommand() { return host::ActiveCommand::Get(); }

} // namespace host
